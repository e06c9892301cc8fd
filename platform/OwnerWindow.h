#pragma once

#include <functional>
#include <windows.h>

// Gives the window that owns what is shown next; null while there is none.
using OwnerWindow = std::function<HWND()>;
