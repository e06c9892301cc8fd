#include "common/FileNames.h"

#include "common/Text.h"

namespace {

constexpr std::size_t kLongestName = 255; // counted in bytes, which no file system exceeds

} // namespace

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
