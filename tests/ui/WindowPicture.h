#pragma once

#include <cstddef>
#include <string>
#include <vector>
#include <windows.h>

// What a window that is on the screen shows inside its border.
struct WindowPicture {
    int width = 0;
    std::vector<DWORD> pixels;

    bool operator==(const WindowPicture&) const = default;
};

// Of a window that has been painted.
[[nodiscard]] WindowPicture PictureOf(HWND window);

// Where two pictures differ, for the report of a failure.
[[nodiscard]] std::string Difference(const WindowPicture& left, const WindowPicture& right);
