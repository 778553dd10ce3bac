#include "ScopedMount.hpp"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {
namespace {

// mountinfo writes a space in a path as "\040", and likewise tab, newline and backslash.
std::string unescaped(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size()) {
            out += static_cast<char>(std::stoi(text.substr(i + 1, 3), nullptr, 8));
            i += 3;
        } else {
            out += text[i];
        }
    }
    return out;
}

} // namespace

ScopedMount ScopedMount::bind(const std::filesystem::path& source, const std::filesystem::path& target) {
    ScopedMount mount;
    mount.attach(source.c_str(), target, nullptr, MS_BIND);
    return mount;
}

ScopedMount ScopedMount::tmpfs(const std::filesystem::path& target) {
    ScopedMount mount;
    mount.attach("zephrane-test", target, "tmpfs", 0);
    return mount;
}

void ScopedMount::attach(const char* source, const std::filesystem::path& target, const char* type,
                         unsigned long flags) {
    if (::geteuid() != 0) {
        failure = "mounting needs root";
        return;
    }
    if (::mount(source, target.c_str(), type, flags, nullptr) != 0) {
        failure = std::string("mount failed: ") + std::strerror(errno);
        return;
    }
    struct statx info {};
    if (::statx(AT_FDCWD, target.c_str(), 0, STATX_MNT_ID, &info) != 0 || !(info.stx_mask & STATX_MNT_ID)) {
        ::umount2(target.c_str(), MNT_DETACH);
        failure = "the kernel gives no mount id";
        return;
    }
    id = info.stx_mnt_id;
}

ScopedMount::ScopedMount(ScopedMount&& other) noexcept : id(other.id), failure(std::move(other.failure)) {
    other.id = 0;
}

ScopedMount::~ScopedMount() {
    if (!id)
        return;
    std::ifstream table("/proc/self/mountinfo");
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::uint64_t lineId = 0;
        std::string parent, device, root, path;
        if (fields >> lineId >> parent >> device >> root >> path && lineId == id) {
            ::umount2(unescaped(path).c_str(), MNT_DETACH);
            return;
        }
    }
}

} // namespace TestSupport
