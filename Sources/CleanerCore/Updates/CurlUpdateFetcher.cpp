#include "CleanerCore/Updates/CurlUpdateFetcher.hpp"

#include <curl/curl.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>

namespace CleanerCore {
namespace {

using Easy = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

Easy newHandle(const URL& url, std::chrono::milliseconds timeout) {
    static std::once_flag initialised;
    std::call_once(initialised, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    Easy easy(curl_easy_init(), &curl_easy_cleanup);
    if (!easy)
        throw TransferError("libcurl could not start a transfer");
    CURL* handle = easy.get();
    const std::string text = url.absoluteString();
    const long seconds = std::max<long>(1, static_cast<long>((timeout.count() + 999) / 1000));
    curl_easy_setopt(handle, CURLOPT_URL, text.c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(handle, CURLOPT_MAXREDIRS, 10L);
    curl_easy_setopt(handle, CURLOPT_USERAGENT, CurlUpdateFetcher::userAgent.data());
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(timeout.count()));
    // A stall of `timeout` (less than a byte a second) ends the transfer, and so does six times
    // `timeout` in all.
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_TIME, seconds);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(timeout.count() * 6));
    curl_easy_setopt(handle, CURLOPT_ACCEPT_ENCODING, "");
    return easy;
}

long statusOf(CURL* handle) {
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    return status;
}

void checkStatus(CURL* handle) {
    const long status = statusOf(handle);
    if (status < 200 || status > 299)
        throw UpdateFetchError::badStatus(static_cast<int>(status));
}

struct MemoryBody {
    std::string bytes;
    std::size_t limit = 0;
    bool overflowed = false;
};

std::size_t appendToMemory(char* data, std::size_t size, std::size_t count, void* user) {
    auto* body = static_cast<MemoryBody*>(user);
    const std::size_t length = size * count;
    if (length > body->limit - body->bytes.size()) {
        body->overflowed = true;
        return 0; // makes libcurl stop the transfer at once
    }
    body->bytes.append(data, length);
    return length;
}

// The download's file while it arrives; removed unless it has been moved into place.
struct FileBody {
    std::string path;
    int fd = -1;
    int error = 0;
    bool moved = false;

    FileBody() = default;
    FileBody(const FileBody&) = delete;
    FileBody& operator=(const FileBody&) = delete;
    ~FileBody() {
        if (fd >= 0)
            ::close(fd);
        if (!moved && !path.empty())
            ::unlink(path.c_str());
    }
};

std::size_t appendToFile(char* data, std::size_t size, std::size_t count, void* user) {
    auto* body = static_cast<FileBody*>(user);
    const std::size_t length = size * count;
    for (std::size_t offset = 0; offset < length;) {
        const ssize_t written = ::write(body->fd, data + offset, length - offset);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            body->error = written < 0 ? errno : EIO;
            return 0;
        }
        offset += static_cast<std::size_t>(written);
    }
    return length;
}

// The name a server suggests in Content-Disposition, of the final response after redirects.
std::size_t readHeader(char* data, std::size_t size, std::size_t count, void* user) {
    auto* suggested = static_cast<std::optional<std::string>*>(user);
    const std::string_view line(data, size * count);
    if (line.starts_with("HTTP/")) {
        suggested->reset(); // a new response: what an earlier redirect said no longer counts
        return size * count;
    }
    std::string lower(line);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (!lower.starts_with("content-disposition:"))
        return size * count;
    const std::size_t key = lower.find("filename=");
    if (key == std::string::npos)
        return size * count;
    std::string_view value = line.substr(key + 9);
    if (value.starts_with('"')) {
        value.remove_prefix(1);
        value = value.substr(0, value.find('"'));
    } else {
        value = value.substr(0, value.find_first_of("; \r\n"));
    }
    *suggested = std::string(value);
    return size * count;
}

