#pragma once

#include <windows.h>

// While it lives, the first box of the system that this thread opens for the owner is moved over
// the owner as it appears.  The system itself puts it in the middle of a screen, which between
// screens of different scale is the wrong place.  Null, or an owner that is not to be seen: the box
// stands where the system puts it.
class CentredBox {
public:
    explicit CentredBox(HWND owner);
    CentredBox(const CentredBox&) = delete;
    CentredBox& operator=(const CentredBox&) = delete;
    ~CentredBox();

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) noexcept;
    void Activated(HWND window) noexcept;

    HWND owner_;
    CentredBox* outer_; // of a box that is open already
    HHOOK hook_ = nullptr;
    bool isPlaced_ = false;
};
