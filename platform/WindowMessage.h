#pragma once

#include <optional>
#include <windows.h>

// One message with its parameters.  It is always passed on, never kept: a window procedure may be
// entered again before it has returned.
struct WindowMessage {
    HWND window;
    UINT id;
    WPARAM wParam;
    LPARAM lParam;
};

// What a handler returns; nothing: not handled, the default takes place.
using MessageResult = std::optional<LRESULT>;

// The position of a mouse message, in pixels of its window.
[[nodiscard]] inline POINT PointOf(const WindowMessage& message) noexcept {
    return {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
}
