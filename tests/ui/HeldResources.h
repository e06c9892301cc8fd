#pragma once

#include <cstddef>
#include <windows.h>

// What a process holds at one moment.
struct HeldResources {
    unsigned long handles = 0; // files, events, threads and so on
    unsigned long gdi = 0;
    unsigned long user = 0;
    std::size_t heapBytes = 0; // of its blocks in use
    std::size_t memory = 0;    // bytes of its own
};

[[nodiscard]] HeldResources HeldByThisProcess();

// Of another process: handles and memory only.
[[nodiscard]] HeldResources HeldByProcessOf(HWND window);
