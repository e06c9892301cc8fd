#pragma once

#include <windows.h>

// While it lives, the next dialog that the system opens on this thread stands in the middle of its
// owner's screen when it appears.  The system places its boxes before it gives them the size that
// the screen's scale asks for.
class CentredBox {
public:
    explicit CentredBox(HWND owner); // null: the primary screen
    CentredBox(const CentredBox&) = delete;
    CentredBox& operator=(const CentredBox&) = delete;
    ~CentredBox();

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam) noexcept;
    void Place(HWND box) const noexcept;
    static bool IsDialog(HWND window) noexcept;

    static thread_local CentredBox* current_;

    HWND owner_;
    CentredBox* before_;
    HHOOK hook_;
};
