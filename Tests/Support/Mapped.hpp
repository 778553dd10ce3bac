#pragma once

#include <functional>
#include <type_traits>
#include <vector>

namespace TestSupport {

// What `f` gives for each of `items`, in their order; `f` may be a member pointer such as
// `&URL::path`.
template <typename Items, typename Function> auto mapped(const Items& items, Function f) {
    std::vector<std::decay_t<std::invoke_result_t<Function&, decltype(*std::begin(items))>>> out;
    for (const auto& item : items)
        out.push_back(std::invoke(f, item));
    return out;
}

} // namespace TestSupport
