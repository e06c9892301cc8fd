#include "library/KeptFiles.h"

#include "common/CalendarText.h"
#include "common/FileNames.h"
#include "common/Text.h"
#include "library/WriteNewFile.h"

namespace {

constexpr std::string_view kExtension = ".tnt";

// number: from 1; the first has none in its name.
std::string KeptPath(const std::string& path, const CalendarTime& time, int number) {
    const bool isLibrary = HasExtension(path, kExtension);
    const std::string stem = path.substr(0, path.size() - (isLibrary ? kExtension.size() : 0));
    const std::string extension = isLibrary ? path.substr(stem.size()) : std::string(kExtension);
    const std::string distinction = number == 1 ? "" : " " + std::to_string(number);
    return PathWithSuffix(stem, " (kept " + CalendarText(time, "") + distinction + ")" + extension);
}

} // namespace

void KeptFiles::Remember(const LibraryNode& library, std::string_view content) {
    held_.Put(library, ContentFingerprint::Of(content));
}

bool KeptFiles::IsHeld(LibraryId library, std::string_view content) const {
    return content.empty() || Held(library) == ContentFingerprint::Of(content);
}

std::optional<ContentFingerprint> KeptFiles::Held(LibraryId library) const {
    const ContentFingerprint* held = held_.Find(library);
    return held != nullptr ? std::optional(*held) : std::nullopt;
}

std::optional<std::string> KeptFiles::KeepUnknown(const std::string& path, LibraryId library) {
    if (!files_.Exists(path))
        return "";
    const std::optional<std::string> content = files_.ReadWhole(path);
    if (!content)
        return {};
    if (IsHeld(library, *content))
        return "";
    const CalendarTime now = clock_.Now();
    return WriteNewFile(
        files_, [&](int number) { return KeptPath(path, now, number); }, *content);
}
