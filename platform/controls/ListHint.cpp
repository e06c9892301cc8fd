#include "platform/controls/ListHint.h"

#include "platform/Fonts.h"
#include "platform/Utf16.h"
#include "platform/WindowGeometry.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int kMargin = 16;        // design pixels around the lines
constexpr int kNarrowest = 120;    // design pixels of a line that can be read
constexpr int kLineGap = 6;        // design pixels
constexpr int kGapAfterTitle = 12; // design pixels
constexpr int kTitlePercent = 115; // of the font

} // namespace

// Arrow keys leave it for the link above or below, Tab as it leaves the list.  Its text has no
// access key, whatever characters stand in it.
class ListHint::Link : public LinkLabel {
public:
    Link(ControlHost& host, const ControlPlace& place) : LinkLabel(host, place, COLOR_WINDOW) {}

    std::function<void(int step)> onArrow; // 1: down, -1: up
    std::function<void()> onTab;

protected:
    MessageResult OnMessage(const WindowMessage& message) override {
        const bool isKey = message.id == WM_KEYDOWN;
        if (isKey && (message.wParam == VK_DOWN || message.wParam == VK_UP)) {
            Raise(onArrow, message.wParam == VK_DOWN ? 1 : -1);
            return 0;
        }
        if (isKey && message.wParam == VK_TAB) {
            Raise(onTab);
            return 0;
        }
        const MessageResult result = LinkLabel::OnMessage(message);
        if (message.id != WM_GETDLGCODE)
            return result;
        return (result.value_or(0) & ~LRESULT{DLGC_BUTTON}) | DLGC_WANTARROWS | DLGC_WANTTAB;
    }
};

// Of one line, by its kinds; that of its kind now is shown.
struct ListHint::Labels {
    std::optional<Label> text;
    std::optional<Link> link;
};

ListHint::ListHint(ControlHost& host, Control& list) : host_(host), list_(list) {}
ListHint::~ListHint() = default;

bool ListHint::Show(const std::vector<Line>& lines) {
    if (lines == lines_)
        return false;
    const std::string focused = FocusedLink();
    if (lines.empty())
        GiveFocusBack();
    for (std::size_t line = 0; line < lines_.size(); ++line)
        LabelOf(line).Show(false);
    lines_ = lines;
    MakeLabels();
    for (std::size_t line = 0; line < lines_.size(); ++line)
        LabelOf(line).SetText(lines_[line].text);
    if (!focused.empty())
        FocusLinkNamed(focused);
    return true;
}

// Text of the link that has the focus; empty: none.
std::string ListHint::FocusedLink() const {
    const HWND focused = GetFocus();
    for (std::size_t line = 0; line < lines_.size(); ++line)
        if (lines_[line].isLink && LabelOf(line).Handle() == focused)
            return lines_[line].text;
    return {};
}

// Where the lines change under the user's hand the key means what it meant.
void ListHint::FocusLinkNamed(const std::string& text) {
    const auto line = std::ranges::find(lines_, Line{.text = text, .isLink = true});
    if (line != lines_.end())
        LabelOf(static_cast<std::size_t>(line - lines_.begin())).Focus();
}

// Those that are there already stay: a click on one may be what brings other lines.
void ListHint::MakeLabels() {
    while (labels_.size() < lines_.size())
        labels_.push_back(std::make_unique<Labels>());
    for (std::size_t line = 0; line < lines_.size(); ++line) {
        if (lines_[line].isLink)
            MakeLink(line);
        else if (!labels_[line]->text)
            labels_[line]->text.emplace(host_, PlaceOf(line), LabelText::Plain);
    }
    ApplyScale();
}

void ListHint::MakeLink(std::size_t index) {
    std::optional<Link>& link = labels_[index]->link;
    if (link)
        return;
    link.emplace(host_, PlaceOf(index));
    const auto line = static_cast<std::ptrdiff_t>(index);
    link->onClick = [this, line] { Raise(onLink, static_cast<int>(line)); };
    link->onArrow = [this, line](int step) { FocusLink(line + step, step); };
    link->onTab = [this] { LeaveList(); };
}

ControlPlace ListHint::PlaceOf(std::size_t line) const noexcept {
    return {"lblHint", static_cast<int>(line) + 1, list_.Handle()};
}

