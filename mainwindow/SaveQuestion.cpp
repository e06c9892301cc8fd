#include "mainwindow/SaveQuestion.h"

#include "common/InfoTextNumber.h"
#include "common/Text.h"

#include <algorithm>
#include <vector>

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

std::string Lines(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t index = 0; index < std::min(names.size(), kMostNames); ++index)
        text += kLineBreak + Shortened(names[index]);
    return names.size() > kMostNames ? text + kLineBreak + kMore : text;
}

} // namespace

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
