#include "common/FileNames.h"

#include "common/Text.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::size_t kLongestName = 255; // counted in bytes, which no file system exceeds

} // namespace

std::string AsFileName(std::string text) {
    constexpr std::string_view kNotInNames = "\\/:*?\"<>|.";
    std::ranges::replace_if(
        text,
        [&](char letter) {
            return static_cast<unsigned char>(letter) < ' ' ||
                   kNotInNames.find(letter) != std::string_view::npos;
        },
        '-');
    const std::size_t end = text.find_last_not_of(' ') + 1; // the platform drops blanks there
    text.resize(end);
    return text.empty() ? "-" : text;
}

std::string PathWithSuffix(const std::string& path, std::string_view suffix) {
    std::string name = FileNamePart(path);
    if (name.size() + suffix.size() > kLongestName) {
        std::size_t kept = kLongestName - suffix.size();
        while (IsInsideCharacter(name[kept]))
            --kept;
        name.resize(kept);
    }
    return FilePathPart(path) + name.append(suffix);
}