void ListHint::ApplyScale() {
    if (lines_.empty())
        return;
    titleFont_ = EnlargedFont(host_.Font(), kTitlePercent, false);
    for (std::size_t line = 0; line < lines_.size(); ++line)
        LabelOf(line).ApplyScale();
    LabelOf(0).SetFont(titleFont_.Get());
}

Label& ListHint::LabelOf(std::size_t line) const {
    Labels& labels = *labels_[line];
    return lines_[line].isLink ? static_cast<Label&>(*labels.link) : *labels.text;
}

SIZE ListHint::SizeOf(std::size_t line, int width) const {
    return MeasureText(line == 0 ? titleFont_.Get() : host_.Font(), ToUtf16(lines_[line].text),
                       width, LongWords::Stay);
}

int ListHint::Gap(std::size_t line) const noexcept {
    return host_.Scale().FromDesign(line == 0 ? kGapAfterTitle : kLineGap);
}

void ListHint::Arrange(const RECT& area) {
    const int margin = host_.Scale().FromDesign(kMargin);
    const int most = WidthOf(area) - 2 * margin;
    const bool isReadable = most >= host_.Scale().FromDesign(kNarrowest);
    std::vector<SIZE> sizes;
    SIZE whole{};
    for (std::size_t line = 0; line < lines_.size(); ++line) {
        sizes.push_back(SizeOf(line, most));
        whole.cx = std::max(whole.cx, sizes.back().cx);
        whole.cy += sizes.back().cy + Gap(line);
    }
    const LONG left = (area.left + area.right - std::min<LONG>(whole.cx, most)) / 2;
    LONG top = std::max<LONG>(area.top + margin, (area.top + area.bottom - whole.cy) / 2);
    for (std::size_t line = 0; line < lines_.size(); ++line) {
        const LONG bottom = top + sizes[line].cy;
        LabelOf(line).Place({left, top, left + std::min<LONG>(sizes[line].cx, most), bottom});
        LabelOf(line).Show(isReadable && bottom <= area.bottom);
        top = bottom + Gap(line);
    }
}

MessageResult ListHint::OnMessage(const WindowMessage& message) {
    const auto sender = reinterpret_cast<HWND>(message.lParam);
    switch (message.id) {
    case WM_COMMAND:
        Clicked(sender, message.wParam);
        return {};
    case WM_CTLCOLORSTATIC:
        return ColorsOf(sender, reinterpret_cast<HDC>(message.wParam));
    case WM_KEYDOWN:
        if (message.wParam == VK_DOWN && FocusLink(0, 1))
            return 0;
        if (message.wParam == VK_UP && FocusLink(std::ssize(lines_) - 1, -1))
            return 0;
        return {};
    default:
        return {};
    }
}

// A click on a link may be what brings other lines: nothing of it is looked at afterwards.  One on
// a text is one on the list.
void ListHint::Clicked(HWND label, WPARAM code) {
    const auto link = std::ranges::find_if(labels_, [label](const auto& labels) {
        return labels->link && labels->link->Handle() == label;
    });
    if (link != labels_.end())
        (*link)->link->OnCommand(code);
    else if (HIWORD(code) == STN_CLICKED && IsLabel(label))
        list_.Focus();
}

bool ListHint::IsLabel(HWND window) const noexcept {
    return std::ranges::any_of(labels_, [window](const auto& labels) {
        return (labels->text && labels->text->Handle() == window) ||
               (labels->link && labels->link->Handle() == window);
    });
}

MessageResult ListHint::ColorsOf(HWND label, HDC device) const {
    if (!IsLabel(label))
        return {};
    SetTextColor(device, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(device, GetSysColor(COLOR_WINDOW));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
}

// The next one from a line on, upwards or downwards; beyond the ends the list has the focus.
bool ListHint::FocusLink(std::ptrdiff_t line, int step) {
    for (; line >= 0 && line < std::ssize(lines_); line += step) {
        Label& label = LabelOf(static_cast<std::size_t>(line));
        if (lines_[static_cast<std::size_t>(line)].isLink && label.IsShown()) {
            label.Focus();
            return true;
        }
    }
    GiveFocusBack();
    return false;
}

void ListHint::LeaveList() const {
    const BOOL isBackwards = GetKeyState(VK_SHIFT) < 0 ? TRUE : FALSE;
    SetFocus(GetNextDlgTabItem(host_.Handle(), list_.Handle(), isBackwards));
}

void ListHint::GiveFocusBack() const {
    if (IsChild(list_.Handle(), GetFocus()) != FALSE)
        SetFocus(list_.Handle());
}
