#pragma once

#include <cstdint>
#include <string>

namespace ZephraneCli {

// Why the folder `path` given on the command line could not be opened (with `error`), in words: a
// link and a file are named as such (a link is never followed, so "not a directory" would mislead).
std::string pathProblem(const std::string& path, int error);

// "N folders below 'PATH' could not be read; what they hold is not counted".
std::string unreadableMessage(std::int64_t folders, const std::string& path);

} // namespace ZephraneCli
