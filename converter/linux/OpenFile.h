#pragma once

#include <fcntl.h>
#include <unistd.h>
#include <utility>

// Owns a file descriptor.
class OpenFile {
public:
    static constexpr mode_t kNewFile = 0666; // less what the user's mask takes away

    OpenFile(const char* path, int flags) noexcept
        : number_(open(path, flags | O_CLOEXEC, kNewFile)) {}
    OpenFile(OpenFile&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    OpenFile& operator=(OpenFile&&) = delete;
    ~OpenFile() { Close(); }

    [[nodiscard]] explicit operator bool() const noexcept { return number_ != kNone; }
    [[nodiscard]] int Number() const noexcept { return number_; }

    // False when it was closed before, or the system reports a failure.
    bool Close() noexcept { return *this && close(std::exchange(number_, kNone)) == 0; }

private:
    static constexpr int kNone = -1;

    int number_;
};
