// Rules: Library files
// A save never destroys what the program does not hold.

#include "tests/fakes/GoldenFile.h"
#include "tests/fakes/LibraryOnFakes.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kA = "C:\\lib\\a.tnt";
constexpr const char* kB = "C:\\lib\\b.tnt";
constexpr const char* kKeptA = "C:\\lib\\a (kept 2024-03-09 080507).tnt";
constexpr const char* kSecondKeptA = "C:\\lib\\a (kept 2024-03-09 080507 2).tnt";
constexpr const char* kKeptB = "C:\\lib\\b (kept 2024-03-09 080507).tnt";
constexpr const char* kContent = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
constexpr const char* kForeign = "\"D#Changed by someone else=0D:0\"\r\n";

// One program with its file commands, on the files that others work on too.
class Session : public LibrarySession {
public:
    explicit Session(Files& files) : LibrarySession(files, Western()) {}
    void Open(const std::string& path) {
        LibrarySession::Open(path);
        view.infoPanels.clear();
    }
    void Save(const std::string& mainKey = "0D") {
        library.Tree().Select(mainKey);
        commands.mnuFileSave_Click();
    }
    void SaveAs(const std::string& path) {
        prompts.chosenFiles.emplace_back(path);
        commands.mnuFileSaveAs_Click();
    }
    void AddGroup(const std::string& name) { library.NewGroupNode("0D", name); }
    [[nodiscard]] std::string Status() const {
        return view.infoPanels.empty() ? std::string() : view.infoPanels.back();
    }

private:
    static const FakeCodePage& Western() {
        static const FakeCodePage codePage = FakeCodePage::Western();
        return codePage;
    }
};

class KeptFilesTest : public testing::Test {
protected:
    KeptFilesTest() { files.contents[kA] = kContent; }
    [[nodiscard]] std::vector<std::string> Paths() const {
        std::vector<std::string> paths;
        for (const auto& [path, content] : files.contents)
            paths.push_back(path);
        return paths;
    }

    FakeFiles files;
    Session session{files};
};

TEST_F(KeptFilesTest, FileThatTheLibraryHoldsIsReplacedWithNothingLeftBeside) {
    session.settings.createBackups = false;
    session.Open(kA);
    for (const char* group : {"one", "two"}) {
        session.AddGroup(group);
        session.Save();
        EXPECT_EQ(session.Status(), "Okay a.tnt");
    }
    EXPECT_EQ(Paths(), std::vector<std::string>{kA});
}

TEST_F(KeptFilesTest, LibraryThatWasReadInPartAndIsSavedTwiceLeavesItsSourceBeside) {
    for (const bool backups : {true, false}) {
        const std::string source = std::string(kContent) + "\"E#broken\"\r\n\"G#rest=0DG2\"\r\n";
        files.contents = {{kA, source}};
        Session reader(files);
        reader.settings.createBackups = backups;
        reader.Open(kA);
        reader.Save();
        reader.Save();
        ASSERT_TRUE(files.contents.contains(kKeptA));
        EXPECT_EQ(files.contents.at(kKeptA), source);
        EXPECT_EQ(files.contents.size(), backups ? 3U : 2U) << "kept once";
    }
}

TEST_F(KeptFilesTest, StatusPanelTellsWhatWasKept) {
    session.Open(kA);
    files.contents[kA] = kForeign;
    session.Save();
    EXPECT_EQ(session.Status(), "Okay a.tnt  -  <153> a (kept 2024-03-09 080507).tnt");
    EXPECT_EQ(session.prompts.messages.size(), 1U) << "no question but the one about every start";
    session.Save();
    EXPECT_EQ(session.Status(), "Okay a.tnt");
}

TEST_F(KeptFilesTest, FileThatSomeoneElseChangedStaysBesideAndTheBackupIsAsAlways) {
    session.Open(kA);
    files.contents[kA] = kForeign;
    session.AddGroup("mine");
    session.Save();
    EXPECT_EQ(files.contents.at(kKeptA), kForeign);
    EXPECT_EQ(files.contents.at(std::string(kA) + ".bak"), kForeign);
    EXPECT_NE(files.contents.at(kA).find("mine"), std::string::npos);
}

