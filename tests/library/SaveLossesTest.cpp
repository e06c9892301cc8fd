// Rules: Library files
// A save asks once, before anything is written, about all that would not come back from the file.

#include "tests/fakes/LibraryOnFakes.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;

constexpr const char* kFile = "C:\\colors.tnt";

class SaveLossesTest : public testing::Test, protected LibraryOnFakes {
protected:
    SaveLossesTest() {
        files.contents[kFile] = "old";
        library.NewMainNode("Lib");
        library.NewGroupNode("0D", "g");
    }
    void AddColor(const std::string& name, const std::string& altName) {
        const std::string key = "0DG1E" + std::to_string(library.Colors().UpperBound() + 1);
        library.Colors().Append({name, key, "0DG1", false, {}, altName});
    }
    bool Write(Answer answer) {
        prompts.messages.clear();
        prompts.answers = {answer};
        return libraryFiles.FileWriteColorValues(kFile, "0D").isWritten;
    }
    // Asked once, with this prompt, and nothing is written after Cancel.
    void ExpectAsks(const std::string& prompt) {
        EXPECT_FALSE(Write(Answer::Cancel));
        EXPECT_EQ(prompts.messages, (std::vector<Message>{{prompt, 49, "<98>"}}));
        EXPECT_EQ(files.contents, (std::map<std::string, std::string>{{kFile, "old"}}));
    }
    void ExpectAsksNothing() {
        EXPECT_TRUE(Write(Answer::Cancel));
        EXPECT_TRUE(prompts.messages.empty());
    }
};

TEST_F(SaveLossesTest, EqualsSignInAColorsNameIsAskedAbout) {
    AddColor("Rot = warm", "Rot = warm");
    ExpectAsks("<150>\r\nRot = warm\r\n<152>");
}

TEST_F(SaveLossesTest, EqualsSignInAGroupsNameIsAskedAbout) {
    library.Tree().SetText("0DG1", "Lacke = neu");
    ExpectAsks("<150>\r\nLacke = neu\r\n<152>");
}

TEST_F(SaveLossesTest, EqualsSignInTheLibrarysNameIsToldAsCut) {
    library.Tree().SetText("0D", "A=B");
    ExpectAsks("<151>\r\nA=B\r\n<152>");
}

TEST_F(SaveLossesTest, DivisionSignInTheSecondNameIsAskedAboutWithTheName) {
    AddColor("a", "half \u00F7 half");
    ExpectAsks("<150>\r\na\r\n<152>");
}

TEST_F(SaveLossesTest, LineBreakInANameIsAskedAbout) {
    AddColor("a\nb", "a");
    ExpectAsks("<150>\r\na\nb\r\n<152>");
}

TEST_F(SaveLossesTest, AllOfItIsOneQuestionWithTheCharactersOfTheCodePage) {
    library.Tree().SetText("0D", "A=\u8272");
    library.Tree().SetText("0DG1", "g=h");
    AddColor("c=d", "c=d");
    ExpectAsks("<104>\r\n\u8272\r\n<150>\r\ng=h\r\nc=d\r\n<151>\r\nA=\u8272\r\n<152>");
}

TEST_F(SaveLossesTest, OkWritesAllTheSame) {
    AddColor("a=b", "a=b");
    EXPECT_TRUE(Write(Answer::Ok));
    EXPECT_NE(files.contents.at(kFile).find("E#a=b=0DG1:a=b"), std::string::npos);
}

TEST_F(SaveLossesTest, NamesThatComeBackAreNotAskedAbout) {
    library.Tree().SetText("0D", "a:b \"c\" \u00F7");
    library.Tree().SetText("0DG1", ":\u00F7\"");
    AddColor("a:\u00F7\"", "a:=\"");
    AddColor("", "");
    ExpectAsksNothing();
    const ColorRecord saved = library.Colors().At(1);
    ASSERT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.Tree().At("1D").text, "a:b \"c\" \u00F7");
    EXPECT_EQ(library.Tree().At("1DG1").text, ":\u00F7\"");
    EXPECT_EQ(library.Colors().At(3).name, saved.name);
    EXPECT_EQ(library.Colors().At(3).altName, saved.altName);
}

TEST_F(SaveLossesTest, LetterThatStandsInForTheDivisionSignIsNotAskedAbout) {
    codePage = FakeCodePage::Cyrillic();
    AddColor("\u0447", "\u0447"); // byte F7 there
    ExpectAsksNothing();
    ASSERT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.Colors().At(2).altName, "\u0447");
}

TEST_F(SaveLossesTest, OtherLibrariesAreNotAskedAbout) {
    library.NewMainNode("A=B");
    library.NewGroupNode("1D", "g=h");
    library.Colors().Append({"a=b", "1DG1E1", "1DG1", false, {}, "a=b"});
    ExpectAsksNothing();
}

TEST_F(SaveLossesTest, OfManyOrLongNamesTheQuestionHoldsAFew) {
    AddColor(std::string(60, '='), "");
    for (int number = 0; number < 100; ++number)
        AddColor("=", "");
    std::string prompt = "<150>\r\n" + std::string(40, '=') + "...";
    for (int number = 0; number < 9; ++number)
        prompt += "\r\n=";
    ExpectAsks(prompt + "\r\n...\r\n<152>");
}

} // namespace
