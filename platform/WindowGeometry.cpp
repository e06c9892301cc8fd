#include "platform/WindowGeometry.h"

#include "platform/DpiScale.h"

#include <algorithm>

TwipsRect BoundsOfWindow(HWND window) {
    RECT bounds{};
    GetWindowRect(window, &bounds);
    return DpiScale(DpiOfScreen()).ToTwips(bounds);
}

void MoveWindowTo(HWND window, const TwipsRect& bounds) {
    const RECT pixels = DpiScale(DpiOfScreen()).ToPixels(bounds);
    SetWindowPos(window, nullptr, pixels.left, pixels.top, WidthOf(pixels), HeightOf(pixels),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

TwipsSize SizeOfScreen() {
    const DpiScale scale(DpiOfScreen());
    return {scale.ToTwips(GetSystemMetrics(SM_CXSCREEN)),
            scale.ToTwips(GetSystemMetrics(SM_CYSCREEN))};
}

int VisibleWidth(HWND window) {
    RECT inner{};
    GetClientRect(window, &inner);
    return WidthOf(inner) + 2 * GetSystemMetrics(SM_CXBORDER);
}

void ResizeClientArea(HWND window, SIZE client) {
    RECT outer{};
    RECT inner{};
    GetWindowRect(window, &outer);
    GetClientRect(window, &inner);
    if (WidthOf(inner) == client.cx && HeightOf(inner) == client.cy)
        return;
    SetWindowPos(window, nullptr, 0, 0, WidthOf(outer) - WidthOf(inner) + client.cx,
                 HeightOf(outer) - HeightOf(inner) + client.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

RECT CentredIn(const RECT& place, SIZE size, const RECT& workArea) {
    const LONG left = place.left + (WidthOf(place) - size.cx) / 2;
    const LONG top = place.top + (HeightOf(place) - size.cy) / 2;
    const POINT at{std::max(std::min(left, workArea.right - size.cx), workArea.left),
                   std::max(std::min(top, workArea.bottom - size.cy), workArea.top)};
    return {at.x, at.y, at.x + size.cx, at.y + size.cy};
}

RECT WorkAreaOf(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

namespace {

SIZE SizeOfWindow(HWND window) {
    RECT bounds{};
    GetWindowRect(window, &bounds);
    return {WidthOf(bounds), HeightOf(bounds)};
}

} // namespace

void CentreOnOwner(HWND window) {
    const HWND owner = GetWindow(window, GW_OWNER);
    const bool isSeen =
        owner != nullptr && IsWindowVisible(owner) != FALSE && IsIconic(owner) == FALSE;
    const RECT workArea = WorkAreaOf(isSeen ? owner : nullptr);
    RECT place = workArea;
    if (isSeen)
        GetWindowRect(owner, &place);
    // A window that comes to a screen of another scale takes another size there.
    SIZE placed{};
    for (int pass = 0; pass < 2; ++pass) {
        const SIZE size = SizeOfWindow(window);
        if (size.cx == placed.cx && size.cy == placed.cy)
            return;
        const RECT bounds = CentredIn(place, size, workArea);
        SetWindowPos(window, nullptr, bounds.left, bounds.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        placed = size;
    }
}
