#include "platform/controls/Control.h"

#include "common/RuntimeError.h"
#include "platform/ClassProcedure.h"
#include "platform/controls/NoSuchMember.h"
#include "platform/DpiScale.h"
#include "platform/Guarded.h"
#include "platform/Utf16.h"

#include <utility>

namespace {

constexpr UINT_PTR kTipTimer = 0x54495053; // beside those of the window's class

} // namespace

Control::Control(ControlHost& host, const ControlKind& kind, const ControlPlace& place, DWORD style,
                 DWORD extendedStyle)
    : host_(host), kind_(kind), name_(place.name),
      window_(CreateWindowExW(extendedStyle, kind.windowClass, L"",
                              style | WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, place.parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(place.id)),
                              GetModuleHandleW(nullptr), nullptr)) {
    if (window_ == nullptr)
        throw RuntimeError(ErrorNumber::Internal, ErrorTexts::NoWindow, {name_});
    // A procedure of its own instead of a subclass of the platform's: to find that takes two looks
    // at the window's properties for each message, and those are a question to another process on
    // some platforms.
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowProcedure));
    SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(host.Font()), FALSE);
}

// Only a control that could not be built to its end still has its window: the form's goes first.
Control::~Control() {
    if (window_ == nullptr)
        return;
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

LRESULT CALLBACK Control::WindowProcedure(HWND window, UINT id, WPARAM wParam,
                                          LPARAM lParam) noexcept {
    const WindowMessage message{window, id, wParam, lParam};
    auto* control = reinterpret_cast<Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (control != nullptr && id == WM_NCDESTROY)
        control->window_ = nullptr; // the system gives the handle to other windows
    if (control == nullptr || id == WM_NCDESTROY || control->host_.IsClosing())
        return AnswerOfClass(message);
    if (id == WM_MOUSEMOVE)
        control->RequestTip();
    if (id == WM_TIMER && wParam == kTipTimer) {
        control->MakeTip();
        return 0;
    }
    const LRESULT result = control->Answer(message);
    // Not every class paints the whole of a window that has another size: what it keeps is old.
    if (id == WM_SIZE)
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    return result;
}

LRESULT Control::Answer(const WindowMessage& message) noexcept {
    if (message.id == WM_SETFOCUS)
        host_.RememberFocus(window_);
    MessageResult result;
    const bool succeeded = RunGuarded(host_.Errors(), [&] { result = OnMessage(message); });
    if (result || !succeeded)
        return result.value_or(0);
    return Default(message);
}

bool Control::HasTextProperty(const std::string& property) const {
    return *kind_.textProperty != '\0' && property == kind_.textProperty;
}

std::string Control::Property(const std::string& property) const {
    if (HasTextProperty(property))
        return Text();
    if (property == "ToolTipText")
        return toolTip_;
    ThrowNoSuchMember(name_, property);
}

void Control::SetProperty(const std::string& property, const std::string& text) {
    if (HasTextProperty(property)) {
        SetText(text);
        host_.RequestLayout(); // the text may need another width
    } else if (property == "ToolTipText") {
        toolTip_ = text;
        UpdateTip();
    } else {
        ThrowNoSuchMember(name_, property);
    }
}

void Control::TipShowsCutText() {
    tipShowsCutText_ = true;
    UpdateTip();
}

void Control::TipIsFor(LPARAM part) {
    if (std::exchange(tipPart_, part) != part)
        UpdateTip();
}

POINT Control::Pointer() const noexcept {
    POINT at{};
    GetCursorPos(&at);
    ScreenToClient(window_, &at);
    return at;
}

// Made when the pointer rests here for the first time, which it does over few controls, and after
// everything else that waits: a window that comes up below the pointer is painted first.
void Control::RequestTip() const {
    if (!hasTip_ && MayHaveTip())
        SetTimer(window_, kTipTimer, USER_TIMER_MINIMUM, nullptr);
}

void Control::MakeTip() {
    KillTimer(window_, kTipTimer);
    POINT at{};
    GetCursorPos(&at);
    if (hasTip_ || WindowFromPoint(at) != window_)
        return;
    hasTip_ = true;
    UpdateTip();
    ScreenToClient(window_, &at);
    host_.Tips().Relay({window_, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y)});
}

void Control::UpdateTip() {
    if (hasTip_)
        host_.Tips().Set(host_.Handle(), window_, MayHaveTip());
}

std::string Control::Text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window_)) + 1, L'\0');
    const int length = GetWindowTextW(window_, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return ToUtf8(text);
}

void Control::SetText(const std::string& text) {
    SetWindowTextW(window_, ToUtf16(text).c_str());
}

void Control::Place(const RECT& bounds) {
    const RECT before = Bounds();
    if (EqualRect(&before, &bounds) != FALSE)
        return;
    SetWindowPos(window_, nullptr, bounds.left, bounds.top, WidthOf(bounds), HeightOf(bounds),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Control::Show(bool shown) {
    ShowWindow(window_, shown ? SW_SHOWNA : SW_HIDE);
}

bool Control::IsShown() const noexcept {
    return (GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
}

RECT Control::Bounds() const noexcept {
    RECT bounds{};
    GetWindowRect(window_, &bounds);
    MapWindowPoints(nullptr, GetParent(window_), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
}

void Control::ApplyScale() {
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(host_.Font()), TRUE);
}

const DpiScale& Control::Scale() const noexcept {
    return host_.Scale();
}

LRESULT Control::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(window_, message, wParam, lParam);
}

LRESULT Control::Send(UINT message, WPARAM wParam, const void* structure) const {
    return SendMessageW(window_, message, wParam, reinterpret_cast<LPARAM>(structure));
}

LRESULT Control::Default(const WindowMessage& message) {
    return AnswerOfClass(message);
}
