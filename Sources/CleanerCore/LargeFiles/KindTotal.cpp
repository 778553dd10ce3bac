#include "CleanerCore/LargeFiles/KindTotal.hpp"

#include <array>

namespace CleanerCore {

std::vector<KindTotal> totalsByKind(std::span<const LargeFile> files) {
    std::array<KindTotal, allFileKinds.size()> all{};
    for (std::size_t i = 0; i < allFileKinds.size(); ++i)
        all[i].kind = allFileKinds[i];
    for (const LargeFile& file : files) {
        KindTotal& total = all[static_cast<std::size_t>(file.kind)];
        ++total.count;
        total.bytes += file.size;
    }
    std::vector<KindTotal> out;
    for (const KindTotal& total : all)
        if (total.count > 0)
            out.push_back(total);
    return out;
}

} // namespace CleanerCore
