#pragma once

#include "platform/UniqueHandle.h"

#include <windows.h>
#include <commctrl.h>

// Owning handles of the window toolkit.

template <typename GdiType>
struct GdiHandleTraits {
    using Handle = GdiType;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle object) noexcept { return DeleteObject(object) != FALSE; }
};
using FontHandle = UniqueHandle<GdiHandleTraits<HFONT>>;
using BrushHandle = UniqueHandle<GdiHandleTraits<HBRUSH>>;
using BitmapHandle = UniqueHandle<GdiHandleTraits<HBITMAP>>;

struct MenuHandleTraits {
    using Handle = HMENU;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle menu) noexcept { return DestroyMenu(menu) != FALSE; }
};
using MenuHandle = UniqueHandle<MenuHandleTraits>;

struct AcceleratorTraits {
    using Handle = HACCEL;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle table) noexcept { return DestroyAcceleratorTable(table) != FALSE; }
};
using AcceleratorHandle = UniqueHandle<AcceleratorTraits>;

struct ImageListTraits {
    using Handle = HIMAGELIST;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle list) noexcept { return ImageList_Destroy(list) != FALSE; }
};
using ImageListHandle = UniqueHandle<ImageListTraits>;

struct IconTraits {
    using Handle = HICON;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle icon) noexcept { return DestroyIcon(icon) != FALSE; }
};
using IconHandle = UniqueHandle<IconTraits>;

struct CursorTraits {
    using Handle = HCURSOR;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle cursor) noexcept { return DestroyCursor(cursor) != FALSE; }
};
using CursorHandle = UniqueHandle<CursorTraits>;

struct MemoryDeviceTraits {
    using Handle = HDC;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle device) noexcept { return DeleteDC(device) != FALSE; }
};
using MemoryDevice = UniqueHandle<MemoryDeviceTraits>;

struct ModuleTraits {
    using Handle = HMODULE;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle module) noexcept { return FreeLibrary(module) != FALSE; }
};
using ModuleHandle = UniqueHandle<ModuleTraits>;
