#include "platform/Form.h"

#include "common/RuntimeError.h"
#include "platform/Fonts.h"
#include "platform/Guarded.h"
#include "platform/IconList.h"
#include "platform/Utf16.h"
#include "platform/WindowGeometry.h"

#include <algorithm>

namespace {

constexpr UINT kLayoutMessage = WM_APP + 1;

HINSTANCE Module() noexcept {
    return GetModuleHandleW(nullptr);
}

int ShowCommand(WindowState state) noexcept {
    switch (state) {
    case WindowState::Minimised:
        return SW_SHOWMINIMIZED;
    case WindowState::Maximised:
        return SW_SHOWMAXIMIZED;
    default:
        return SW_SHOWNORMAL;
    }
}

// Enter presses the button that has the focus; while another control has it, the default button.
int ButtonForEnter(int defaultButton) {
    const HWND focus = GetFocus();
    const LRESULT code = focus != nullptr ? SendMessageW(focus, WM_GETDLGCODE, 0, 0) : 0;
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0 ? GetDlgCtrlID(focus)
                                                                     : defaultButton;
}

// Also to controls that stand in a frame.
void ForwardToControls(const WindowMessage& message) {
    const auto forward = [](HWND control, LPARAM parameter) -> BOOL {
        const auto& forwarded = *reinterpret_cast<const WindowMessage*>(parameter);
        SendMessageW(control, forwarded.id, forwarded.wParam, forwarded.lParam);
        return TRUE;
    };
    EnumChildWindows(message.window, forward, reinterpret_cast<LPARAM>(&message));
}

} // namespace

Form::Form(const FormDesign& design, ErrorSink& errors)
    : class_(design.name, WindowProcedure), name_(ToUtf8(design.name)), errors_(errors),
      minimumSize_(design.minimumSize) {
    // Which screen it comes to is known when it is there; it seldom is one of another scale.
    const DpiScale expected(DpiOfScreen());
    CreateWindowExW(design.extendedStyle, design.name, design.caption, design.style, CW_USEDEFAULT,
                    CW_USEDEFAULT, expected.FromDesign(design.size.cx),
                    expected.FromDesign(design.size.cy), design.owner, nullptr, Module(), this);
    if (window_ == nullptr)
        throw RuntimeError(ErrorNumber::Internal, ErrorTexts::NoWindow, {name_});
    scale_ = DpiScale(DpiOfWindow(window_));
    font_ = MessageFont(static_cast<unsigned>(scale_.Dpi()));
    RemoveSizeCommands();
    if (scale_.Dpi() != expected.Dpi())
        SetWindowPos(window_, nullptr, 0, 0, scale_.FromDesign(design.size.cx),
                     scale_.FromDesign(design.size.cy), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Form::~Form() {
    // The parts that a derived form added are gone already: nothing is reported any more.
    closing_ = true;
    if (window_ != nullptr)
        DestroyWindow(window_);
}

Form* Form::FromWindow(HWND window) noexcept {
    const HWND root = GetAncestor(window, GA_ROOT);
    if (root == nullptr || GetWindowThreadProcessId(root, nullptr) != GetCurrentThreadId())
        return nullptr;
    // The class's: other programs put procedures of their own before that of a single window.
    const auto procedure = reinterpret_cast<WNDPROC>(GetClassLongPtrW(root, GCLP_WNDPROC));
    if (procedure != &Form::WindowProcedure)
        return nullptr;
    return reinterpret_cast<Form*>(GetWindowLongPtrW(root, GWLP_USERDATA));
}

LRESULT CALLBACK Form::WindowProcedure(HWND window, UINT id, WPARAM wParam,
                                       LPARAM lParam) noexcept {
    if (id == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        static_cast<Form*>(creation->lpCreateParams)->window_ = window;
    }
    auto* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (form == nullptr || form->closing_)
        return DefWindowProcW(window, id, wParam, lParam);
    return form->Answer({window, id, wParam, lParam});
}

LRESULT Form::Answer(const WindowMessage& message) noexcept {
    MessageResult result;
    const bool succeeded = RunGuarded(errors_, [&] { result = OnMessage(message); });
    if (result)
        return *result;
    // After an error only painting falls back to the default: an invalid area would come again for
    // ever, while the default of a close box would destroy the window.
    if (!succeeded && message.id != WM_PAINT)
        return 0;
    return DefWindowProcW(message.window, message.id, message.wParam, message.lParam);
}

MessageResult Form::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_COMMAND:
        return OfferCommand(message);
    case WM_NOTIFY:
        return OfferNotification(message);
    case WM_HSCROLL:
        return OfferScroll(message);
    case WM_CTLCOLORSTATIC:
        return OfferColor(message);
    case WM_CLOSE:
        OnCloseBox();
        return 0;
    case WM_SETFOCUS:
        RestoreFocus();
        return 0;
    case WM_SYSCOMMAND:
        return IsRefused(message.wParam) ? MessageResult(0) : MessageResult();
    case DM_GETDEFID: {
        const int button = ButtonForEnter(defaultButton_);
        return button != 0 ? MAKELRESULT(button, DC_HASDEFID) : 0;
    }
    default:
        return OnAppearanceMessage(message);
    }
}

