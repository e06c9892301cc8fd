#include "platform/Win32TextCollation.h"

#include "platform/Utf16.h"

#include <windows.h>

namespace {

// size: in bytes; 0 asks for the size that is needed.
int MapToSortKey(const std::wstring& text, char* key, int size) {
    // The function counts bytes here, although its buffer is one of characters.
    return LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, text.c_str(),
                         static_cast<int>(text.size()), reinterpret_cast<wchar_t*>(key), size,
                         nullptr, nullptr, 0);
}

} // namespace

std::string Win32TextCollation::SortKey(const std::string& text) const {
    const std::wstring wide = ToUtf16(text);
    if (wide.empty())
        return {};
    const int size = MapToSortKey(wide, nullptr, 0);
    std::string key(static_cast<std::size_t>(size), '\0');
    MapToSortKey(wide, key.data(), size);
    return key;
}

std::string Win32TextCollation::LowerCase(const std::string& text) const {
    std::wstring wide = ToUtf16(text);
    CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
    return ToUtf8(wide);
}
