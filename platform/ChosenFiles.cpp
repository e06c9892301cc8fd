#include "platform/ChosenFiles.h"

#include "platform/Utf16.h"

#include <algorithm>

std::vector<std::string> ChosenFiles(std::wstring_view buffer) {
    std::vector<std::string> parts;
    while (!buffer.empty() && buffer.front() != L'\0') {
        const std::wstring part(buffer.substr(0, buffer.find(L'\0')));
        parts.push_back(ToUtf8(part));
        buffer.remove_prefix(std::min(part.size() + 1, buffer.size()));
    }
    if (parts.size() < 2)
        return parts;
    const std::string folder = parts.front().ends_with('\\') ? parts.front() : parts.front() + '\\';
    parts.erase(parts.begin());
    for (std::string& name : parts)
        name.insert(0, folder);
    return parts;
}