MessageResult Form::OnAppearanceMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_DPICHANGED:
        ChangeScale(LOWORD(message.wParam), reinterpret_cast<const RECT*>(message.lParam));
        return 0;
    case WM_SETTINGCHANGE:
        if (message.wParam == SPI_SETNONCLIENTMETRICS) { // texts have another size
            ApplyScale();
            LayOut();
        }
        return {};
    case WM_SYSCOLORCHANGE:
        ForwardToControls(message);
        return {};
    case WM_SHOWWINDOW:
        if (message.wParam != FALSE && !bigIcon_) // it is seen for the first time
            LoadIcons();
        return {};
    case WM_GETMINMAXINFO:
        LimitSize(*reinterpret_cast<MINMAXINFO*>(message.lParam));
        return 0;
    case WM_SIZE:
        if (HasOneSize()) // another one was given to it from outside, by a window manager
            RequestLayout();
        return {};
    case kLayoutMessage:
        if (layoutRequested_)
            LayOut();
        return 0;
    default:
        return {};
    }
}

Control* Form::FindControl(HWND window) const noexcept {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [window](const auto& each) {
        return each->Handle() == window;
    });
    return window != nullptr && found != controls_.end() ? found->get() : nullptr;
}

MessageResult Form::OfferCommand(const WindowMessage& message) {
    const auto sender = reinterpret_cast<HWND>(message.lParam);
    const int id = LOWORD(message.wParam);
    if (Control* control = FindControl(sender))
        control->OnCommand(message.wParam);
    else if (id == IDCANCEL)
        OnCancelKey();
    else if (sender == nullptr && id != IDOK) // IDOK: Enter in a form without a default button
        OnMenuCommand(id);
    return 0;
}

MessageResult Form::OfferNotification(const WindowMessage& message) {
    auto& header = *reinterpret_cast<NMHDR*>(message.lParam);
    if (header.hwndFrom == tips_.Window())
        return AnswerTips(header);
    Control* control = FindControl(header.hwndFrom);
    return control != nullptr ? control->OnNotify(header) : MessageResult();
}

MessageResult Form::AnswerTips(NMHDR& header) {
    if (header.code == TTN_GETDISPINFOW)
        GiveTip(reinterpret_cast<NMTTDISPINFOW&>(header));
    else if (header.code == NM_CUSTOMDRAW)
        return PaintTip(reinterpret_cast<const NMTTCUSTOMDRAW&>(header));
    return 0;
}

void Form::GiveTip(NMTTDISPINFOW& request) {
    const Control* control = FindControl(reinterpret_cast<HWND>(request.hdr.idFrom));
    tip_ = control != nullptr ? control->Tip() : ControlTip();
    tipText_ = ToUtf16(tip_.text);
    request.lpszText = tipText_.data();
    tips_.MakeRoomAbove(tipText_, tip_.picture);
}

LRESULT Form::PaintTip(const NMTTCUSTOMDRAW& stage) const {
    if (!tip_.paint)
        return CDRF_DODEFAULT;
    if (stage.nmcd.dwDrawStage == CDDS_PREPAINT)
        return CDRF_NOTIFYPOSTPAINT;
    if (stage.nmcd.dwDrawStage == CDDS_POSTPAINT)
        tip_.paint(stage.nmcd.hdc, ToolTips::kPictureStart);
    return CDRF_DODEFAULT;
}

MessageResult Form::OfferScroll(const WindowMessage& message) {
    if (Control* control = FindControl(reinterpret_cast<HWND>(message.lParam)))
        return control->OnScroll(LOWORD(message.wParam));
    return {};
}

