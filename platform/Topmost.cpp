#include "platform/Topmost.h"

#include <vector>

namespace {

struct Owned {
    HWND owner;
    std::vector<HWND> windows;
};

BOOL CALLBACK CollectOwned(HWND window, LPARAM parameter) {
    auto& owned = *reinterpret_cast<Owned*>(parameter);
    if (GetWindow(window, GW_OWNER) == owned.owner)
        owned.windows.push_back(window);
    return TRUE;
}

bool IsTopmost(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

void Order(HWND window, HWND after) {
    SetWindowPos(window, after, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

// Under Wine a window cannot pass the ones that it owns: they are let go for the moment.
void OrderWithoutOwned(HWND window) {
    Owned owned{window, {}};
    EnumThreadWindows(GetCurrentThreadId(), CollectOwned, reinterpret_cast<LPARAM>(&owned));
    for (const HWND each : owned.windows)
        SetWindowLongPtrW(each, GWLP_HWNDPARENT, 0);
    Order(window, HWND_TOPMOST);
    for (const HWND each : owned.windows)
        SetWindowLongPtrW(each, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(window));
}

// Under Wine a window that stands directly above its owner would be put behind itself, and stay
// where it is.
void OrderWithoutOwner(HWND window) {
    const LONG_PTR owner = SetWindowLongPtrW(window, GWLP_HWNDPARENT, 0);
    Order(window, HWND_NOTOPMOST);
    SetWindowLongPtrW(window, GWLP_HWNDPARENT, owner);
}

} // namespace

void MakeWindowTopmost(HWND window, bool onTop) {
    Order(window, onTop ? HWND_TOPMOST : HWND_NOTOPMOST);
    if (IsTopmost(window) == onTop)
        return;
    // Wine raises the owned windows, tool tips among them, and leaves their owner where it was.
    if (onTop)
        OrderWithoutOwned(window);
    else if (GetWindow(window, GW_OWNER) != nullptr)
        OrderWithoutOwner(window);
}
