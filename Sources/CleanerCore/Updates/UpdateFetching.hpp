#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <stdexcept>
#include <string>

namespace CleanerCore {

// What the server answered that is not a usable body.
class UpdateFetchError : public std::runtime_error {
public:
    enum class Kind { badStatus, tooLarge };

    static UpdateFetchError badStatus(int status);
    static UpdateFetchError tooLarge();

    Kind kind() const { return what_; }
    int status() const { return status_; } // the HTTP status of badStatus, else 0

private:
    UpdateFetchError(Kind kind, int status, const std::string& message)
        : std::runtime_error(message), what_(kind), status_(status) {}
    Kind what_;
    int status_;
};

// The transfer itself failed: no connection, a time-out, a scheme that is not allowed, a file
// that could not be written. Carries the transport's own message.
class TransferError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The one way the update code reaches the network, so that it can be driven with canned answers.
class UpdateFetching {
public:
    virtual ~UpdateFetching() = default;

    // A small body, held in memory. Throws UpdateFetchError or TransferError.
    virtual std::string data(const URL& from) const = 0;
    // A file, returned at its place in `folder` (a file URL). Throws as above.
    virtual URL download(const URL& from, const URL& folder) const = 0;
};

} // namespace CleanerCore