// A single, harmless file name: no folders, never "." or "..".
std::string safeName(std::string_view name) {
    const std::size_t slash = name.find_last_of("/\\");
    if (slash != std::string_view::npos)
        name = name.substr(slash + 1);
    if (name == "." || name == ".." || name.find('\0') != std::string_view::npos)
        return {};
    return std::string(name);
}

std::string fileName(const std::optional<std::string>& suggested, const URL& from) {
    if (suggested)
        if (std::string name = safeName(*suggested); !name.empty())
            return name;
    const std::string path = from.path();
    if (!path.empty() && path.back() != '/')
        if (std::string name = safeName(percentDecoded(path.substr(path.rfind('/') + 1))); !name.empty())
            return name;
    return "update";
}

[[noreturn]] void throwTransfer(CURLcode code, const char* detail) {
    throw TransferError(*detail != '\0' ? std::string(detail) : std::string(curl_easy_strerror(code)));
}

} // namespace

UpdateFetchError UpdateFetchError::badStatus(int status) {
    return {Kind::badStatus, status, "the server answered with status " + std::to_string(status)};
}

UpdateFetchError UpdateFetchError::tooLarge() { return {Kind::tooLarge, 0, "the answer is larger than allowed"}; }

CurlUpdateFetcher::CurlUpdateFetcher(std::chrono::milliseconds timeout, std::size_t maxDataBytes)
    : timeout(timeout), maxDataBytes(maxDataBytes) {}

std::string CurlUpdateFetcher::data(const URL& from) const {
    const Easy easy = newHandle(from, timeout);
    MemoryBody body;
    body.limit = maxDataBytes;
    char detail[CURL_ERROR_SIZE] = {};
    curl_easy_setopt(easy.get(), CURLOPT_ERRORBUFFER, detail);
    curl_easy_setopt(easy.get(), CURLOPT_WRITEFUNCTION, &appendToMemory);
    curl_easy_setopt(easy.get(), CURLOPT_WRITEDATA, &body);
    const CURLcode code = curl_easy_perform(easy.get());
    if (body.overflowed)
        throw UpdateFetchError::tooLarge();
    if (code != CURLE_OK)
        throwTransfer(code, detail);
    checkStatus(easy.get());
    return std::move(body.bytes);
}

URL CurlUpdateFetcher::download(const URL& from, const URL& folder) const {
    const std::string directory = folder.path();
    std::string temporary = directory + "/.zephrane-download-XXXXXX";
    FileBody body;
    body.fd = mkostemp(temporary.data(), O_CLOEXEC);
    if (body.fd < 0)
        throw std::system_error(errno, std::generic_category(), "creating a file in " + directory);
    body.path = temporary;

    const Easy easy = newHandle(from, timeout);
    std::optional<std::string> suggested;
    char detail[CURL_ERROR_SIZE] = {};
    curl_easy_setopt(easy.get(), CURLOPT_ERRORBUFFER, detail);
    curl_easy_setopt(easy.get(), CURLOPT_WRITEFUNCTION, &appendToFile);
    curl_easy_setopt(easy.get(), CURLOPT_WRITEDATA, &body);
    curl_easy_setopt(easy.get(), CURLOPT_HEADERFUNCTION, &readHeader);
    curl_easy_setopt(easy.get(), CURLOPT_HEADERDATA, &suggested);
    const CURLcode code = curl_easy_perform(easy.get());
    if (body.error != 0)
        throw std::system_error(body.error, std::generic_category(), "writing " + temporary);
    if (code != CURLE_OK)
        throwTransfer(code, detail);
    checkStatus(easy.get());
    if (::close(body.fd) != 0) {
        body.fd = -1;
        throw std::system_error(errno, std::generic_category(), "writing " + temporary);
    }
    body.fd = -1;

    const std::string target = directory + "/" + fileName(suggested, from);
    if (std::rename(temporary.c_str(), target.c_str()) != 0)
        throw std::system_error(errno, std::generic_category(), "moving the download to " + target);
    body.moved = true;
    return URL::file(target);
}

} // namespace CleanerCore
