#pragma once

#include "platform/Handles.h"

// Paints a window in memory first, so that it never flickers (WM_PAINT).  What was drawn appears
// when the object goes.
class BufferedPaint {
public:
    explicit BufferedPaint(HWND window);
    BufferedPaint(const BufferedPaint&) = delete;
    BufferedPaint& operator=(const BufferedPaint&) = delete;
    ~BufferedPaint();

    [[nodiscard]] HDC Device() const noexcept { return memory_.Get(); }
    [[nodiscard]] RECT Area() const noexcept { return area_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    RECT area_{};
    MemoryDevice memory_;
    BitmapHandle bitmap_;
    HGDIOBJ before_;
};
