#include "tests/e2e/RealInput.h"

#include "tests/platform/PollUntil.h"

#include <algorithm>
#include <array>
#include <commctrl.h>
#include <cstdlib>
#include <stdexcept>
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

// The pointer stops at the edges of the screen.
POINT OnScreen(POINT at) {
    return {std::clamp(at.x, 0L, static_cast<LONG>(GetSystemMetrics(SM_CXSCREEN) - 1)),
            std::clamp(at.y, 0L, static_cast<LONG>(GetSystemMetrics(SM_CYSCREEN) - 1))};
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

void PressWith(WORD held, WORD virtualKey) {
    Send(
        {Key(held), Key(virtualKey), Key(virtualKey, KEYEVENTF_KEYUP), Key(held, KEYEVENTF_KEYUP)});
}

// On a busy machine the display tells the positions that the pointer had a moment ago, and takes it
// back there: it is moved again until it stays.
void Settle(POINT to) {
    const bool stays = PollUntilItStays([&] {
        POINT at{};
        GetCursorPos(&at);
        const bool isThere = std::abs(at.x - to.x) <= 1 && std::abs(at.y - to.y) <= 1;
        if (!isThere)
            Send({MouseMove(to)});
        return isThere;
    });
    if (!stays)
        throw std::runtime_error("The pointer does not stay where it is put");
}

// A tool tip that covers the place goes when the pointer leaves for the corner of the screen.
void UncoverFromToolTip(POINT at) {
    if (!IsToolTipAt(at))
        return;
    Send({MouseMove({0, 0})});
    static_cast<void>(PollUntil([at] { return !IsToolTipAt(at); }));
    Settle(at);
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

void RealInput::ClickRight(POINT at) {
    UncoverFromToolTip(at);
    Send({MouseMove(at), MouseButton(MOUSEEVENTF_RIGHTDOWN), MouseButton(MOUSEEVENTF_RIGHTUP)});
}

void RealInput::Drag(POINT from, POINT to) {
    MoveTo(from);
    PressLeft();
    Glide(from, to);
    ReleaseLeft();
}

void RealInput::MoveTo(POINT at) {
    Send({MouseMove(at)});
}

void RealInput::PressLeft() {
    Send({MouseButton(MOUSEEVENTF_LEFTDOWN)});
}

void RealInput::Glide(POINT from, POINT to) {
    for (int step = 1; step <= kDragSteps; ++step)
        MoveTo(OnScreen({from.x + (to.x - from.x) * step / kDragSteps,
                         from.y + (to.y - from.y) * step / kDragSteps}));
    Settle(OnScreen(to));
}

void RealInput::ReleaseLeft() {
    Send({MouseButton(MOUSEEVENTF_LEFTUP)});
}

void RealInput::ReleaseLeftWithCtrl() {
    Send({Key(VK_CONTROL), MouseButton(MOUSEEVENTF_LEFTUP), Key(VK_CONTROL, KEYEVENTF_KEYUP)});
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
    PressWith(VK_MENU, virtualKey);
}

void RealInput::PressWithShift(WORD virtualKey) {
    PressWith(VK_SHIFT, virtualKey);
}

void RealInput::HoldKey(WORD virtualKey) {
    Send({Key(virtualKey)});
}

void RealInput::ReleaseKey(WORD virtualKey) {
    Send({Key(virtualKey, KEYEVENTF_KEYUP)});
}

void RealInput::TypeText(std::wstring_view text) {
    for (const wchar_t character : text)
        Send({Character(character), Character(character, KEYEVENTF_KEYUP)});
}