MessageResult Form::OfferColor(const WindowMessage& message) {
    Control* control = FindControl(reinterpret_cast<HWND>(message.lParam));
    return control != nullptr ? control->OnColor(reinterpret_cast<HDC>(message.wParam))
                              : MessageResult();
}

void Form::ChangeScale(unsigned dpi, const RECT* suggested) {
    scale_ = DpiScale(dpi);
    ApplyScale();
    if (suggested != nullptr && !moving_)
        SetWindowPos(window_, nullptr, suggested->left, suggested->top, WidthOf(*suggested),
                     HeightOf(*suggested), SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

void Form::ApplyScale() {
    FontHandle before = std::exchange(font_, MessageFont(static_cast<unsigned>(scale_.Dpi())));
    if (bigIcon_)
        LoadIcons();
    for (const auto& control : controls_)
        control->ApplyScale();
    OnScaleChanged();
    InvalidateRect(window_, nullptr, TRUE);
}

void Form::LoadIcons() {
    const auto load = [this](int designPixels, WPARAM kind, IconHandle& icon) {
        IconHandle loaded = LoadProgramIcon(scale_.FromDesign(designPixels));
        SendMessageW(window_, WM_SETICON, kind, reinterpret_cast<LPARAM>(loaded.Get()));
        icon = std::move(loaded);
    };
    load(32, ICON_BIG, bigIcon_);
    load(16, ICON_SMALL, smallIcon_);
}

// A window of one size; a window manager may offer more than the style does.
void Form::RemoveSizeCommands() const noexcept {
    if (HasOneSize())
        for (const UINT command :
             {UINT{SC_SIZE}, UINT{SC_MINIMIZE}, UINT{SC_MAXIMIZE}, UINT{SC_RESTORE}})
            RemoveMenu(GetSystemMenu(window_, FALSE), command, MF_BYCOMMAND);
}

bool Form::HasOneSize() const noexcept {
    return (GetWindowLongPtrW(window_, GWL_STYLE) & WS_THICKFRAME) == 0;
}

// The low bits of the command are the system's own.
bool Form::IsRefused(WPARAM systemCommand) const noexcept {
    const WPARAM command = systemCommand & 0xFFF0U;
    return HasOneSize() && (command == SC_SIZE || command == SC_MINIMIZE || command == SC_MAXIMIZE);
}

void Form::LimitSize(MINMAXINFO& limits) const noexcept {
    if (minimumSize_.cx > 0)
        limits.ptMinTrackSize = {scale_.FromDesign(minimumSize_.cx),
                                 scale_.FromDesign(minimumSize_.cy)};
}

void Form::RestoreFocus() noexcept {
    const bool usable = lastFocus_ != nullptr && IsChild(window_, lastFocus_) != FALSE &&
                        IsWindowVisible(lastFocus_) != FALSE;
    const HWND target = usable ? lastFocus_ : GetNextDlgTabItem(window_, nullptr, FALSE);
    if (target != nullptr && target != window_)
        SetFocus(target);
}

bool Form::TranslateKeys(MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST)
        return false;
    return TranslateShortcut(message) || IsDialogMessageW(window_, &message) != FALSE;
}

void Form::RequestLayout() noexcept {
    if (!std::exchange(layoutRequested_, true))
        PostMessageW(window_, kLayoutMessage, 0, 0);
}

void Form::LayOut() {
    layoutRequested_ = false;
    OnLayout();
}

void Form::Show() {
    ShowWindow(window_, TakeShowCommand());
}

int Form::TakeShowCommand() noexcept {
    return ShowCommand(std::exchange(hiddenState_, WindowState::Normal));
}

void Form::Hide() {
    ShowWindow(window_, SW_HIDE);
}

void Form::MoveOuter(const TwipsRect& bounds) {
    moving_ = true;
    MoveWindowTo(window_, bounds);
    moving_ = false;
}

WindowState Form::StateOfWindow() const {
    return IsWindowVisible(window_) != FALSE ? ShownState() : hiddenState_;
}

WindowState Form::ShownState() const {
    if (IsIconic(window_) != FALSE)
        return WindowState::Minimised;
    return IsZoomed(window_) != FALSE ? WindowState::Maximised : WindowState::Normal;
}

// The platform cannot maximise a window without showing it: a hidden one takes the state when it is
// shown.
void Form::ChangeState(WindowState state) {
    hiddenState_ = state;
    if (IsWindowVisible(window_) != FALSE)
        Show();
}

RECT Form::ClientArea() const noexcept {
    RECT area{};
    GetClientRect(window_, &area);
    return area;
}
