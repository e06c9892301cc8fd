#include "tests/e2e/RealInput.h"

#include "tests/platform/PollUntil.h"

#include <array>
#include <commctrl.h>
#include <vector>

namespace {

constexpr int kDragSteps = 8;

void Send(std::vector<INPUT> inputs) {
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

INPUT Key(WORD virtualKey, DWORD flags = 0) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT Character(wchar_t character, DWORD flags = 0) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    return input;
}

INPUT MouseButton(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

// Absolute positions count from 0 to 65535 over the screen.
LONG Normalised(LONG pixel, int extent) {
    return (pixel * 65535 + (extent - 1) / 2) / (extent - 1);
}

INPUT MouseMove(POINT to) {
    INPUT input = MouseButton(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    input.mi.dx = Normalised(to.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Normalised(to.y, GetSystemMetrics(SM_CYSCREEN));
    return input;
}

bool IsToolTipAt(POINT at) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(WindowFromPoint(at), name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data()) == TOOLTIPS_CLASSW;
}

// A tool tip that covers the place goes when the pointer leaves for the corner of the screen.
void UncoverFromToolTip(POINT at) {
    if (!IsToolTipAt(at))
        return;
    Send({MouseMove({0, 0})});
    static_cast<void>(PollUntil([at] { return !IsToolTipAt(at); }));
}

} // namespace

void RealInput::Click(POINT at) {
    UncoverFromToolTip(at);
    Send({MouseMove(at), MouseButton(MOUSEEVENTF_LEFTDOWN), MouseButton(MOUSEEVENTF_LEFTUP)});
}

void RealInput::DoubleClick(POINT at) {
    Send({MouseMove(at), MouseButton(MOUSEEVENTF_LEFTDOWN), MouseButton(MOUSEEVENTF_LEFTUP),
          MouseButton(MOUSEEVENTF_LEFTDOWN), MouseButton(MOUSEEVENTF_LEFTUP)});
}

void RealInput::ClickWithCtrl(POINT at) {
    Send({Key(VK_CONTROL), MouseMove(at), MouseButton(MOUSEEVENTF_LEFTDOWN),
          MouseButton(MOUSEEVENTF_LEFTUP), Key(VK_CONTROL, KEYEVENTF_KEYUP)});
}

void RealInput::Drag(POINT from, POINT to) {
    std::vector<INPUT> inputs = {MouseMove(from), MouseButton(MOUSEEVENTF_LEFTDOWN)};
    for (int step = 1; step <= kDragSteps; ++step)
        inputs.push_back(MouseMove({from.x + (to.x - from.x) * step / kDragSteps,
                                    from.y + (to.y - from.y) * step / kDragSteps}));
    inputs.push_back(MouseButton(MOUSEEVENTF_LEFTUP));
    Send(inputs);
}

void RealInput::TurnWheel(POINT at, int notches) {
    INPUT turn = MouseButton(MOUSEEVENTF_WHEEL);
    turn.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
    Send({MouseMove(at), turn});
}

void RealInput::PressKey(WORD virtualKey) {
    Send({Key(virtualKey), Key(virtualKey, KEYEVENTF_KEYUP)});
}

void RealInput::PressWithAlt(WORD virtualKey) {
    Send({Key(VK_MENU), Key(virtualKey), Key(virtualKey, KEYEVENTF_KEYUP),
          Key(VK_MENU, KEYEVENTF_KEYUP)});
}

void RealInput::TypeText(std::wstring_view text) {
    for (const wchar_t character : text)
        Send({Character(character), Character(character, KEYEVENTF_KEYUP)});
}
