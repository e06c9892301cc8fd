#include "tests/e2e/RemoteMemory.h"

#include "tests/platform/PollUntil.h"

#include <array>
#include <stdexcept>

namespace {

constexpr std::size_t kSize = 8192;

HANDLE OpenProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    HANDLE handle =
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process);
    if (handle == nullptr)
        throw std::runtime_error("The window's process cannot be opened");
    return handle;
}

} // namespace

RemoteMemory::RemoteMemory(HWND window) : window_(window), process_(OpenProcessOf(window)) {
    memory_ = static_cast<std::byte*>(
        VirtualAllocEx(process_.Get(), nullptr, kSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    if (memory_ == nullptr)
        throw std::runtime_error("No memory in the window's process");
}

RemoteMemory::~RemoteMemory() {
    VirtualFreeEx(process_.Get(), memory_, 0, MEM_RELEASE);
}

wchar_t* RemoteMemory::TextAddress() const noexcept {
    return reinterpret_cast<wchar_t*>(memory_ + kTextOffset);
}

std::wstring RemoteMemory::Text() const {
    std::array<wchar_t, kTextCharacters> text{};
    Read(kTextOffset, text.data(), (text.size() - 1) * sizeof(wchar_t));
    return text.data();
}

// The other process may be held by something else for a moment.
void RemoteMemory::Write(const void* bytes, std::size_t size) const {
    const bool isWritten = PollUntil([&] {
        SIZE_T written = 0;
        return WriteProcessMemory(process_.Get(), memory_, bytes, size, &written) != FALSE &&
               written == size;
    });
    if (!isWritten)
        throw std::runtime_error("The window's process takes nothing into its memory");
}

void RemoteMemory::Read(std::size_t offset, void* bytes, std::size_t size) const {
    const bool isRead = PollUntil([&] {
        SIZE_T read = 0;
        return ReadProcessMemory(process_.Get(), memory_ + offset, bytes, size, &read) != FALSE &&
               read == size;
    });
    if (!isRead)
        throw std::runtime_error("The memory of the window's process cannot be read");
}
