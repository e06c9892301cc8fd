#include "platform/Win32OutputFile.h"

#include <algorithm>

namespace {

constexpr std::size_t kLargestWrite = 1U << 24U; // one call counts in 32 bits

} // namespace

bool Win32OutputFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto part = static_cast<DWORD>(std::min(bytes.size(), kLargestWrite));
        DWORD written = 0;
        if (!WriteFile(file_.Get(), bytes.data(), part, &written, nullptr) || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return static_cast<bool>(file_);
}

bool Win32OutputFile::Flush() {
    return FlushFileBuffers(file_.Get()) != FALSE;
}
