#pragma once

#include "common/ports/ErrorSink.h"
#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"
#include "platform/controls/Control.h"
#include "platform/controls/ControlHost.h"
#include "platform/DpiScale.h"
#include "platform/FormClass.h"
#include "platform/Handles.h"
#include "platform/ToolTips.h"
#include "platform/Topmost.h"
#include "platform/WindowGeometry.h"
#include "platform/WindowMessage.h"

#include <commctrl.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

struct FormDesign {
    const wchar_t* name; // window class and Name of the form
    const wchar_t* caption;
    DWORD style;
    DWORD extendedStyle;
    HWND owner;
    SIZE size;        // outer, in design pixels
    SIZE minimumSize; // outer, in design pixels; 0: the system's
};

inline constexpr DWORD kDialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;

// A top-level window.  It is made hidden and destroyed with this object.  Its window procedure
// offers each notification to the control that sent it, scales the window to the screen that it is
// on, and hands every exception to the error sink.
class Form : public ControlHost {
public:
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    // The form that the window belongs to, as a whole or as a part; null: none of this program.
    [[nodiscard]] static Form* FromWindow(HWND window) noexcept;

    [[nodiscard]] HWND Handle() const noexcept final { return window_; }
    [[nodiscard]] const DpiScale& Scale() const noexcept final { return scale_; }
    [[nodiscard]] HFONT Font() const noexcept final { return font_.Get(); }
    [[nodiscard]] ErrorSink& Errors() const noexcept final { return errors_; }
    [[nodiscard]] ToolTips& Tips() noexcept final { return tips_; }
    [[nodiscard]] bool IsClosing() const noexcept final { return closing_; }
    void RememberFocus(HWND control) noexcept final { lastFocus_ = control; }
    void RequestLayout() noexcept final;

    // A control of the form; the form owns it, and its place in Controls() is that of the call.
    template <typename ControlType, typename... Arguments>
    ControlType& Add(Arguments&&... arguments) {
        auto control = std::make_unique<ControlType>(*this, std::forward<Arguments>(arguments)...);
        ControlType& reference = *control;
        controls_.push_back(std::move(control));
        designed_.push_back(&reference);
        return reference;
    }

    // Shortcuts first, then Tab, Enter, Escape and access keys.  True: the message is done with.
    bool TranslateKeys(MSG& message);

    [[nodiscard]] RECT ClientArea() const noexcept;
    // The real state, also while a hidden window waits to be shown in another one.
    [[nodiscard]] WindowState ShownState() const;

    // From now on nothing is reported, whatever happens to the window.
    void StopReporting() noexcept { closing_ = true; }

protected:
    Form(const FormDesign& design, ErrorSink& errors);

    // Something with a name but without a window: a menu entry, an image list, a timer.
    void AddDesigned(FormControl& control) { designed_.push_back(&control); }

    void SetDefaultButton(int id) noexcept { defaultButton_ = id; }

    void LayOut(); // at once; a request that is waiting is done with

    virtual MessageResult OnMessage(const WindowMessage& message);
    virtual void OnMenuCommand(int) {}
    virtual void OnCloseBox() {}
    virtual void OnCancelKey() { OnCloseBox(); }
    virtual void OnScaleChanged() {} // fonts and resolution are new
    virtual void OnLayout() {}
    virtual bool TranslateShortcut(MSG&) { return false; }

    // What FormWindow and LocalizableForm ask.
    [[nodiscard]] const std::string& FormName() const noexcept { return name_; }
    [[nodiscard]] TwipsRect OuterBounds() const { return BoundsOfWindow(window_); }
    void MoveOuter(const TwipsRect& bounds);
    [[nodiscard]] WindowState StateOfWindow() const;
    void ChangeState(WindowState state);
    void MakeTopmost(bool onTop) { MakeWindowTopmost(window_, onTop); }
    [[nodiscard]] const std::vector<FormControl*>& DesignedControls() const { return designed_; }

    void Show();
    void Hide();

    // For ShowWindow: how the hidden window is to be shown now; the next time it is normal again.
    [[nodiscard]] int TakeShowCommand() noexcept;

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT id, WPARAM wParam,
                                            LPARAM lParam) noexcept;
    [[nodiscard]] LRESULT Answer(const WindowMessage& message) noexcept;
    [[nodiscard]] Control* FindControl(HWND window) const noexcept;
    MessageResult OnAppearanceMessage(const WindowMessage& message); // scale, colors, size
    MessageResult OfferCommand(const WindowMessage& message);
    MessageResult OfferNotification(const WindowMessage& message);
    MessageResult OfferScroll(const WindowMessage& message);
    MessageResult OfferColor(const WindowMessage& message);
    MessageResult AnswerTips(NMHDR& header);
    void GiveTip(NMTTDISPINFOW& request);
    [[nodiscard]] LRESULT PaintTip(const NMTTCUSTOMDRAW& stage) const;
    void ChangeScale(unsigned dpi, const RECT* suggested);
    void ApplyScale();
    void RemoveSizeCommands() const noexcept;
    [[nodiscard]] bool HasOneSize() const noexcept;
    [[nodiscard]] bool IsRefused(WPARAM systemCommand) const noexcept;
    void LimitSize(MINMAXINFO& limits) const noexcept;
    void RestoreFocus() noexcept;
    void LoadIcons();

    FormClass class_;
    std::string name_;
    ErrorSink& errors_;
    HWND window_ = nullptr;
    DpiScale scale_;
    FontHandle font_;
    IconHandle bigIcon_;
    IconHandle smallIcon_;
    SIZE minimumSize_;
    int defaultButton_ = 0;
    HWND lastFocus_ = nullptr;
    WindowState hiddenState_ = WindowState::Normal; // taken when the window is shown
    bool closing_ = false;
    bool moving_ = false; // the size is the program's own, not the system's suggestion
    bool layoutRequested_ = false;
    ToolTips tips_;
    ControlTip tip_; // that is shown
    std::wstring tipText_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::vector<FormControl*> designed_;
};

// A form that implements the given ports; FormWindow's and LocalizableForm's parts come from Form.
template <typename... Views>
class FormOf : public Form, public Views... {
public:
    [[nodiscard]] std::string Name() const override { return FormName(); }
    [[nodiscard]] TwipsRect Bounds() const override { return OuterBounds(); }
    void Move(const TwipsRect& bounds) override { MoveOuter(bounds); }
    [[nodiscard]] WindowState State() const override { return StateOfWindow(); }
    void SetState(WindowState state) override { ChangeState(state); }
    [[nodiscard]] TwipsSize ScreenSize() const override { return SizeOfScreen(); }
    void SetTopmost(bool onTop) override { MakeTopmost(onTop); }
    [[nodiscard]] std::vector<FormControl*> Controls() override { return DesignedControls(); }

protected:
    using Form::Form;
};
