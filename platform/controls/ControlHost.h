#pragma once

#include "common/ports/ErrorSink.h"
#include "platform/DpiScale.h"
#include "platform/ToolTips.h"

#include <windows.h>

// What a control asks of the form that it stands on.
class ControlHost {
public:
    ControlHost() = default;
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;

    [[nodiscard]] virtual HWND Handle() const noexcept = 0;
    [[nodiscard]] virtual const DpiScale& Scale() const noexcept = 0;
    [[nodiscard]] virtual HFONT Font() const noexcept = 0;
    [[nodiscard]] virtual ErrorSink& Errors() const noexcept = 0;
    [[nodiscard]] virtual ToolTips& Tips() noexcept = 0;

    // Nothing is reported any more.
    [[nodiscard]] virtual bool IsClosing() const noexcept = 0;

    // The control has the focus: it gets it again when the form does.  A text box that a control
    // opens in itself is no control of the form.
    virtual void RememberFocus(HWND control) noexcept = 0;

    // Lays the form out once after the messages that are waiting.
    virtual void RequestLayout() noexcept = 0;

protected:
    ~ControlHost() = default;
};
