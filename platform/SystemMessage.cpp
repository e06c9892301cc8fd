#include "platform/SystemMessage.h"

#include "platform/Utf16.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

std::string HexNumber(HRESULT result) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%08lX", static_cast<unsigned long>(result));
    return text.data();
}

struct OwnWords {
    HRESULT result;
    ErrorText text;
};

// Wine has no words for these.
constexpr std::array kOwnWords = {
    OwnWords{RPC_E_CALL_REJECTED, ErrorTexts::ServerRejectsCall},
    OwnWords{RPC_E_SERVERCALL_RETRYLATER, ErrorTexts::ServerRejectsCall},
    OwnWords{RPC_E_DISCONNECTED, ErrorTexts::ObjectIsGone},
    OwnWords{DISP_E_TYPEMISMATCH, ErrorTexts::ServerWantsOtherKind},
    OwnWords{DISP_E_UNKNOWNNAME, ErrorTexts::ServerLacksMember},
    OwnWords{DISP_E_MEMBERNOTFOUND, ErrorTexts::ServerLacksMember},
    OwnWords{DISP_E_BADPARAMCOUNT, ErrorTexts::ServerWantsOtherCount},
    OwnWords{CO_E_OBJNOTCONNECTED, ErrorTexts::ServerIsDisconnected},
    OwnWords{RPC_E_CONNECTION_TERMINATED, ErrorTexts::ServerIsDisconnected},
    OwnWords{RPC_E_SERVER_DIED, ErrorTexts::ServerIsDisconnected},
    OwnWords{RPC_E_SERVER_DIED_DNE, ErrorTexts::ServerIsDisconnected},
};

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

// Null: the program has none either.
const ErrorText* OwnWordsFor(HRESULT result) {
    const auto own = std::ranges::find_if(
        kOwnWords, [result](const OwnWords& row) { return row.result == result; });
    if (own != kOwnWords.end())
        return &own->text;
    const int facility = HRESULT_FACILITY(result);
    return facility == FACILITY_RPC || facility == FACILITY_DISPATCH ? &ErrorTexts::ServerFails
                                                                     : nullptr;
}

std::string WithNumber(const std::wstring& words, HRESULT result) {
    const std::string number = "(" + HexNumber(result) + ")";
    return words.empty() ? number : ToUtf8(words) + " " + number;
}

} // namespace

std::string SystemMessage(HRESULT result) {
    return WithNumber(SystemWords(result), result);
}

RuntimeError SystemError(HRESULT result, int number, const std::string& member) {
    const std::wstring words = SystemWords(result);
    const ErrorText* own = words.empty() ? OwnWordsFor(result) : nullptr;
    if (own != nullptr)
        return {number, *own, {HexNumber(result)}, member};
    return {number, WithNumber(words, result), member};
}
