#include "platform/controls/LabelEdit.h"

#include "platform/Utf16.h"

#include <commctrl.h>
#include <utility>

namespace {

constexpr UINT_PTR kSubclass = 1;

// Of the buffers that the controls use, with the character that ends the text.
constexpr std::size_t kControlBuffer = 260;

} // namespace

LabelEdit::~LabelEdit() {
    if (box_ != nullptr)
        RemoveWindowSubclass(box_, &LabelEdit::Watch, kSubclass);
}

void LabelEdit::Begin(HWND box, const std::string& text) {
    isOpen_ = true;
    box_ = box;
    SetWindowSubclass(box, &LabelEdit::Watch, kSubclass, reinterpret_cast<DWORD_PTR>(this));
    SendMessageW(box, EM_SETLIMITTEXT, 0, 0); // the most that a box can hold
    const std::wstring whole = ToUtf16(text);
    if (whole.size() >= kControlBuffer)
        SetWindowTextW(box, whole.c_str());
}

std::optional<std::string> LabelEdit::End() {
    if (!std::exchange(isOpen_, false) || box_ == nullptr)
        return {};
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(box_)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextW(box_, text.data(), static_cast<int>(text.size()))));
    return ToUtf8(text);
}

LRESULT CALLBACK LabelEdit::Watch(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR reference) noexcept {
    auto& edit = *reinterpret_cast<LabelEdit*>(reference);
    if (message == WM_KEYDOWN && wParam == VK_ESCAPE)
        edit.GiveUp();
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(box, &LabelEdit::Watch, kSubclass);
        if (edit.box_ == box)
            edit.box_ = nullptr;
    }
    return DefSubclassProc(box, message, wParam, lParam);
}
