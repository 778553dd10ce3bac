#include "App/FullDiskAccess.hpp"

#include "CleanerCore/Platform/SystemCalls.hpp"

#include <QDir>
#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace FullDiskAccess {
namespace {

using CleanerCore::Platform::SystemCalls;

bool exists(const QByteArray& path, bool& folder) {
    struct ::stat info {};
    if (SystemCalls::current().fstatat(AT_FDCWD, path.constData(), &info, 0) != 0)
        return false;
    folder = S_ISDIR(info.st_mode);
    return true;
}

bool canList(const QByteArray& path) {
    const int fd =
        SystemCalls::current().openat(AT_FDCWD, path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return false;
    std::array<char, 4096> buffer{};
    long read = 0;
    do {
        read = SystemCalls::current().getdents64(fd, buffer.data(), buffer.size());
    } while (read < 0 && errno == EINTR);
    (void)SystemCalls::current().close(fd);
    return read >= 0;
}

bool canRead(const QByteArray& path) {
    const int fd = SystemCalls::current().openat(AT_FDCWD, path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    (void)SystemCalls::current().close(fd);
    return true;
}

} // namespace

// No settings panel holds this grant here: the file manager shows the folder whose permissions decide.
QUrl settingsURL() {
    return QUrl::fromLocalFile(QDir::homePath());
}

QStringList probes() {
    return {QDir::homePath()};
}

bool isGranted(const QStringList& probeList) {
    for (const QString& probe : probeList) {
        const QByteArray path = QFile::encodeName(probe);
        bool folder = false;
        if (!exists(path, folder))
            continue;
        return folder ? canList(path) : canRead(path);
    }
    return false;
}

} // namespace FullDiskAccess
