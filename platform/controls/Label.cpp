#include "platform/controls/Label.h"

#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

#include <cstdlib>

namespace {

constexpr ControlKind kLabel{"Label", WC_STATICW, "Caption"};

// SS_NOTIFY: a label without it is transparent to the mouse and would never show its tool tip.
// SS_EDITCONTROL: a word that is longer than the label goes on in its next line.
constexpr DWORD kLabelStyle = WS_VISIBLE | SS_LEFT | SS_NOTIFY | SS_EDITCONTROL;

int Brightness(COLORREF color) {
    return (GetRValue(color) * 3 + GetGValue(color) * 6 + GetBValue(color)) / 10;
}

// The system's link color; some themes leave it as light as the ground.
COLORREF LinkColor(int ground) {
    constexpr int kSmallestContrast = 80;
    const COLORREF link = GetSysColor(COLOR_HOTLIGHT);
    const int contrast = Brightness(GetSysColor(ground)) - Brightness(link);
    const int text = ground == COLOR_WINDOW ? COLOR_WINDOWTEXT : COLOR_BTNTEXT;
    return std::abs(contrast) >= kSmallestContrast ? link : GetSysColor(text);
}

// A key that is held down repeats its message.
bool IsFirstOfKey(LPARAM keyMessage) {
    return (HIWORD(keyMessage) & KF_REPEAT) == 0;
}

// Enter goes to the link that has the focus, not to the default button.
bool IsEnter(LPARAM dialogMessage) {
    const auto* message = reinterpret_cast<const MSG*>(dialogMessage);
    return message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
}

} // namespace

Label::Label(ControlHost& host, const ControlPlace& place, LabelText kind)
    : Control(host, kLabel, place, kLabelStyle | (kind == LabelText::Plain ? SS_NOPREFIX : 0U)) {}

void Label::SetProperty(const std::string& property, const std::string& text) {
    Control::SetProperty(property, text);
    if (announced_ != nullptr && property == "ToolTipText")
        announced_->SetText(text.empty() ? Text() : text);
}

void Label::SetFont(HFONT font) {
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

HFONT Label::CurrentFont() const {
    return reinterpret_cast<HFONT>(Send(WM_GETFONT));
}

SIZE Label::TextSize(int maximumWidth) const {
    return MeasureText(CurrentFont(), ToUtf16(Text()), maximumWidth);
}

NameLabel::NameLabel(ControlHost& host, const ControlPlace& place)
    : Label(host, place, LabelText::Plain) {
    SetWindowLongPtrW(Handle(), GWL_STYLE,
                      GetWindowLongPtrW(Handle(), GWL_STYLE) |
                          static_cast<LONG_PTR>(SS_ENDELLIPSIS));
    TipShowsCutText();
}

bool NameLabel::IsTextCut() const {
    return TextSize().cx > WidthOf(Bounds());
}

LinkLabel::LinkLabel(ControlHost& host, const ControlPlace& place, int ground)
    : Painted(host, place, LabelText::Plain), ground_(ground) {
    SetWindowLongPtrW(Handle(), GWL_STYLE,
                      GetWindowLongPtrW(Handle(), GWL_STYLE) | static_cast<LONG_PTR>(WS_TABSTOP));
}

// The second press of a double click is none of its own.
void LinkLabel::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == STN_CLICKED)
        Raise(onClick);
}

MessageResult LinkLabel::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        return 1;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        Repaint();
        return {};
    case WM_GETDLGCODE:
        return DLGC_BUTTON | (IsEnter(message.lParam) ? DLGC_WANTMESSAGE : 0);
    case BM_CLICK:
        Raise(onClick);
        return 0;
    case WM_KEYDOWN:
        if (IsFirstOfKey(message.lParam) &&
            (message.wParam == VK_SPACE || message.wParam == VK_RETURN))
            Raise(onClick);
        return 0;
    default:
        return Painted::OnMessage(message);
    }
}

void LinkLabel::Paint(const Canvas& canvas, const RECT& area) const {
    const FontHandle font = UnderlinedFont(Host().Font());
    canvas.Fill(area, GetSysColor(ground_));
    canvas.WithFont(font.Get())
        .Text(Text(), area, LinkColor(ground_), DT_WORDBREAK | DT_EDITCONTROL);
    if (GetFocus() == Handle())
        canvas.FocusFrame(area);
}
