#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include <unicode/uversion.h>

U_NAMESPACE_BEGIN
class Collator;
U_NAMESPACE_END

namespace CleanerCore {

// The order people expect of names in a list, as a file browser sorts them: case and accents
// count only to break ties, and digits compare by their numeric value ("App 9" before "App 10").
// One object serves one thread; make one per sort.
class NaturalOrder {
public:
    NaturalOrder();
    ~NaturalOrder();
    NaturalOrder(const NaturalOrder&) = delete;
    NaturalOrder& operator=(const NaturalOrder&) = delete;

    // Whether `a` sorts before `b` (UTF-8; bytes that are not UTF-8 sort as replacement characters).
    bool operator()(std::string_view a, std::string_view b) const;

private:
    std::unique_ptr<icu::Collator> collator;
};

} // namespace CleanerCore
