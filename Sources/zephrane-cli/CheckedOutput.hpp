#pragma once

#include <streambuf>
#include <string>

namespace ZephraneCli {

// A stream buffer over a file descriptor that checks every write: a full disk or a closed pipe
// puts the stream in a failed state, with errno kept for the message, instead of losing the rest
// of a report in silence. Writes in blocks of 256 KiB.
class CheckedOutput : public std::streambuf {
public:
    explicit CheckedOutput(int fd);
    ~CheckedOutput() override;
    CheckedOutput(const CheckedOutput&) = delete;
    CheckedOutput& operator=(const CheckedOutput&) = delete;

    // Writes what is left and closes the descriptor; false (errno set) when either fails.
    bool close();
    // The errno of the first failed write, 0 while none failed.
    int error() const { return failure; }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* data, std::streamsize length) override;
    int sync() override;

private:
    bool drain();
    bool writeAll(const char* data, std::size_t length);

    int fd;
    int failure = 0;
    std::string buffer;
};

} // namespace ZephraneCli
