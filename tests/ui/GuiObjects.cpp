#include "tests/ui/GuiObjects.h"

#include <cstdint>
#include <windows.h>

namespace {

template <typename Handle>
Handle HandleOf(std::uintptr_t number) {
    return reinterpret_cast<Handle>(number);
}

bool IsOwnWindow(HWND window) {
    DWORD process = 0;
    return GetWindowThreadProcessId(window, &process) != 0 && process == GetCurrentProcessId();
}

// The lower half of a handle is its number in a table of at most 64 Ki entries.
GuiObjects TryEveryHandle() {
    GuiObjects found;
    for (std::uintptr_t number = 1; number <= 0xFFFF; ++number) {
        found.gdi += GetObjectType(HandleOf<HGDIOBJ>(number)) != 0 ? 1U : 0U;
        found.user += IsOwnWindow(HandleOf<HWND>(number)) ? 1U : 0U;
        found.user += IsMenu(HandleOf<HMENU>(number)) != FALSE ? 1U : 0U;
    }
    return found;
}

} // namespace

GuiObjects CountGuiObjects() {
    const HANDLE process = GetCurrentProcess();
    const GuiObjects told{GetGuiResources(process, GR_GDIOBJECTS),
                          GetGuiResources(process, GR_USEROBJECTS)};
    return told.gdi != 0 ? told : TryEveryHandle();
}
