#pragma once

#include "platform/UniqueHandle.h"

#include <windows.h>

// Files, processes and threads.  INVALID_HANDLE_VALUE stands for "none", as CreateFileW reports it.
struct KernelHandleTraits {
    using Handle = HANDLE;
    static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
    static bool Close(Handle handle) noexcept { return CloseHandle(handle) != FALSE; }
};
using KernelHandle = UniqueHandle<KernelHandleTraits>;
