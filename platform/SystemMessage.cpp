#include "platform/SystemMessage.h"

#include "platform/Utf16.h"

#include <array>
#include <cstdio>

namespace {

std::string HexNumber(HRESULT result) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%08lX", static_cast<unsigned long>(result));
    return text.data();
}

std::wstring SystemWords(HRESULT result) {
    std::array<wchar_t, 1024> text{};
    constexpr DWORD kOneLine =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    const DWORD length = FormatMessageW(kOneLine, nullptr, static_cast<DWORD>(result), 0,
                                        text.data(), static_cast<DWORD>(text.size()), nullptr);
    std::wstring words(text.data(), length);
    words.erase(words.find_last_not_of(L" \r\n") + 1);
    return words;
}

} // namespace

std::string SystemMessage(HRESULT result) {
    const std::string number = "(" + HexNumber(result) + ")";
    const std::wstring words = SystemWords(result);
    return words.empty() ? number : ToUtf8(words) + " " + number;
}
