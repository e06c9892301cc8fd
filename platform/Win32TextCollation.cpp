#include "platform/Win32TextCollation.h"

#include "platform/Utf16.h"

#include <windows.h>

int Win32TextCollation::Compare(const std::string& left, const std::string& right) const {
    const std::wstring wideLeft = ToUtf16(left);
    const std::wstring wideRight = ToUtf16(right);
    const int order = CompareStringEx(LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE, wideLeft.c_str(),
                                      static_cast<int>(wideLeft.size()), wideRight.c_str(),
                                      static_cast<int>(wideRight.size()), nullptr, nullptr, 0);
    return order == 0 ? wideLeft.compare(wideRight) : order - CSTR_EQUAL;
}
