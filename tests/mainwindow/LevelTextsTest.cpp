// Rules: Which color is seen
#include "mainwindow/LevelTexts.h"

#include "common/Windows1252.h"
#include "tests/fakes/SourceFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace {

// The texts of a language file of the program; of no file: those that are built in.
class TextsOf : public InfoTexts {
public:
    TextsOf() = default;
    explicit TextsOf(const std::string& code) {
        std::ifstream file(SourceFolder() + "/resources/language/tntlng_" + code + ".ini",
                           std::ios::binary);
        for (std::string line; std::getline(file, line);)
            if (line.starts_with("Text."))
                Take(Windows1252::CodePage().Decode(line.substr(0, line.find('\r'))));
    }

    std::string GetInfoText(std::int32_t number) override { return texts_.at(number); }
    std::string GetInfoTextOr(std::int32_t number, const std::string& builtIn) override {
        return texts_.empty() ? builtIn : texts_.at(number);
    }

private:
    void Take(const std::string& line) {
        const std::size_t equals = line.find('=');
        texts_[std::stoi(line.substr(line.find('.') + 1))] = line.substr(equals + 1);
    }

    std::map<std::int32_t, std::string> texts_;
};

constexpr ColorValueArray kColor{255, 204, 77, 50, 100, 30, 20, 0, 10};

LevelColor With(LevelKind kind) {
    return {kind, kColor};
}
LevelColor Without(LevelKind kind) {
    return {kind, {}};
}

const LevelColors kFaceInAnAssembly{{With(LevelKind::Component), With(LevelKind::Face),
                                     Without(LevelKind::Feature), Without(LevelKind::Body),
                                     With(LevelKind::Part)},
                                    false};

struct Sentence {
    const char* code; // of the language
    LevelColors colors;
    const char* text;
};

class LevelSentences : public testing::TestWithParam<Sentence> {};

TEST_P(LevelSentences, TellWhichColorCoversWhich) {
    TextsOf texts(GetParam().code);
    EXPECT_EQ(LevelTexts(texts).SentenceOf(GetParam().colors), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    InBothLanguages, LevelSentences,
    testing::Values(
        Sentence{"de", kFaceInAnAssembly,
                 "Die Farbe der Komponente verdeckt die der Fläche und des Teils."},
        Sentence{"us", kFaceInAnAssembly,
                 "The color of the component covers those of the face and the part."},
        Sentence{
            "de",
            {{With(LevelKind::Face), Without(LevelKind::Feature), With(LevelKind::Part)}, false},
            "Die Farbe der Fläche verdeckt die des Teils."},
        Sentence{
            "us",
            {{With(LevelKind::Face), Without(LevelKind::Feature), With(LevelKind::Part)}, false},
            "The color of the face covers that of the part."},
        Sentence{"de",
                 {{With(LevelKind::Face), With(LevelKind::Feature), With(LevelKind::Body),
                   With(LevelKind::Part)},
                  false},
                 "Die Farbe der Fläche verdeckt die des Features, des Körpers und des Teils."},
        Sentence{"us",
                 {{With(LevelKind::Face), With(LevelKind::Feature), With(LevelKind::Body),
                   With(LevelKind::Part)},
                  false},
                 "The color of the face covers those of the feature, the body and the part."},
        Sentence{"de",
                 {{Without(LevelKind::Body), With(LevelKind::Part)}, false},
                 "Zu sehen ist die Farbe des Teils. Was darin eine eigene Farbe hat, zeigt diese."},
        Sentence{"us",
                 {{Without(LevelKind::Body), With(LevelKind::Part)}, false},
                 "The color of the part is seen. What has a color of its own in it shows that "
                 "one."},
        Sentence{"de",
                 {{Without(LevelKind::Assembly)}, false},
                 "Keine dieser Ebenen hat eine Farbe. Was darin eine eigene Farbe hat, zeigt "
                 "diese."},
        Sentence{"us",
                 {{With(LevelKind::Component)}, true},
                 "The color of the component is seen. SolidWorks names no model of the component "
                 "(it may be lightweight): the levels below it cannot be read."},
        Sentence{"de", {}, "Nichts gelesen."}, Sentence{"us", {}, "Nothing has been read."}));

TEST(LevelTextsTest, RowTellsLevelStateAndTheNineValues) {
    TextsOf german("de");
    const LevelTexts texts(german);
    EXPECT_EQ(texts.CellsOf(kFaceInAnAssembly, 0),
              (LevelCells{"Komponente", "zu sehen", "255", "204", "77", "50", "100", "30", "20",
                          "0", "10"}));
    EXPECT_EQ(texts.CellsOf(kFaceInAnAssembly, 4).at(1), "verdeckt");
    EXPECT_EQ(texts.CellsOf(kFaceInAnAssembly, 2), (LevelCells{"Feature", "keine Farbe"}));
}

TEST(LevelTextsTest, EveryLevelHasItsNames) {
    TextsOf english("us");
    const LevelTexts texts(english);
    std::string names;
    for (const LevelKind kind : {LevelKind::Component, LevelKind::Face, LevelKind::Feature,
                                 LevelKind::Body, LevelKind::Part, LevelKind::Assembly}) {
        const LevelColors alone{{With(kind)}, false};
        const std::string sentence = texts.SentenceOf(alone);
        names +=
            texts.CellsOf(alone, 0).front() + ": " + sentence.substr(0, sentence.find('.')) + "\n";
    }
    EXPECT_EQ(names, "Component: The color of the component is seen\n"
                     "Face: The color of the face is seen\n"
                     "Feature: The color of the feature is seen\n"
                     "Body: The color of the body is seen\n"
                     "Part: The color of the part is seen\n"
                     "Assembly: The color of the assembly is seen\n");
}

TEST(LevelTextsTest, ValueColumnsAreThoseOfTheList) {
    TextsOf english("us");
    EXPECT_EQ(
        LevelTexts(english).ColumnCaptions(),
        (LevelCells{"Level", "State", "R", "G", "B", "Amb", "Dif", "Spe", "Shi", "Tra", "Emi"}));
}

TEST(LevelTextsTest, BuiltInWordsAreThoseOfTheGermanFile) {
    TextsOf builtIn;
    TextsOf german("de");
    const LevelTexts withoutFile(builtIn);
    const LevelTexts withFile(german);
    EXPECT_EQ(withoutFile.WindowCaption(), withFile.WindowCaption());
    EXPECT_EQ(withoutFile.ColumnCaptions(), withFile.ColumnCaptions());
    for (const bool isModelMissing : {false, true})
        for (const auto kind : {LevelKind::Component, LevelKind::Face, LevelKind::Feature,
                                LevelKind::Body, LevelKind::Part, LevelKind::Assembly})
            for (const LevelColors& colors :
                 {LevelColors{{With(kind), With(kind), With(kind)}, isModelMissing},
                  LevelColors{{With(kind), With(kind)}, isModelMissing},
                  LevelColors{{Without(kind), With(kind)}, isModelMissing},
                  LevelColors{{Without(kind)}, isModelMissing}, LevelColors()}) {
                EXPECT_EQ(withoutFile.SentenceOf(colors), withFile.SentenceOf(colors));
                for (std::size_t index = 0; index < colors.levels.size(); ++index)
                    EXPECT_EQ(withoutFile.CellsOf(colors, index), withFile.CellsOf(colors, index));
            }
}

} // namespace
