#include "platform/Win32Clipboard.h"

#include "platform/GlobalMemory.h"
#include "platform/Utf16.h"

#include <algorithm>

namespace {

constexpr std::size_t kLargestText = 1U << 24U; // bytes; a longer text counts as none
constexpr int kOpenAttempts = 10;
constexpr DWORD kPauseMilliseconds = 20;

// Only one program can hold the clipboard open, each for a moment: so several short tries.
class OpenedClipboard {
public:
    OpenedClipboard(HWND owner, const std::function<void()>& pause) {
        isOpen_ = OpenClipboard(owner) != FALSE;
        for (int attempt = 1; !isOpen_ && attempt < kOpenAttempts; ++attempt) {
            pause();
            isOpen_ = OpenClipboard(owner) != FALSE;
        }
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard() {
        if (isOpen_)
            CloseClipboard();
    }

    [[nodiscard]] explicit operator bool() const noexcept { return isOpen_; }

private:
    bool isOpen_ = false;
};

std::string ReadText(HGLOBAL memory) {
    const GlobalLockGuard lock(memory);
    const auto* text = static_cast<const wchar_t*>(lock.Content());
    if (text == nullptr || lock.Size() > kLargestText)
        return {};
    const wchar_t* end = text + lock.Size() / sizeof(wchar_t);
    return ToUtf8(std::wstring_view(text, std::find(text, end, L'\0')));
}

GlobalMemory MakeText(const std::wstring& text) {
    const std::size_t characters = text.size() + 1; // the closing NUL
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, characters * sizeof(wchar_t)));
    if (!memory)
        return memory;
    const GlobalLockGuard lock(memory.Get());
    if (lock.Content() != nullptr)
        std::copy_n(text.c_str(), characters, static_cast<wchar_t*>(lock.Content()));
    return memory;
}

} // namespace

void Win32Clipboard::ShortPause() {
    Sleep(kPauseMilliseconds);
}

std::optional<std::string> Win32Clipboard::Text() {
    // Only now does nobody change it: another program may be about to put its text there.
    const OpenedClipboard clipboard(owner_(), pause_);
    if (!clipboard)
        return std::nullopt;
    if (!IsClipboardFormatAvailable(CF_UNICODETEXT))
        return "";
    HANDLE content = GetClipboardData(CF_UNICODETEXT); // stays the clipboard's
    return content != nullptr ? ReadText(content) : "";
}

bool Win32Clipboard::SetText(const std::string& text) {
    GlobalMemory memory = MakeText(ToUtf16(text));
    const OpenedClipboard clipboard(owner_(), pause_);
    if (!memory || !clipboard || !EmptyClipboard())
        return false;
    if (SetClipboardData(CF_UNICODETEXT, memory.Get()) == nullptr)
        return false;
    static_cast<void>(memory.Release()); // the clipboard's from here on
    return true;
}
