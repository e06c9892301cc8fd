#include "platform/WindowGeometry.h"

#include "platform/DpiScale.h"

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
    SetWindowPos(window, nullptr, 0, 0, WidthOf(outer) - WidthOf(inner) + client.cx,
                 HeightOf(outer) - HeightOf(inner) + client.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CentreOnOwner(HWND window) {
    RECT bounds{};
    RECT place{};
    GetWindowRect(window, &bounds);
    const HWND owner = GetWindow(window, GW_OWNER);
    if (owner != nullptr && IsWindowVisible(owner) != FALSE && IsIconic(owner) == FALSE)
        GetWindowRect(owner, &place);
    else
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &place, 0);
    SetWindowPos(window, nullptr, place.left + (WidthOf(place) - WidthOf(bounds)) / 2,
                 place.top + (HeightOf(place) - HeightOf(bounds)) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
