#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace TestSupport {

// Sets an environment variable for the life of the object, then puts back what was there.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, const std::string& value) : name(name) {
        if (const char* old = std::getenv(name))
            previous = old;
        ::setenv(name, value.c_str(), 1);
    }
    ~ScopedEnvironment() {
        if (previous)
            ::setenv(name, previous->c_str(), 1);
        else
            ::unsetenv(name);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    const char* name;
    std::optional<std::string> previous;
};

} // namespace TestSupport
