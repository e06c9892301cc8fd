#include "mainwindow/LevelTexts.h"

#include "common/ErrorText.h"
#include "common/InfoTextNumber.h"
#include "mainwindow/ValueColumns.h"

namespace {

constexpr std::size_t kFirstValue = 2; // column, from 0

} // namespace

const LevelTexts::Names& LevelTexts::NamesOf(LevelKind kind) {
    using namespace InfoTextNumber;
    static const std::array<Names, 6> names{{
        {{LevelComponent, "Komponente"}, {OfComponent, "der Komponente"}},
        {{LevelFace, "Fläche"}, {OfFace, "der Fläche"}},
        {{LevelFeature, "Feature"}, {OfFeature, "des Features"}},
        {{LevelBody, "Körper"}, {OfBody, "des Körpers"}},
        {{LevelPart, "Teil"}, {OfPart, "des Teils"}},
        {{LevelAssembly, "Baugruppe"}, {OfAssembly, "der Baugruppe"}},
    }};
    return names.at(static_cast<std::size_t>(kind));
}

std::string LevelTexts::Text(const Wording& wording) const {
    return texts_.GetInfoTextOr(wording.number, wording.builtIn);
}

std::string LevelTexts::WindowCaption() const {
    return Text({InfoTextNumber::ColorLevels, "Welche Farbe ist zu sehen"});
}

LevelCells LevelTexts::ColumnCaptions() const {
    LevelCells captions{Text({InfoTextNumber::LevelColumn, "Ebene"}),
                        Text({InfoTextNumber::LevelStateColumn, "Zustand"})};
    for (std::size_t value = 0; value < kColorValueCount; ++value)
        captions.at(kFirstValue + value) = kValueColumns.at(value).caption;
    return captions;
}

LevelCells LevelTexts::CellsOf(const LevelColors& colors, std::size_t index) const {
    const LevelColor& level = colors.levels.at(index);
    LevelCells cells{Text(NamesOf(level.kind).inRow), StateOf(colors, index)};
    if (level.values)
        for (std::size_t value = 0; value < kColorValueCount; ++value)
            cells.at(kFirstValue + value) = std::to_string(level.values->at(value));
    return cells;
}

std::string LevelTexts::StateOf(const LevelColors& colors, std::size_t index) const {
    if (!colors.levels.at(index).values)
        return Text({InfoTextNumber::LevelHasNoColor, "keine Farbe"});
    return colors.Seen() == index ? Text({InfoTextNumber::LevelIsSeen, "zu sehen"})
                                  : Text({InfoTextNumber::LevelIsCovered, "verdeckt"});
}

std::string LevelTexts::SentenceOf(const LevelColors& colors) const {
    if (colors.levels.empty())
        return Text({InfoTextNumber::NoLevelsRead, "Nichts gelesen."});
    std::string sentence = WhichIsSeen(colors);
    if (colors.MayShowOthersInside())
        sentence += " " + Text({InfoTextNumber::OthersInside,
                                "Was darin eine eigene Farbe hat, zeigt diese."});
    if (colors.isModelMissing)
        sentence +=
            " " + Text({InfoTextNumber::ModelMissing,
                        "SolidWorks nennt kein Modell der Komponente (sie ist wohl reduziert "
                        "geladen): Die Ebenen darunter können nicht gelesen werden."});
    return sentence;
}

std::string LevelTexts::WhichIsSeen(const LevelColors& colors) const {
    const std::optional<std::size_t> seen = colors.Seen();
    if (!seen)
        return Text({InfoTextNumber::NoLevelHasColor, "Keine dieser Ebenen hat eine Farbe."});
    const std::string level = Text(NamesOf(colors.levels.at(*seen).kind).inSentence);
    const std::vector<LevelKind> covered = colors.Covered();
    if (covered.empty())
        return WithArguments(Text({InfoTextNumber::OneColorIsSeen, "Zu sehen ist die Farbe %1."}),
                             {level});
    const Wording covers =
        covered.size() == 1
            ? Wording{InfoTextNumber::ColorCoversOne, "Die Farbe %1 verdeckt die %2."}
            : Wording{InfoTextNumber::ColorCoversMore, "Die Farbe %1 verdeckt die %2."};
    return WithArguments(Text(covers), {level, ListOf(covered)});
}

// "the face, the feature and the part".  kinds: one at least.
std::string LevelTexts::ListOf(const std::vector<LevelKind>& kinds) const {
    std::string list = Text(NamesOf(kinds.front()).inSentence);
    for (std::size_t index = 1; index + 1 < kinds.size(); ++index)
        list.append(", ").append(Text(NamesOf(kinds[index]).inSentence));
    if (kinds.size() == 1)
        return list;
    return WithArguments(Text({InfoTextNumber::ListOfLevels, "%1 und %2"}),
                         {list, Text(NamesOf(kinds.back()).inSentence)});
}
