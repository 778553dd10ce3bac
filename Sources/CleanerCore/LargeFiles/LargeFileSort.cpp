#include "CleanerCore/LargeFiles/LargeFileSort.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Display/NaturalOrder.hpp"

#include <algorithm>

namespace CleanerCore {

std::string_view rawValue(LargeFileSort sort) {
    switch (sort) {
    case LargeFileSort::size:
        return "size";
    case LargeFileSort::lastUsed:
        return "lastUsed";
    case LargeFileSort::name:
        break;
    }
    return "name";
}

template <> std::optional<LargeFileSort> fromRaw<LargeFileSort>(std::string_view raw) {
    for (LargeFileSort sort : allLargeFileSorts)
        if (rawValue(sort) == raw)
            return sort;
    return std::nullopt;
}

std::vector<LargeFile> sorted(LargeFileSort sort, std::vector<LargeFile> files,
                              const std::optional<std::string>& locale) {
    // Names and paths are worked out once, not once per comparison.
    struct Keyed {
        std::string name, path;
        LargeFile* file;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(files.size());
    for (LargeFile& file : files)
        keyed.push_back({file.name(), file.url.path(), &file});
    const std::string language = locale && !locale->empty() ? *locale : CoreL10n::currentLanguage();

    const auto byMode = [sort](const LargeFile& a, const LargeFile& b) {
        switch (sort) {
        case LargeFileSort::size:
            return a.size > b.size ? -1 : a.size < b.size ? 1 : 0;
        case LargeFileSort::lastUsed:
            return a.lastUsedSortKey() < b.lastUsedSortKey()   ? -1
                   : b.lastUsedSortKey() < a.lastUsedSortKey() ? 1
                                                               : 0;
        case LargeFileSort::name:
            break;
        }
        return 0; // the name comes next anyway
    };
    std::stable_sort(keyed.begin(), keyed.end(), [&](const Keyed& a, const Keyed& b) {
        if (const int order = byMode(*a.file, *b.file))
            return order < 0;
        if (const int order = NaturalOrder::compare(a.name, b.name, language))
            return order < 0;
        return a.path < b.path;
    });

    std::vector<LargeFile> out;
    out.reserve(files.size());
    for (Keyed& entry : keyed)
        out.push_back(std::move(*entry.file));
    return out;
}

} // namespace CleanerCore