TEST_F(KeptFilesTest, TwoProgramsThatSaveInTurnLoseNoneOfTheirContents) {
    Session other(files);
    session.Open(kA);
    other.Open(kA);
    std::vector<std::string> saved;
    for (const char* group : {"first", "second", "third"})
        for (Session* each : {&session, &other}) {
            each->AddGroup(group);
            each->Save();
            saved.push_back(files.contents.at(kA));
        }
    saved.pop_back(); // stands under its name
    for (const std::string& content : saved)
        EXPECT_TRUE(std::ranges::any_of(files.contents, [&](const auto& file) {
            return file.second == content && file.first.find("(kept") != std::string::npos;
        })) << content;
}

// The other program saves while this one waits for its turn, and again as soon as that is over.
TEST_F(KeptFilesTest, FileIsLookedAtAndReplacedInOneTurn) {
    for (const bool backups : {true, false}) {
        files.contents = {{kA, kContent}};
        Session saver(files);
        saver.settings.createBackups = backups;
        saver.Open(kA);
        saver.AddGroup("mine");
        std::vector<std::string> turns;
        std::string atTheEnd;
        files.onTurn = [&](const std::string& path) {
            turns.push_back(path);
            files.contents[kA] = kForeign;
        };
        files.onTurnOver = [&] { atTheEnd = files.contents[kA]; };
        saver.Save();
        files.onTurn = nullptr;
        files.onTurnOver = nullptr;
        EXPECT_EQ(turns, std::vector<std::string>{kA});
        ASSERT_TRUE(files.contents.contains(kKeptA));
        EXPECT_EQ(files.contents.at(kKeptA), kForeign);
        EXPECT_NE(atTheEnd.find("mine"), std::string::npos);
    }
}

TEST_F(KeptFilesTest, LibraryWithoutGroupsMovesItsFileInItsTurn) {
    files.contents[kA] = "\"D#Lib=0D:1\"\r\n\"G#broken\"\r\n";
    session.Open(kA);
    bool wasThere = true;
    files.onTurn = [&](const std::string&) { files.contents[kA] = kForeign; };
    files.onTurnOver = [&] { wasThere = files.contents.contains(kA); };
    session.Save();
    files.onTurnOver = nullptr;
    EXPECT_EQ(files.contents.at(kKeptA), kForeign);
    EXPECT_FALSE(wasThere);
}

TEST_F(KeptFilesTest, SaveThatIsRetargetedToAnotherFileKeepsThatOne) {
    files.contents[kB] = kForeign;
    session.Open(kA);
    session.Open(kB);
    session.Save();
    EXPECT_EQ(session.Status(), "Okay b.tnt") << "written was a.tnt, which the library holds";
    session.Save();
    EXPECT_EQ(files.contents.at(kB), kContent);
    EXPECT_EQ(files.contents.at(kKeptB), kForeign);
    EXPECT_EQ(session.Status(), "Okay b.tnt  -  <153> b (kept 2024-03-09 080507).tnt");
}

TEST_F(KeptFilesTest, NamesThatAreTakenGetANumber) {
    files.contents[kKeptA] = "of somebody else";
    session.Open(kA);
    files.contents[kA] = kForeign;
    session.Save();
    EXPECT_EQ(files.contents.at(kKeptA), "of somebody else");
    EXPECT_EQ(files.contents.at(kSecondKeptA), kForeign);
}

TEST_F(KeptFilesTest, SaveAsOverAnotherFileGivesItUpAsTheDialogHasAsked) {
    files.contents[kB] = kForeign;
    session.Open(kA);
    session.SaveAs(kB);
    EXPECT_EQ(session.Status(), "Okay b.tnt");
    EXPECT_EQ(Paths(), (std::vector<std::string>{kA, kB, std::string(kB) + ".bak"}));
}

TEST_F(KeptFilesTest, SaveAsOverTheLibrarysOwnFileIsASave) {
    session.Open(kA);
    files.contents[kA] = kForeign;
    files.contents["c:\\LIB\\A.TNT"] = kForeign; // the same file where letter case does not count
    session.SaveAs("c:\\LIB\\A.TNT");
    EXPECT_EQ(files.contents.at("c:\\LIB\\A (kept 2024-03-09 080507).TNT"), kForeign);
}

// By its short name, for example; without backups nothing else would have the content.
TEST_F(KeptFilesTest, SaveAsOverTheLibrarysOwnFileByAnotherNameIsASave) {
    session.settings.createBackups = false;
    session.Open(kA);
    files.contents[kA] = kForeign;
    files.contents["C:\\lib\\a~1.tnt"] = kForeign;
    files.otherNames["C:\\lib\\a~1.tnt"] = kA;
    session.SaveAs("C:\\lib\\a~1.tnt");
    EXPECT_EQ(files.contents.at("C:\\lib\\a~1 (kept 2024-03-09 080507).tnt"), kForeign);
}

