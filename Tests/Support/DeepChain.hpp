#pragma once

#include <cstdint>
#include <filesystem>

namespace TestSupport {

// A chain of folders "d/d/d/..." `depth` levels deep below `root`, far past PATH_MAX if asked,
// each level holding one file "f" of one block. Built and removed through descriptors only.
class DeepChain {
public:
    DeepChain(const std::filesystem::path& root, int depth);
    ~DeepChain();
    DeepChain(const DeepChain&) = delete;
    DeepChain& operator=(const DeepChain&) = delete;

    // Allocated bytes of all the files of the chain.
    std::int64_t total() const;

    const std::filesystem::path top;
    const int levels;
};

} // namespace TestSupport
