#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace TestSupport {

// A tiny HTTP/1.1 server on 127.0.0.1 for tests of network code: one connection at a time, one
// request per connection, answers from a handler. Stops (and joins) on destruction.
class LocalHttpServer {
public:
    struct Response {
        int status = 200;
        std::vector<std::pair<std::string, std::string>> headers;
        std::string body;
        // Headers first, then silence for this long before the body: a stalled server.
        std::chrono::milliseconds stallBeforeBody{0};
    };
    using Handler = std::function<Response(const std::string& path)>;

    explicit LocalHttpServer(Handler handler);
    ~LocalHttpServer();
    LocalHttpServer(const LocalHttpServer&) = delete;
    LocalHttpServer& operator=(const LocalHttpServer&) = delete;

    // "http://127.0.0.1:<port>" + path.
    std::string url(const std::string& path) const;
    // The request lines and headers received so far, for tests that look at what was sent.
    std::vector<std::string> requests() const;

private:
    void serve();
    void answer(int client);

    Handler handler;
    int listener = -1;
    int port = 0;
    std::atomic<bool> stopping{false};
    std::vector<std::string> received;
    mutable std::mutex receivedLock;
    std::thread thread;
};

} // namespace TestSupport
