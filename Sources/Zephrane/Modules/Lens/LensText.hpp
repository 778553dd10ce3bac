#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <QLocale>
#include <QString>

#include <cstdint>

// How the disk map names folders and shares, in the interface's language.
namespace LensText {

// "Home" for the user's home folder, "/" for the root, else the last path component.
QString displayName(const CleanerCore::URL& url);
// The share of `size` in `whole` as a whole percent; a tiny share reads "<1 %", never 0.
QString share(std::int64_t size, std::int64_t whole, const QLocale& locale);

} // namespace LensText
