#pragma once

#include "common/Twips.h"

#include <windows.h>

// Where a top-level window stands on the screen.  Screen positions are counted in the primary
// screen's resolution, whatever screen the window is on: only so does a position that was kept name
// the same pixels again.

[[nodiscard]] TwipsRect BoundsOfWindow(HWND window);
void MoveWindowTo(HWND window, const TwipsRect& bounds);
[[nodiscard]] TwipsSize SizeOfScreen(); // of the primary screen

// Outer width in pixels as it is seen: the client area and a border line on either side.  The rest
// of a resize border is invisible, and a window that is still hidden does not tell how wide that
// is.
[[nodiscard]] int VisibleWidth(HWND window);

// Client size in pixels; the window's left and top stay.
void ResizeClientArea(HWND window, SIZE client);

// Over the owner; on the work area of the screen when there is none to be seen.
void CentreOnOwner(HWND window);