TEST_F(KeptFilesTest, LibraryWithoutGroupsKeepsWhatItMovesToTheBackup) {
    const std::string source = "\"D#Lib=0D:1\"\r\n\"G#broken\"\r\n";
    files.contents[kA] = source;
    session.Open(kA);
    session.Save();
    EXPECT_EQ(files.contents.at(kKeptA), source);
    EXPECT_EQ(files.contents.at(std::string(kA) + ".bak"), source);
    EXPECT_FALSE(files.contents.contains(kA));
    EXPECT_EQ(session.Status(), "<153> a (kept 2024-03-09 080507).tnt");
}

TEST_F(KeptFilesTest, LibraryWithoutGroupsThatCannotMoveItsFileLeavesNothingBeside) {
    files.contents[kA] = "\"D#Lib=0D:1\"\r\n\"G#broken\"\r\n";
    session.Open(kA);
    files.locked[kA] = true;
    session.Save();
    session.Save();
    EXPECT_EQ(Paths(), std::vector<std::string>{kA});
    EXPECT_EQ(session.Status(), "");
}

TEST_F(KeptFilesTest, FileThatCannotBeReadIsNotReplaced) {
    session.Open(kA);
    files.unreadable[kA] = true;
    session.AddGroup("mine");
    session.Save();
    EXPECT_EQ(files.contents.at(kA), kContent);
    EXPECT_EQ(session.prompts.messages.back().prompt, "<4>C:\\lib\\a.tnt");
    EXPECT_EQ(Paths(), std::vector<std::string>{kA});
}

TEST_F(KeptFilesTest, FileThatIsGoneOrEmptyLeavesNothingToKeep) {
    session.settings.createBackups = false;
    session.Open(kA);
    for (const bool isGone : {true, false}) {
        files.contents = isGone ? decltype(files.contents)() : decltype(files.contents){{kA, ""}};
        session.Save();
        EXPECT_EQ(Paths(), std::vector<std::string>{kA});
    }
}

// A command can take the library's file from its tag, and the source is its own file all the same.
TEST_F(KeptFilesTest, SaveAsOverTheSourceOfALibraryThatCountsAsUnsavedIsASave) {
    for (const bool backups : {true, false}) {
        const std::string source = std::string(kContent) + "\"E#broken\"\r\n";
        files.contents = {{kA, source}};
        Session reader(files);
        reader.settings.createBackups = backups;
        reader.Open(kA);
        for (int save = 1; save <= 2; ++save) {
            reader.library.Tree().SetUnsaved("0D");
            reader.library.Tree().Select("0D");
            reader.SaveAs(kA);
        }
        ASSERT_TRUE(files.contents.contains(kKeptA)) << backups;
        EXPECT_EQ(files.contents.at(kKeptA), source);
    }
}

TEST_F(KeptFilesTest, LibraryThatWentToAnotherFileAsksForItsFirstOneAsForAnyOther) {
    session.Open(kA);
    session.SaveAs(kB);
    files.contents[kA] = kForeign;
    session.SaveAs(kA);
    EXPECT_EQ(Paths(), (std::vector<std::string>{kA, std::string(kA) + ".bak", kB}));
}

// All of these are read, but not everything that stands in them gets into the library.
TEST_F(KeptFilesTest, RecordsAndEndsOfNamesThatTheProgramDoesNotTakeAreNotHeld) {
    for (const char* name : {"unknown-records.tnt", "equals-signs.tnt"}) {
        files.contents = {{kA, GoldenFile(name)}};
        Session reader(files);
        reader.Open(kA);
        reader.Save();
        ASSERT_TRUE(files.contents.contains(kKeptA)) << name;
        EXPECT_EQ(files.contents.at(kKeptA), GoldenFile(name));
    }
}

