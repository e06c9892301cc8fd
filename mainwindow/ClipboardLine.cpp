#include "mainwindow/ClipboardLine.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"
#include "common/Text.h"

#include <vector>

namespace ClipboardLine {

namespace {

constexpr std::string_view kTag = "E#";
constexpr std::size_t kShortestGroupKey = 2; // the colon is looked for behind it

} // namespace

std::string Format(const ColorRecord& color) {
    std::string line(kTag);
    line += color.name + "=" + color.groupKey + ":" + color.altName;
    for (const std::int16_t value : color.values)
        line += "," + std::to_string(value);
    return line;
}

bool IsColor(std::string_view text) {
    return text.starts_with(kTag);
}

std::optional<PastedColor> Parse(std::string_view text) {
    const std::size_t equals = text.find('=', kTag.size());
    if (equals == std::string_view::npos)
        return {};
    const std::string_view afterName = text.substr(equals + 1);
    const std::size_t colon = afterName.find(':', kShortestGroupKey);
    if (colon == std::string_view::npos)
        return {};
    const std::vector<std::string> fields = SplitFields(afterName.substr(colon + 1), ",");
    if (fields.size() != 1 + kColorValueCount)
        return {};
    PastedColor color{std::string(text.substr(kTag.size(), equals - kTag.size())), {}};
    if (color.name.find_first_of("\r\n") != std::string::npos) // it would break the library file
        return {};
    for (std::size_t index = 0; index < kColorValueCount; ++index)
        color.values[index] = TextToInt16(fields[index + 1]);
    return color;
}

bool GivesBack(std::string_view text, const ColorRecord& color) {
    try {
        const auto pasted = Parse(text);
        return pasted && pasted->name == color.name && pasted->values == color.values;
    } catch (const RuntimeError&) { // parts of a name stand where values are looked for
        return false;
    }
}

} // namespace ClipboardLine
