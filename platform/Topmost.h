#pragma once

#include <windows.h>

// Above all windows that are not topmost (true), or back among them (false): SetWindowPos with
// HWND_TOPMOST or HWND_NOTOPMOST and SWP_NOMOVE | SWP_NOSIZE; the result is not checked.
void MakeWindowTopmost(HWND window, bool onTop);
