#pragma once

#include "common/ports/LocalizableForm.h"
#include "platform/ToolTips.h"
#include "platform/controls/ControlHost.h"
#include "platform/WindowMessage.h"

#include <string>

// What a kind of control is called, which window class it is made of, and which property its window
// text is; empty: it has no text of its own.
struct ControlKind {
    const char* typeName;
    const wchar_t* windowClass;
    const char* textProperty;
};

// A control that stands on a form: its name, its number, and the window that it stands in.
struct ControlPlace {
    const char* name;
    int id;
    HWND parent;
};

// A child window.  The form owns this object; the window is destroyed by its parent.
class Control : public FormControl {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    ~Control() override;

    [[nodiscard]] HWND Handle() const noexcept { return window_; }
    [[nodiscard]] std::string Name() const override { return name_; }
    [[nodiscard]] std::string TypeName() const override { return kind_.typeName; }
    [[nodiscard]] std::string Property(const std::string& property) const override;
    void SetProperty(const std::string& property, const std::string& text) override;
    [[nodiscard]] bool IsEnabled() const override { return IsWindowEnabled(window_) != FALSE; }
    void SetEnabled(bool enabled) override { EnableWindow(window_, enabled ? TRUE : FALSE); }

    // What its tool tip says just now; empty: nothing.
    [[nodiscard]] virtual std::string TipText() const { return IsTextCut() ? Text() : toolTip_; }
    [[nodiscard]] virtual ControlTip Tip() const { return {.text = TipText()}; }

    [[nodiscard]] std::string Text() const;
    virtual void SetText(const std::string& text);

    void Place(const RECT& bounds); // pixels of the parent
    void Show(bool shown);
    [[nodiscard]] bool IsShown() const noexcept; // also while its form is hidden
    [[nodiscard]] RECT Bounds() const noexcept;  // pixels of the parent
    void Focus() { SetFocus(window_); }

    // Notifications that the parent got from this control.
    virtual void OnCommand(WPARAM) {} // HIWORD: code
    virtual MessageResult OnNotify(NMHDR&) { return {}; }
    virtual MessageResult OnScroll(unsigned) { return {}; }
    virtual MessageResult OnColor(HDC) { return {}; }

    // The form's font and resolution are new.
    virtual void ApplyScale();

protected:
    Control(ControlHost& host, const ControlKind& kind, const ControlPlace& place, DWORD style,
            DWORD extendedStyle = 0);

    // Messages that the window itself gets, before its class handles them.
    virtual MessageResult OnMessage(const WindowMessage&) { return {}; }

    [[nodiscard]] ControlHost& Host() const noexcept { return host_; }
    [[nodiscard]] const DpiScale& Scale() const noexcept;
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT Send(UINT message, WPARAM wParam, const void* structure) const;
    // A control whose text may be longer than its place: the tool tip shows the whole of it.
    void TipShowsCutText();
    [[nodiscard]] virtual bool IsTextCut() const { return false; }
    // The pointer is over a part of the control, whatever numbers its parts have: a tool tip of
    // another part goes.
    void TipIsFor(LPARAM part);
    [[nodiscard]] POINT Pointer() const noexcept; // pixels of the control

    // What the window's class does with the message.
    [[nodiscard]] static LRESULT Default(const WindowMessage& message);

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT id, WPARAM wParam,
                                            LPARAM lParam) noexcept;
    LRESULT Answer(const WindowMessage& message) noexcept;
    [[nodiscard]] bool HasTextProperty(const std::string& property) const;

    [[nodiscard]] bool MayHaveTip() const noexcept { return tipShowsCutText_ || !toolTip_.empty(); }
    void RequestTip() const;
    void MakeTip();
    void UpdateTip();

    ControlHost& host_;
    ControlKind kind_;
    std::string name_;
    std::string toolTip_;
    bool hasTip_ = false; // the form's tool tips know of this control
    bool tipShowsCutText_ = false;
    LPARAM tipPart_ = -1;
    HWND window_;
};

// Calls an event handler that may not have been set.
template <typename Handler, typename... Arguments>
void Raise(const Handler& handler, Arguments&&... arguments) {
    if (handler)
        handler(std::forward<Arguments>(arguments)...);
}
