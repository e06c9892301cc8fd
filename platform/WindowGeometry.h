#pragma once

#include "common/Twips.h"

#include <windows.h>

// Where a top-level window stands on the screen.  Screen positions are counted in the primary
// screen's resolution, whatever screen the window is on: only so does a position that was kept name
// the same pixels again.

[[nodiscard]] TwipsRect BoundsOfWindow(HWND window);
void MoveWindowTo(HWND window, const TwipsRect& bounds);
[[nodiscard]] TwipsSize SizeOfScreen(); // of the primary screen

// Outer width in pixels as it is seen: without the invisible part of the resize border
// (DwmGetWindowAttribute, DWMWA_EXTENDED_FRAME_BOUNDS).
[[nodiscard]] int VisibleWidth(HWND window);

// Client size in pixels; the window's left and top stay.
void ResizeClientArea(HWND window, SIZE client);

// Over the owner; on the work area of the screen when there is none to be seen.
void CentreOnOwner(HWND window);
