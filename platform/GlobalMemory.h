#pragma once

#include "platform/UniqueHandle.h"

#include <windows.h>

// Memory as the clipboard takes it over.
struct GlobalMemoryTraits {
    using Handle = HGLOBAL;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle memory) noexcept { return GlobalFree(memory) == nullptr; }
};
using GlobalMemory = UniqueHandle<GlobalMemoryTraits>;

// Keeps a block of global memory in place; it does not own it.
class GlobalLockGuard {
public:
    explicit GlobalLockGuard(HGLOBAL memory) noexcept
        : memory_(memory), content_(GlobalLock(memory)) {}
    GlobalLockGuard(const GlobalLockGuard&) = delete;
    GlobalLockGuard& operator=(const GlobalLockGuard&) = delete;
    ~GlobalLockGuard() {
        if (content_ != nullptr)
            GlobalUnlock(memory_);
    }

    // Null when the memory could not be locked.
    [[nodiscard]] void* Content() const noexcept { return content_; }
    [[nodiscard]] std::size_t Size() const noexcept { return GlobalSize(memory_); } // bytes

private:
    HGLOBAL memory_;
    void* content_;
};
