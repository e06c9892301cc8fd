#include "palettes/PaletteText.h"

#include "common/Utf8.h"
#include "palettes/Utf16Text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::size_t kMarkSize = 2;
constexpr std::size_t kLookedThrough = 4096;

bool HasMark(std::string_view bytes) {
    return bytes.starts_with(kUtf8Mark) || bytes.starts_with(kBigEndianMark) ||
           bytes.starts_with(kLittleEndianMark);
}

// With U+FFFD for what is broken.
std::string Mended(std::string_view text) {
    std::string mended;
    while (!text.empty()) {
        const Utf8Character character = FirstCharacterOf(text);
        AppendCharacter(mended, character.value);
        text.remove_prefix(character.length);
    }
    return mended;
}

} // namespace

PaletteText::PaletteText(std::string_view bytes, const AnsiCodePage& codePage) : view_(bytes) {
    if (bytes.starts_with(kBigEndianMark))
        Own(Utf8OfUtf16(bytes.substr(kMarkSize), Utf16Order::BigEndian));
    else if (bytes.starts_with(kLittleEndianMark))
        Own(Utf8OfUtf16(bytes.substr(kMarkSize), Utf16Order::LittleEndian));
    else if (!bytes.starts_with(kUtf8Mark) && !IsValidUtf8(bytes))
        Own(codePage.Decode(bytes));
    else if (bytes.starts_with(kUtf8Mark))
        view_.remove_prefix(kUtf8Mark.size());
    if (own_.empty() && !IsValidUtf8(view_))
        Own(Mended(view_));
}

void PaletteText::Own(std::string text) {
    own_ = std::move(text);
    view_ = own_;
}

bool PaletteText::IsOne(std::string_view bytes) noexcept {
    return HasMark(bytes) || bytes.substr(0, kLookedThrough).find('\0') == std::string_view::npos;
}

std::optional<std::string_view> PaletteLines::Next() noexcept {
    if (rest_.empty())
        return {};
    const std::size_t end = rest_.find(end_);
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    ++number_;
    return line;
}

std::size_t EstimateLines(std::string_view text) noexcept {
    const std::string_view start = text.substr(0, kLookedThrough);
    const auto isEnd = [](char letter) { return letter == '\n' || letter == '\r'; };
    const auto ends = static_cast<std::size_t>(std::ranges::count_if(start, isEnd));
    const std::size_t lines = start.find("\r\n") == std::string_view::npos ? ends : ends / 2;
    return start.empty() ? 0 : (lines + 1) * (text.size() / start.size() + 1);
}

std::string_view WithoutBlanksAround(std::string_view text) noexcept {
    const auto isBlank = [](char letter) { return letter == ' ' || letter == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}
