#pragma once

#include "platform/KernelHandle.h"

#include <string>

// A block of memory in the process of a window, for messages that take pointers.
class RemoteMemory {
public:
    // Throws std::runtime_error when the process cannot be opened.
    explicit RemoteMemory(HWND window);
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;
    ~RemoteMemory();

    static constexpr std::size_t kTextOffset = 1024; // where texts stand
    static constexpr std::size_t kTextCharacters = 1024;

    // Where the text is, as the other process knows it.
    [[nodiscard]] wchar_t* TextAddress() const noexcept;
    [[nodiscard]] std::wstring Text() const;

    // Sends the message with the structure as its second parameter; it comes back as the window
    // left it.
    template <typename Structure>
    LRESULT Send(UINT message, WPARAM wParam, Structure& structure) const {
        Write(&structure, sizeof structure);
        const LRESULT result =
            SendMessageW(window_, message, wParam, reinterpret_cast<LPARAM>(memory_));
        Read(0, &structure, sizeof structure);
        return result;
    }

private:
    // Throw std::runtime_error when the process gives or takes nothing.
    void Write(const void* bytes, std::size_t size) const;
    void Read(std::size_t offset, void* bytes, std::size_t size) const;

    HWND window_;
    KernelHandle process_;
    std::byte* memory_ = nullptr;
};
