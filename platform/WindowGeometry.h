#pragma once

#include "common/TwipsRect.h"
#include "common/TwipsSize.h"

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

// A window of the size in the middle of the place, moved into the work area when it would leave it.
// One that is larger than the work area has its left and top edge there.
[[nodiscard]] RECT CentredIn(const RECT& place, SIZE size, const RECT& workArea);

// Of the screen that holds most of the window; of the primary screen for null.
[[nodiscard]] RECT WorkAreaOf(HWND window);

// Over the owner and inside the work area of its screen, also when the window changes its size as
// it comes to that screen; on the primary screen's work area when no owner is to be seen.
void CentreOnOwner(HWND window);
