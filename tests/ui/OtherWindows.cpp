#include "tests/ui/OtherWindows.h"

#include "tests/ui/MainFormTest.h"

#include <array>
#include <vector>

namespace {

constexpr UINT kMillisecondsBetweenVisits = 10;
constexpr int kStepsInModal = 8;

// The one whose timer runs: a timer of a thread carries nothing.
OtherWindows* visitor = nullptr;

BOOL CALLBACK AddVisible(HWND window, LPARAM windows) {
    if (IsWindowVisible(window) != FALSE)
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

bool IsForm(HWND window) {
    return ClassOf(window).starts_with(L"frm");
}

// The open forms of this thread but for one.
std::vector<HWND> FormsBeside(HWND main) {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), AddVisible, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [main](HWND window) { return window == main || !IsForm(window); });
    return windows;
}

} // namespace

OtherWindows::OtherWindows(HWND main, unsigned seed)
    : main_(main), random_(seed),
      timer_(SetTimer(nullptr, 0, kMillisecondsBetweenVisits, OnTimer)) {
    visitor = this;
}

OtherWindows::~OtherWindows() {
    KillTimer(nullptr, timer_);
    visitor = nullptr;
}

void OtherWindows::OnTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    if (visitor != nullptr && IsWindowEnabled(visitor->main_) == FALSE)
        visitor->VisitModalWindow();
}

// What is posted is handled by the loop of the window itself, as what a person does is.
void OtherWindows::VisitModalWindow() {
    for (HWND window : FormsBeside(main_)) {
        if (IsWindowEnabled(window) == FALSE || GetWindow(window, GW_OWNER) != main_)
            continue;
        if (++stepsInModal_ % kStepsInModal == 0)
            PostMessageW(window, WM_CLOSE, 0, 0);
        else
            ActIn(window);
    }
}

void OtherWindows::Step() {
    const std::vector<HWND> windows = FormsBeside(main_);
    if (windows.empty())
        return;
    ActIn(windows[static_cast<std::size_t>(Below(static_cast<int>(windows.size())))]);
    PumpMessages();
}

int OtherWindows::StepsIn(const std::wstring& windowClass) const {
    const auto found = steps_.find(windowClass);
    return found == steps_.end() ? 0 : found->second;
}

void OtherWindows::ActIn(HWND window) {
    ++steps_[ClassOf(window)];
    if (Below(20) != 0)
        ActOn(AnyPartOf(window));
    else
        SetWindowPos(window, nullptr, 0, 0, 100 + Below(800), 100 + Below(500),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND OtherWindows::AnyPartOf(HWND window) {
    std::vector<HWND> parts{window};
    EnumChildWindows(window, AddVisible, reinterpret_cast<LPARAM>(&parts));
    return parts[static_cast<std::size_t>(Below(static_cast<int>(parts.size())))];
}

void OtherWindows::ActOn(HWND part) {
    constexpr std::array kCharacters{L'0', L'5', L'#', L'F', L'e', L'G', L'ü', L' ', L'\b'};
    switch (Below(4)) {
    case 0:
        PostMessageW(part, WM_CHAR,
                     kCharacters.at(static_cast<std::size_t>(Below(kCharacters.size()))), 1);
        break;
    case 1:
        PostMessageW(part, WM_MOUSEWHEEL,
                     static_cast<WPARAM>(MAKELONG(0, Below(2) == 0 ? WHEEL_DELTA : -WHEEL_DELTA)),
                     0);
        break;
    case 2:
        PressKey(part);
        break;
    default:
        ClickAt(part);
    }
}

void OtherWindows::PressKey(HWND part) {
    constexpr std::array<WPARAM, 13> kKeys{VK_UP,  VK_DOWN,   VK_LEFT,  VK_RIGHT, VK_HOME,
                                           VK_END, VK_PRIOR,  VK_NEXT,  VK_TAB,   VK_RETURN,
                                           VK_F5,  VK_DELETE, VK_ESCAPE};
    const WPARAM key = kKeys.at(static_cast<std::size_t>(Below(kKeys.size())));
    PostMessageW(part, WM_KEYDOWN, key, 1);
    PostMessageW(part, WM_KEYUP, key, 1);
}

void OtherWindows::ClickAt(HWND part) {
    RECT area{};
    GetClientRect(part, &area);
    const LPARAM at = MAKELPARAM(Below(static_cast<int>(area.right) + 1),
                                 Below(static_cast<int>(area.bottom) + 1));
    if (Below(3) == 0)
        PostMessageW(part, WM_LBUTTONDBLCLK, MK_LBUTTON, at);
    else
        PostMessageW(part, WM_LBUTTONDOWN, MK_LBUTTON, at);
    PostMessageW(part, WM_LBUTTONUP, 0, at);
}
