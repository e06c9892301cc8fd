#pragma once

#include <cerrno>
#include <string_view>
#include <unistd.h>

// Writes all bytes to a file descriptor; false when the system reports a failure.
[[nodiscard]] inline bool WriteAll(int file, std::string_view bytes) noexcept {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return true;
}
