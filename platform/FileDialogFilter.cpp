#include "platform/FileDialogFilter.h"

#include "common/Text.h"
#include "platform/Utf16.h"

std::wstring PlatformFilter(std::string_view filter) {
    std::wstring list;
    for (const std::string& part : SplitFields(filter, "|")) {
        if (part.empty()) // would end the list
            continue;
        list += ToUtf16(part);
        list += L'\0';
    }
    if (!list.empty())
        list += L'\0';
    return list;
}

std::wstring DefaultExtension(std::string_view filter) {
    const std::vector<std::string> parts = SplitFields(filter, "|");
    if (parts.size() < 2 || !parts[1].starts_with("*."))
        return {};
    const std::string ending = parts[1].substr(2);
    return ending.find_first_of("*?.;") == std::string::npos ? ToUtf16(ending) : std::wstring();
}
