#include "palettes/PaletteContent.h"

#include "common/Text.h"
#include "common/Utf8.h"
#include "palettes/PaletteLimits.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD

} // namespace

std::string_view NameWithinLimit(std::string_view name) noexcept {
    if (name.size() <= PaletteLimits::kLongestName)
        return name;
    std::size_t length = PaletteLimits::kLongestName;
    while (length > 0 && IsInsideCharacter(name[length]))
        --length;
    return name.substr(0, length);
}

void PaletteContent::CheckName(std::string& name, std::size_t place) {
    if (name.size() > PaletteLimits::kLongestName) {
        name.resize(NameWithinLimit(name).size());
        Add(PaletteFault::NameCut, place);
    }
    if (!IsAscii(name) && name.find(kReplacement) != std::string::npos)
        Add(PaletteFault::NameBroken, place);
}

void PaletteContent::Expect(std::size_t count) {
    palette.entries.reserve(std::min(count, PaletteLimits::kMostEntries));
}

PaletteGroup PaletteContent::AddGroup(std::string&& name, std::size_t place) {
    if (palette.groups.size() == PaletteLimits::kMostGroups) {
        Add(PaletteFault::Limit, place);
        return kNoGroup;
    }
    CheckName(name, place);
    palette.groups.push_back(std::move(name));
    return static_cast<PaletteGroup>(palette.groups.size() - 1);
}

PaletteEntry* PaletteContent::StartEntry(std::size_t place) {
    if (palette.entries.size() == PaletteLimits::kMostEntries) {
        Add(PaletteFault::Limit, place);
        return nullptr;
    }
    return &palette.entries.emplace_back();
}
