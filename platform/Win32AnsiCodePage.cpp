#include "platform/Win32AnsiCodePage.h"

#include "platform/Utf16.h"

#include <optional>
#include <windows.h>

namespace {

constexpr wchar_t kReplacementCharacter = 0xFFFD;

// Nothing when the bytes are not all characters of the code page.
std::optional<std::wstring> DecodeStrictly(unsigned codePage, std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    const int needed =
        MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0);
    if (needed == 0)
        return std::nullopt;
    std::wstring text(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), length, text.data(), needed);
    return text;
}

// The platform itself would put a character of the code page's own choice for broken bytes.
std::wstring DecodeEachCharacter(unsigned codePage, std::string_view bytes) {
    std::wstring text;
    while (!bytes.empty()) {
        const bool isLead = IsDBCSLeadByteEx(codePage, static_cast<BYTE>(bytes.front())) != FALSE;
        std::size_t used = isLead && bytes.size() > 1 ? 2 : 1;
        std::optional<std::wstring> character = DecodeStrictly(codePage, bytes.substr(0, used));
        if (!character)
            used = 1; // the second byte may be a good character itself
        text += character.value_or(std::wstring(1, kReplacementCharacter));
        bytes.remove_prefix(used);
    }
    return text;
}

struct AnsiText {
    std::string bytes;
    bool complete = true; // every character had its place
};

AnsiText EncodePlainly(unsigned codePage, std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    BOOL defaultUsed = FALSE;
    const int needed = WideCharToMultiByte(codePage, WC_NO_BEST_FIT_CHARS, text.data(), length,
                                           nullptr, 0, "?", &defaultUsed);
    AnsiText result{std::string(static_cast<std::size_t>(needed), '\0')};
    WideCharToMultiByte(codePage, WC_NO_BEST_FIT_CHARS, text.data(), length, result.bytes.data(),
                        needed, "?", &defaultUsed);
    result.complete = needed > 0 && defaultUsed == FALSE;
    return result;
}

std::size_t FirstCharacterLength(std::wstring_view text) {
    return text.size() > 1 && IS_SURROGATE_PAIR(text[0], text[1]) ? 2 : 1;
}

AnsiCodePage::Encoded EncodeEachCharacter(unsigned codePage, std::wstring_view text) {
    AnsiCodePage::Encoded result;
    while (!text.empty()) {
        const std::wstring_view character = text.substr(0, FirstCharacterLength(text));
        const AnsiText encoded = EncodePlainly(codePage, character);
        result.bytes += encoded.complete ? encoded.bytes : "?";
        const std::string utf8 = ToUtf8(character);
        if (!encoded.complete && result.unstored.find(utf8) == std::string::npos)
            result.unstored += utf8;
        text.remove_prefix(character.size());
    }
    return result;
}

// A character that the platform stores comes back from its byte, so that the bytes tell which these
// are.
std::unique_ptr<SingleByteCodePage> TableOf(unsigned codePage) {
    CPINFO info{};
    if (GetCPInfo(codePage, &info) == FALSE || info.MaxCharSize != 1)
        return nullptr;
    const auto decoded = [codePage](unsigned char byte) {
        return DecodeEachCharacter(codePage, {reinterpret_cast<const char*>(&byte), 1});
    };
    return std::make_unique<SingleByteCodePage>(
        [&](unsigned char byte) { return ToUtf8(decoded(byte)); },
        [&](unsigned char byte) {
            const AnsiText encoded = EncodePlainly(codePage, decoded(byte));
            return encoded.complete && encoded.bytes == std::string(1, static_cast<char>(byte));
        });
}

} // namespace

Win32AnsiCodePage::Win32AnsiCodePage() : Win32AnsiCodePage(GetACP()) {}

Win32AnsiCodePage::Win32AnsiCodePage(unsigned codePage)
    : codePage_(codePage), table_(TableOf(codePage)) {}

std::string Win32AnsiCodePage::Decode(std::string_view bytes) const {
    if (bytes.empty())
        return {};
    if (table_)
        return table_->Decode(bytes);
    if (codePage_ == CP_UTF8)
        return ToUtf8(ToUtf16(bytes)); // replaces what is broken
    if (const std::optional<std::wstring> text = DecodeStrictly(codePage_, bytes))
        return ToUtf8(*text);
    return ToUtf8(DecodeEachCharacter(codePage_, bytes));
}

AnsiCodePage::Encoded Win32AnsiCodePage::Encode(std::string_view utf8) const {
    if (table_)
        return table_->Encode(utf8);
    const std::wstring text = ToUtf16(utf8);
    if (text.empty() || codePage_ == CP_UTF8) // holds every character
        return {ToUtf8(text), {}};
    AnsiText encoded = EncodePlainly(codePage_, text);
    if (encoded.complete)
        return {std::move(encoded.bytes), {}};
    return EncodeEachCharacter(codePage_, text);
}
