#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace TestSupport {

// A mount made for one test and undone when the object goes, wherever the mount has moved to
// meanwhile (a folder holding it may have gone to the trash). Only root may mount: otherwise the
// object is inactive and says why, and the test skips.
class ScopedMount {
public:
    static ScopedMount bind(const std::filesystem::path& source, const std::filesystem::path& target);
    static ScopedMount tmpfs(const std::filesystem::path& target);
    ~ScopedMount();
    ScopedMount(ScopedMount&& other) noexcept;
    ScopedMount(const ScopedMount&) = delete;
    ScopedMount& operator=(const ScopedMount&) = delete;
    ScopedMount& operator=(ScopedMount&&) = delete;

    explicit operator bool() const { return id != 0; }
    const std::string& why() const { return failure; }

private:
    ScopedMount() = default;
    void attach(const char* source, const std::filesystem::path& target, const char* type, unsigned long flags);

    std::uint64_t id = 0; // the kernel's mount id
    std::string failure;
};

} // namespace TestSupport