// What the values of a color, the quotes around a line and the header have in them besides.
TEST_F(KeptFilesTest, WhatIsReadButWouldNotBeWrittenAgainIsNotHeld) {
    const std::string group = "\"G#g=0DG1\"\r\n";
    const auto color = [](const std::string& last) {
        return "\"E#a=0DG1:a\xF7"
               "1\xF7"
               "2\xF7"
               "3\xF7"
               "4\xF7"
               "5\xF7"
               "6\xF7"
               "7\xF7"
               "8\xF7" +
               last + "\"\r\n";
    };
    const std::string header = "\"D#Lib=0D:2\"\r\n";
    for (const std::string& source :
         {header + group + color("1.5"), header + group + color(" 7"), header + group + color("+3"),
          header + group + color("007"), header + group + color("-0"),
          header + group + color("9E1"), header + "xG#g=0DG1\"\r\n", header + "\"G#g=0DG1x\r\n",
          header + "\"G#g\x81=0DG1\"\r\n", "xD#Lib=0D:1\"\r\n" + group, "\"D#Lib=0D:1\r\n" + group,
          "\"D#Lib\x81=0D:1\"\r\n" + group, "\"D#Lib=0D:1 from the printer\"\r\n" + group}) {
        files.contents = {{kA, source}};
        Session reader(files);
        reader.Open(kA);
        reader.Save();
        ASSERT_TRUE(files.contents.contains(kKeptA)) << source;
        EXPECT_EQ(files.contents.at(kKeptA), source);
    }
}

TEST_F(KeptFilesTest, WhatTheProgramWritesAndFilesThatSayTheSameAreHeldWhole) {
    const std::string values = "\xF7-32768\xF7"
                               "32767\xF7"
                               "0\xF7-1\xF7"
                               "10\xF7"
                               "5\xF7"
                               "6\xF7"
                               "7\xF7"
                               "8\"\r\n";
    const std::string made = "\"D#a:b=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG1:a" + values;
    for (const std::string& source :
         {made, made + "\r\n", GoldenFile("plain.tnt"), GoldenFile("umlauts.tnt"),
          GoldenFile("colons.tnt"), GoldenFile("quotes.tnt"), GoldenFile("empty-names.tnt"),
          GoldenFile("line-feeds.tnt"), GoldenFile("no-final-line-end.tnt")}) {
        files.contents = {{kA, source}};
        Session reader(files);
        reader.Open(kA);
        reader.Save();
        EXPECT_EQ(Paths(), (std::vector<std::string>{kA, std::string(kA) + ".bak"})) << source;
    }
}

TEST_F(KeptFilesTest, LibraryWithTheKeyOfAClosedOneHoldsItsOwnFileAlone) {
    session.settings.createBackups = false;
    session.Open(kA);
    session.library.Tree().Remove("0D");
    files.contents[kB] = std::string(kContent) + "\"E#broken\"\r\n";
    session.Open(kB);
    files.contents[kB] = kContent; // what the closed library was read from
    session.Save();
    EXPECT_EQ(files.contents.at(kKeptB), kContent);
}

TEST_F(KeptFilesTest, NewLibraryWithTheKeyOfAClosedOneHasNothingOfItsFile) {
    session.Open(kA);
    session.editing.DeleteMainNode({}, EditingCommands::Confirmation::None);
    session.prompts.typed = {"New", "g", ""};
    session.commands.mnuFileNew_Click();
    EXPECT_EQ(session.library.Tree().At("0D").source, "");
    session.SaveAs(kA); // the dialog has asked; it is not the library's own file
    EXPECT_EQ(Paths(), (std::vector<std::string>{kA, std::string(kA) + ".bak"}));
}

TEST_F(KeptFilesTest, LongNamesAndNamesWithAnotherExtensionAreKeptToo) {
    const std::string longName = "C:\\lib\\" + std::string(251, 'x') + ".tnt";
    const std::string withoutExtension = "C:\\lib.d\\colors";
    session.settings.createBackups = false;
    for (const auto& [path, keptPath] :
         {std::pair(longName,
                    "C:\\lib\\" + std::string(226, 'x') + " (kept 2024-03-09 080507).tnt"),
          std::pair(withoutExtension, withoutExtension + " (kept 2024-03-09 080507).tnt"),
          std::pair(std::string("C:\\lib\\a.txt"),
                    std::string("C:\\lib\\a.txt (kept 2024-03-09 080507).tnt"))}) {
        files.contents = {{path, kContent}};
        Session saver(files);
        saver.settings.createBackups = false;
        saver.Open(path);
        files.contents[path] = kForeign;
        saver.Save();
        EXPECT_TRUE(files.contents.contains(keptPath)) << Paths().front();
    }
}

} // namespace
