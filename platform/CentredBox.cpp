#include "platform/CentredBox.h"

#include "platform/WindowGeometry.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

// A hook is told nothing of who has set it.
thread_local CentredBox* innermost = nullptr;

bool IsSeen(HWND window) {
    return window != nullptr && IsWindowVisible(window) != FALSE && IsIconic(window) == FALSE;
}

bool IsSystemDialog(HWND window) {
    std::array<wchar_t, 16> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data()) == L"#32770";
}

} // namespace

CentredBox::CentredBox(HWND owner) : owner_(owner), outer_(std::exchange(innermost, this)) {
    if (IsSeen(owner))
        hook_ = SetWindowsHookExW(WH_CBT, OnHook, nullptr, GetCurrentThreadId());
}

CentredBox::~CentredBox() {
    if (hook_ != nullptr)
        UnhookWindowsHookEx(hook_);
    innermost = outer_;
}

LRESULT CALLBACK CentredBox::OnHook(int code, WPARAM wParam, LPARAM lParam) noexcept {
    if (code == HCBT_ACTIVATE && innermost != nullptr)
        innermost->Activated(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The box has its size and is not painted yet.  Later the user may have moved it.
void CentredBox::Activated(HWND window) noexcept {
    if (isPlaced_ || hook_ == nullptr || GetWindow(window, GW_OWNER) != owner_ ||
        !IsSystemDialog(window))
        return;
    isPlaced_ = true;
    CentreOnOwner(window);
}
