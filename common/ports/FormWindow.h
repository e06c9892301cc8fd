#pragma once

#include "common/TwipsRect.h"
#include "common/TwipsSize.h"

#include <cstdint>
#include <string>

enum class WindowState : std::int16_t { Normal = 0, Minimised = 1, Maximised = 2 };

// A top-level window as the code that keeps its position sees it.
class FormWindow {
public:
    virtual ~FormWindow() = default;

    [[nodiscard]] virtual std::string Name() const = 0; // "frmMain", ...
    [[nodiscard]] virtual TwipsRect Bounds() const = 0; // outer edges on the screen
    virtual void Move(const TwipsRect& bounds) = 0;
    [[nodiscard]] virtual WindowState State() const = 0;
    virtual void SetState(WindowState state) = 0;
    [[nodiscard]] virtual TwipsSize ScreenSize() const = 0;

    // Above all windows that are not topmost (true), or back among them (false).
    virtual void SetTopmost(bool onTop) = 0;
};
