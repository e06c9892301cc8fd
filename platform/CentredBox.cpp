#include "platform/CentredBox.h"

#include "platform/DpiScale.h"
#include "platform/WindowGeometry.h"

#include <array>
#include <string_view>
#include <utility>

thread_local CentredBox* CentredBox::current_ = nullptr;

CentredBox::CentredBox(HWND owner)
    : owner_(owner), before_(std::exchange(current_, this)),
      hook_(SetWindowsHookExW(WH_CBT, &CentredBox::Hook, nullptr, GetCurrentThreadId())) {}

CentredBox::~CentredBox() {
    current_ = before_;
    if (hook_ != nullptr)
        UnhookWindowsHookEx(hook_);
}

LRESULT CALLBACK CentredBox::Hook(int code, WPARAM wParam, LPARAM lParam) noexcept {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && current_ != nullptr && IsDialog(window))
        std::exchange(current_, nullptr)->Place(window);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

bool CentredBox::IsDialog(HWND window) noexcept {
    std::array<wchar_t, 16> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data()) == L"#32770";
}

void CentredBox::Place(HWND box) const noexcept {
    RECT bounds{};
    GetWindowRect(box, &bounds);
    const RECT screen = WorkAreaOf(owner_);
    const RECT place = CentredIn(screen, {WidthOf(bounds), HeightOf(bounds)}, screen);
    if (place.left != bounds.left || place.top != bounds.top)
        SetWindowPos(box, nullptr, place.left, place.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
