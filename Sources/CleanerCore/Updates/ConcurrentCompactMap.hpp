#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

namespace CleanerCore {

// Calls `transform` on every element with at most `limit` calls in flight, each on a thread of its
// own (the calls wait on the network, not on the CPU), and returns the results that are present in
// the input's order. Once `stop` is requested no further call is started.
template <typename Input, typename Transform>
auto concurrentCompactMap(const std::vector<Input>& inputs, std::size_t limit, Transform transform,
                          std::stop_token stop = {}) {
    using Result = typename std::invoke_result_t<Transform, const Input&>::value_type;
    std::vector<std::optional<Result>> slots(inputs.size());
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (;;) {
            if (stop.stop_requested())
                return;
            const std::size_t index = next.fetch_add(1);
            if (index >= inputs.size())
                return;
            slots[index] = transform(inputs[index]);
        }
    };
    const std::size_t workers = std::min(inputs.size(), std::max<std::size_t>(limit, 1));
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 1; i < workers; ++i)
            threads.emplace_back(work);
        if (workers > 0)
            work();
    }
    std::vector<Result> results;
    for (auto& slot : slots)
        if (slot)
            results.push_back(std::move(*slot));
    return results;
}

} // namespace CleanerCore
