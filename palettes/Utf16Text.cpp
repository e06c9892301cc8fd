#include "palettes/Utf16Text.h"

#include "common/Utf8.h"

namespace {

constexpr std::size_t kUnitSize = 2;
constexpr char32_t kFirstHighSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;
constexpr char32_t kBehindSurrogates = 0xE000;
constexpr char32_t kBeyondBasicPlane = 0x10000;

char32_t UnitAt(std::string_view bytes, std::size_t place, Utf16Order order) {
    const auto first = static_cast<unsigned char>(bytes[place]);
    const auto second = static_cast<unsigned char>(bytes[place + 1]);
    return order == Utf16Order::BigEndian ? char32_t{first} << 8U | second
                                          : char32_t{second} << 8U | first;
}

bool IsHigh(char32_t unit) {
    return unit >= kFirstHighSurrogate && unit < kFirstLowSurrogate;
}

bool IsLow(char32_t unit) {
    return unit >= kFirstLowSurrogate && unit < kBehindSurrogates;
}

// The character at a place, which moves behind it.  A surrogate alone is given as it is: no
// character.
char32_t TakeCharacter(std::string_view bytes, std::size_t& place, Utf16Order order) {
    const char32_t unit = UnitAt(bytes, place, order);
    place += kUnitSize;
    if (!IsHigh(unit) || place + kUnitSize > bytes.size())
        return unit;
    const char32_t low = UnitAt(bytes, place, order);
    if (!IsLow(low))
        return unit;
    place += kUnitSize;
    return kBeyondBasicPlane + ((unit - kFirstHighSurrogate) << 10U | (low - kFirstLowSurrogate));
}

void AppendUnit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit >> 8U);
    bytes += static_cast<char>(unit & 0xFFU);
}

void AppendUnits(std::string& bytes, char32_t character) {
    if (character < kBeyondBasicPlane) {
        AppendUnit(bytes, character);
        return;
    }
    AppendUnit(bytes, kFirstHighSurrogate + ((character - kBeyondBasicPlane) >> 10U));
    AppendUnit(bytes, kFirstLowSurrogate + ((character - kBeyondBasicPlane) & 0x3FFU));
}

// Bytes up to the first zero; how many characters of ASCII they begin with.
struct NameExtent {
    std::size_t bytes = 0;
    bool isAscii = true;
};

NameExtent ExtentOf(std::string_view bytes) {
    NameExtent extent;
    for (; extent.bytes + kUnitSize <= bytes.size(); extent.bytes += kUnitSize) {
        const char32_t unit = UnitAt(bytes, extent.bytes, Utf16Order::BigEndian);
        if (unit == 0)
            return extent;
        extent.isAscii = extent.isAscii && unit < 0x80;
    }
    return extent;
}

} // namespace

std::string Utf8OfUtf16(std::string_view bytes, Utf16Order order) {
    std::string text;
    text.reserve(bytes.size() / kUnitSize);
    std::size_t place = 0;
    while (place + kUnitSize <= bytes.size())
        AppendCharacter(text, TakeCharacter(bytes, place, order));
    if (place < bytes.size())
        AppendCharacter(text, kReplacementCharacter);
    return text;
}

void SetNameOfUtf16(std::string& name, std::string_view bytes) {
    const NameExtent extent = ExtentOf(bytes);
    if (!extent.isAscii) {
        name = Utf8OfUtf16(bytes.substr(0, extent.bytes), Utf16Order::BigEndian);
        return;
    }
    name.resize(extent.bytes / kUnitSize);
    for (std::size_t place = 0; place < name.size(); ++place)
        name[place] = bytes[place * kUnitSize + 1];
}

std::string Utf16OfUtf8(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * kUnitSize);
    while (!text.empty()) {
        const Utf8Character character = FirstCharacterOf(text);
        AppendUnits(bytes, character.value);
        text.remove_prefix(character.length);
    }
    return bytes;
}
