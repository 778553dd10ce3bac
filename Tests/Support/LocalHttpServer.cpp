#include "LocalHttpServer.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace TestSupport {
namespace {

bool sendAll(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            return false; // the client hung up, as a client that gave up on a large body does
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

} // namespace

LocalHttpServer::LocalHttpServer(Handler handler) : handler(std::move(handler)) {
    listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (listener < 0 || ::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener, 16) != 0 || ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length) != 0)
        throw std::runtime_error("the test HTTP server could not listen on 127.0.0.1");
    port = ntohs(address.sin_port);
    thread = std::thread([this] { serve(); });
}

LocalHttpServer::~LocalHttpServer() {
    stopping = true;
    thread.join();
    ::close(listener);
}

std::string LocalHttpServer::url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(port) + path;
}

std::vector<std::string> LocalHttpServer::requests() const {
    const std::lock_guard lock(receivedLock);
    return received;
}

void LocalHttpServer::serve() {
    while (!stopping) {
        pollfd entry{listener, POLLIN, 0};
        if (::poll(&entry, 1, 20) <= 0)
            continue;
        const int client = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0)
            continue;
        answer(client);
        ::close(client);
    }
}

void LocalHttpServer::answer(int client) {
    std::string request;
    char buffer[4096];
    while (request.find("\r\n\r\n") == std::string::npos && request.size() < 65536) {
        pollfd entry{client, POLLIN, 0};
        if (::poll(&entry, 1, 2000) <= 0)
            return;
        const ssize_t n = ::recv(client, buffer, sizeof buffer, 0);
        if (n <= 0)
            return;
        request.append(buffer, static_cast<std::size_t>(n));
    }
    {
        const std::lock_guard lock(receivedLock);
        received.push_back(request.substr(0, request.find("\r\n\r\n")));
    }

    const std::size_t pathStart = request.find(' ') + 1;
    const std::string path = request.substr(pathStart, request.find(' ', pathStart) - pathStart);
    const Response response = handler(path);

    // Clients read the code alone; the reason phrase is any text.
    std::string head = "HTTP/1.1 " + std::to_string(response.status) + " Status\r\n";
    for (const auto& [name, value] : response.headers)
        head += name + ": " + value + "\r\n";
    if (response.status != 204 && response.status != 304)
        head += "Content-Length: " + std::to_string(response.body.size()) + "\r\n";
    head += "Connection: close\r\n\r\n";
    if (!sendAll(client, head))
        return;
    const auto stallEnd = std::chrono::steady_clock::now() + response.stallBeforeBody;
    while (!stopping && std::chrono::steady_clock::now() < stallEnd)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    if (!stopping)
        sendAll(client, response.body);
}

} // namespace TestSupport
