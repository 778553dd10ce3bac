#include "Modules/Lens/LensText.hpp"

#include "CleanerCore/Display/PercentText.hpp"

#include <QDir>

namespace LensText {

QString displayName(const CleanerCore::URL& url) {
    const std::string path = CleanerCore::standardizedPath(url.path());
    if (path == CleanerCore::standardizedPath(QDir::homePath().toStdString()))
        return qtTrId("lens.home");
    if (path == "/")
        return QStringLiteral("/");
    return QString::fromStdString(url.lastPathComponent());
}

QString share(std::int64_t size, std::int64_t whole, const QLocale& locale) {
    return QString::fromStdString(CleanerCore::PercentText::share(size, whole, locale.bcp47Name().toStdString()));
}

} // namespace LensText
