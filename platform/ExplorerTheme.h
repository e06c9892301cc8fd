#pragma once

#include <windows.h>

// Gives a list or tree the look that it has in the system's own file windows.
//
// The library of the themes is asked for by its name at run time: one that the loader brings in
// with the program is looked for in the program's own folder first, where anybody could have put
// another.
void UseExplorerTheme(HWND window) noexcept;
