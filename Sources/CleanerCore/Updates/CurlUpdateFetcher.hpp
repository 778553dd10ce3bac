#pragma once

#include "CleanerCore/Updates/UpdateFetching.hpp"

#include <chrono>
#include <cstddef>

namespace CleanerCore {

// HTTP and HTTPS only, redirects included, with a fresh handle per request: no cookies, cache or
// credentials carry over. `timeout` bounds connecting and every stall; six times it bounds the
// whole transfer.
class CurlUpdateFetcher final : public UpdateFetching {
public:
    static constexpr std::string_view userAgent = "Zephrane (Linux; updater)";

    CurlUpdateFetcher(std::chrono::milliseconds timeout, std::size_t maxDataBytes);

    // Stops as soon as the body grows past `maxDataBytes`; exactly that many pass.
    std::string data(const URL& from) const override;
    // No size limit. Named by the server's suggested file name, else the URL's last path
    // component, else "update".
    URL download(const URL& from, const URL& folder) const override;

private:
    std::chrono::milliseconds timeout;
    std::size_t maxDataBytes;
};

} // namespace CleanerCore
