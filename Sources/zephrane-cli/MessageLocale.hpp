#pragma once

#include <string>

namespace ZephraneCli {

// The language of messages as the environment asks for it (LC_ALL, LC_MESSAGES, LANG); English
// for the plain C locale or none.
std::string messageLocale();

} // namespace ZephraneCli
