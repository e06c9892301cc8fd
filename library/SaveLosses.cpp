#include "library/SaveLosses.h"

#include "common/InfoTextNumber.h"
#include "common/Text.h"
#include "library/LibraryFileFormat.h"

#include <algorithm>

namespace {

constexpr std::size_t kMostNames = 10;   // so that the box stays smaller than a screen
constexpr std::size_t kLongestName = 40; // in characters
constexpr const char* kMore = "...";

std::string Shortened(const std::string& name) {
    const std::vector<std::string> characters = CharactersOf(name);
    if (characters.size() <= kLongestName)
        return name;
    std::string text;
    for (std::size_t index = 0; index < kLongestName; ++index)
        text += characters[index];
    return text + kMore;
}

bool ComesBack(const StoredColor& color, std::string_view separator) {
    return LibraryFileFormat::NameComesBack(color.name) &&
           LibraryFileFormat::SecondNameComesBack(color.AltName(), separator);
}

std::string Lines(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t index = 0; index < std::min(names.size(), kMostNames); ++index)
        text += kLineBreak + Shortened(names[index]);
    return names.size() > kMostNames ? text + kLineBreak + kMore : text;
}

} // namespace

SaveLosses NamesLostBySaving(const ColorLibrary& library, const std::string& mainKey,
                             std::string_view separator) {
    SaveLosses losses;
    const std::string& libraryName = library.Tree().At(mainKey).text;
    if (!LibraryFileFormat::NameComesBack(libraryName))
        losses.libraryName = libraryName;
    for (const std::string& group : library.GetGroupInMainnode(mainKey))
        if (const std::string& name = library.Tree().At(group).text;
            !LibraryFileFormat::NameComesBack(name))
            losses.names.push_back(name);
    const ColorTable& colors = library.Colors();
    for (int index = 1; index <= colors.UpperBound(); ++index)
        if (const StoredColor& color = colors.ViewAt(index).color;
            !ComesBack(color, separator) && colors.KeyBeginsWith(index, mainKey))
            losses.names.push_back(color.name);
    return losses;
}

std::string QuestionAbout(const SaveLosses& losses, InfoTexts& texts) {
    std::vector<std::string> parts;
    const auto add = [&](std::int32_t number, const std::string& lines) {
        parts.push_back(texts.GetInfoText(number) + lines);
    };
    if (!losses.characters.empty())
        add(InfoTextNumber::CharactersNotStorable, kLineBreak + losses.characters);
    if (!losses.names.empty())
        add(InfoTextNumber::NamesNotStorable, Lines(losses.names));
    if (!losses.libraryName.empty())
        add(InfoTextNumber::LibraryNameNotStorable, Lines({losses.libraryName}));
    if (!losses.names.empty() || !losses.libraryName.empty())
        add(InfoTextNumber::AskSaveAllTheSame, {});
    std::string prompt;
    for (const std::string& part : parts)
        prompt += (prompt.empty() ? "" : kLineBreak) + part;
    return prompt;
}
