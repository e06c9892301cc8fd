#pragma once

#include "mainwindow/NodeTip.h"
#include "mainwindow/panes/ColorPictures.h"
#include "platform/DpiScale.h"

#include <string>

// The first colors of a group side by side, and behind them how many more there are: "+ 3".
class ColorStrip {
public:
    // Pixels; nothing for a tip without colors.
    [[nodiscard]] static SIZE SizeOf(const NodeTip& tip, const DpiScale& scale, HFONT font);

    // Over what the device shows; at: upper left corner, pixels.
    void Paint(HDC device, POINT at, const NodeTip& tip, const DpiScale& scale, HFONT font);

private:
    ColorPictures pictures_;
};
