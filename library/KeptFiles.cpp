#include "library/KeptFiles.h"

#include "common/FileNames.h"
#include "library/NewFile.h"

#include <array>
#include <cstdio>

namespace {

constexpr std::size_t kLongestExtension = 16; // with its dot; a longer one is part of the name

std::string TextOf(const CalendarTime& time) {
    std::array<char, 80> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d%02d%02d",
                                    time.year, time.month, time.day, time.hour, time.minute,
                                    time.second));
    return text.data();
}

std::size_t ExtensionSize(const std::string& path) {
    const std::string name = FileNamePart(path);
    const std::size_t dot = name.rfind('.');
    const std::size_t size = dot == std::string::npos ? 0 : name.size() - dot;
    return size <= kLongestExtension ? size : 0;
}

// number: from 1; the first has none in its name.
std::string KeptPath(const std::string& path, const CalendarTime& time, int number) {
    const std::size_t stemSize = path.size() - ExtensionSize(path);
    const std::string distinction = number == 1 ? "" : " " + std::to_string(number);
    return PathWithSuffix(path.substr(0, stemSize),
                          " (kept " + TextOf(time) + distinction + ")" + path.substr(stemSize));
}

} // namespace

void KeptFiles::Remember(const std::string& mainKey, std::string_view content) {
    held_[mainKey] = ContentFingerprint::Of(content);
}

bool KeptFiles::IsHeld(const std::string& mainKey, std::string_view content) const {
    const auto held = held_.find(mainKey);
    return content.empty() ||
           (held != held_.end() && held->second == ContentFingerprint::Of(content));
}

std::optional<std::string> KeptFiles::KeepUnknown(const std::string& path,
                                                  const std::string& mainKey) {
    if (!files_.Exists(path))
        return "";
    const std::optional<std::string> content = files_.ReadWhole(path);
    if (!content)
        return {};
    if (IsHeld(mainKey, *content))
        return "";
    const CalendarTime now = clock_.Now();
    return WriteNewFile(
        files_, [&](int number) { return KeptPath(path, now, number); }, *content);
}
