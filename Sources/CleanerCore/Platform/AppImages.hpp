#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore::Platform {

// Whether these first bytes of a file are those of an AppImage: an ELF header with "AI" and the
// format's type (1 or 2) at byte 8. The file's name plays no part.
bool hasAppImageMagic(std::string_view firstBytes);

// The AppImages lying directly in `folder`: regular files (links are no AppImages here) that carry
// the magic, in listing order. A folder that can't be read gives nothing.
std::vector<std::string> appImagesIn(const std::string& folder);

} // namespace CleanerCore::Platform
