// Rules: Console program
#include "converter/Converter.h"

#include "common/Windows1252.h"
#include "tests/converter/FakeConsole.h"
#include "tests/fakes/FakeFiles.h"

#include <gtest/gtest.h>
#include <new>

namespace {

using FailureKind = FakeFiles::FailureKind;

constexpr const char* kGpl = "GIMP Palette\nName: Meins\n#\n255 204 77 Sonne\n0 0 0 Nacht\n";
constexpr const char* kLibrary = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n"
                                 "\"E#a=0DG1:second\xF7"
                                 "1\xF7"
                                 "2\xF7"
                                 "3\xF7"
                                 "4\xF7"
                                 "5\xF7"
                                 "6\xF7"
                                 "7\xF7"
                                 "8\xF7"
                                 "9\"\r\n";
constexpr const char* kHead = "group,name,red,green,blue,ambient,diffuse,specular,shininess,"
                              "transparency,emission\r\n";

class ConverterTest : public testing::Test {
protected:
    ConverterTest() {
        files.contents["a.gpl"] = kGpl;
        files.contents["a.tnt"] = kLibrary;
    }

    int Run(const std::vector<std::string>& arguments) {
        console.out.clear();
        console.told.clear();
        return static_cast<int>(RunConverter(
            arguments, "1.2.3",
            {files, console, [](std::optional<unsigned> number) -> std::unique_ptr<AnsiCodePage> {
                 return number == 7U
                            ? nullptr
                            : std::make_unique<SingleByteCodePage>(Windows1252::CodePage());
             }}));
    }
    // What is told of a file.
    [[nodiscard]] static std::string About(const std::string& file, const std::string& words) {
        return "tnt-convert: " + file + ": " + words + "\n";
    }
    [[nodiscard]] std::string Content(const std::string& path) { return files.contents.at(path); }
    // The bytes behind the mark of a table.
    [[nodiscard]] std::string Table(const std::string& path) { return Content(path).substr(3); }

    FakeFiles files;
    FakeConsole console;
};

TEST_F(ConverterTest, FileIsWrittenAsItsEndingSaysAndReadByItsContent) {
    files.contents["misnamed.ase"] = kGpl;
    EXPECT_EQ(Run({"misnamed.ase", "b.CSV", "--name", ""}), 0);
    EXPECT_EQ(console.told, "");
    EXPECT_EQ(Table("b.CSV"), kHead + std::string(",Sonne,255,204,77,100,100,100,30,0,0\r\n"
                                                  ",Nacht,0,0,0,100,100,100,30,0,0\r\n"));
}

TEST_F(ConverterTest, PaletteBecomesALibraryWithItsNameAndTheUsualValues) {
    EXPECT_EQ(Run({"a.gpl", "b.tnt"}), 0);
    EXPECT_TRUE(Content("b.tnt").starts_with("\"D#Meins=0D:3\"\r\n\"G#Colors=0DG1\"\r\n"
                                             "\"E#Sonne=0DG1:Sonne"));
    EXPECT_NE(Content("b.tnt").find("204\xF7"
                                    "77\xF7"
                                    "100\xF7"
                                    "100\xF7"
                                    "100\xF7"
                                    "30\xF7"
                                    "0\xF7"
                                    "0\""),
              std::string::npos);
}

TEST_F(ConverterTest, LibraryWithoutANameIsCalledAfterTheFile) {
    files.contents["C:\\x.y\\Meine Farben.v2.csv"] = "red,green,blue\n1,2,3\n";
    EXPECT_EQ(Run({"C:\\x.y\\Meine Farben.v2.csv", "b.tnt"}), 0);
    EXPECT_EQ(Content("b.tnt").substr(0, 24), "\"D#Meine Farben.v2=0D:2\"");
    files.contents["dir/plain"] = "red,green,blue\n1,2,3\n";
    EXPECT_EQ(Run({"dir/plain", "c.tnt"}), 0);
    EXPECT_EQ(Content("c.tnt").substr(0, 13), "\"D#plain=0D:2");
}

TEST_F(ConverterTest, NameIsTheOneThatIsGiven) {
    EXPECT_EQ(Run({"a.gpl", "b.tnt", "--name", "Ähre"}), 0);
    EXPECT_EQ(Content("b.tnt").substr(0, 9), "\"D#\xC4hre=0");
    EXPECT_EQ(Run({"a.tnt", "c.tnt", "--name", "Other"}), 0);
    EXPECT_EQ(Content("c.tnt").substr(0, 12), "\"D#Other=0D:");
    EXPECT_EQ(Run({"a.gpl", "b.gpl", "--name", "Other"}), 0);
    EXPECT_EQ(Content("b.gpl").substr(13, 11), "Name: Other");
}

TEST_F(ConverterTest, ValuesAreThoseOfColorsThatHaveNone) {
    files.contents["b.csv"] = "name,red,green,blue,ambient\na,1,2,3,\nb,1,2,3,50\n";
    EXPECT_EQ(Run({"b.csv", "c.csv", "--values", "9,8,7,6,5,4"}), 0);
    EXPECT_EQ(Table("c.csv"), kHead + std::string(",a,1,2,3,9,8,7,6,5,4\r\n"
                                                  ",b,1,2,3,50,8,7,6,5,4\r\n"));
    EXPECT_EQ(Run({"a.gpl", "c.tnt", "--values", "9,8,7,6,5,4"}), 0);
    EXPECT_NE(Content("c.tnt").find("77\xF7"
                                    "9\xF7"
                                    "8\xF7"
                                    "7\xF7"
                                    "6\xF7"
                                    "5\xF7"
                                    "4\""),
              std::string::npos);
}

TEST_F(ConverterTest, LibraryGoesToALibraryWithAllThatItHas) {
    EXPECT_EQ(Run({"a.tnt", "b.tnt"}), 0);
    EXPECT_EQ(Content("b.tnt"), kLibrary);
    EXPECT_EQ(console.told, "");
}

TEST_F(ConverterTest, WhatAFormatDoesNotHoldIsTold) {
    EXPECT_EQ(Run({"a.tnt", "b.gpl"}), 1);
    EXPECT_EQ(console.told, About("b.gpl", "groups that are not kept as groups of their own: 1") +
                                About("b.gpl", "colors without their material values: 1"));
    EXPECT_EQ(Run({"a.tnt", "b.csv"}), 1);
    EXPECT_EQ(console.told, About("b.csv", "name of the palette, not kept or changed: 1"));
}

TEST_F(ConverterTest, WhatCouldNotBeReadIsTold) {
    files.contents["b.gpl"] = std::string(kGpl) + "300 0 0 too much\n";
    EXPECT_EQ(Run({"b.gpl", "b.tnt"}), 1);
    EXPECT_EQ(console.told,
              About("b.gpl", "colors with a value beyond its range, left out: 1 (first: line 6)"));
    EXPECT_TRUE(files.contents.contains("b.tnt"));
}

TEST_F(ConverterTest, NamesThatALibraryFileCannotHoldAreChangedAndTold) {
    files.contents["b.gpl"] = "GIMP Palette\n1 2 3 a=b\n1 2 3 Ж\n";
    EXPECT_EQ(Run({"b.gpl", "b.tnt"}), 1);
    EXPECT_EQ(
        console.told,
        About("b.tnt", "names with \"=\", a division sign or a line break, changed: 1") +
            About("b.tnt",
                  "characters that the code page does not have, \"?\" stands for them: 1 (Ж)"));
    EXPECT_EQ(Run({"--list", "b.tnt"}), 0);
    EXPECT_EQ(console.out, "Colors\ta-b\t1\t2\t3\t100\t100\t100\t30\t0\t0\n"
                           "Colors\t?\t1\t2\t3\t100\t100\t100\t30\t0\t0\n");
}

TEST_F(ConverterTest, LibraryWithABrokenEndIsReadUpToIt) {
    files.contents["b.tnt"] = std::string(kLibrary) + "\"E#broken\"\r\n";
    EXPECT_EQ(Run({"b.tnt", "c.tnt"}), 1);
    EXPECT_EQ(console.told, About("b.tnt", "a line that is no record of a library; it and what "
                                           "follows is left out, line 4"));
    EXPECT_EQ(Content("c.tnt"), kLibrary);
    files.contents["b.tnt"] = std::string(kLibrary).replace(std::string(kLibrary).find("\xF7"
                                                                                       "9"),
                                                            2, "\xF7x");
    EXPECT_EQ(Run({"--check", "b.tnt"}), 1);
    EXPECT_EQ(console.told, About("b.tnt", "This is not a number: \"x\"; it and what follows is "
                                           "left out, line 3"));
}

TEST_F(ConverterTest, FurtherLibraryInAFileIsToldAndItsGroupsBelongToTheFirst) {
    files.contents["b.tnt"] = "\"D#A=0D:1\"\r\n\"G#g=0DG1\"\r\n\"D#B=1D:1\"\r\n\"G#h=1DG1\"\r\n";
    EXPECT_EQ(Run({"--check", "b.tnt"}), 1);
    EXPECT_EQ(console.told, About("b.tnt", "lines of which a part means nothing here or is spelled "
                                           "in another way"));
    EXPECT_EQ(console.out, "kind: color library (.tnt)\nname: A\ngroups: 2\ncolors: 0\n");
}

TEST_F(ConverterTest, ValuesBeyondTheirRangeAreToldOfPalettesAlone) {
    std::string odd = kLibrary;
    odd.replace(odd.find("\xF7"
                         "9"),
                2,
                "\xF7"
                "101");
    files.contents["b.tnt"] = odd;
    EXPECT_EQ(Run({"b.tnt", "c.tnt"}), 0);
    EXPECT_EQ(Content("c.tnt"), odd);
    const std::string words = "colors with values beyond their range, brought into it: 1";
    EXPECT_EQ(Run({"b.tnt", "c.csv", "--name", ""}), 1);
    EXPECT_EQ(console.told, About("c.csv", words));
    EXPECT_EQ(Run({"b.tnt", "--list"}), 1);
    EXPECT_EQ(console.told, About("b.tnt", words));
}

TEST_F(ConverterTest, ListGoesToStandardOutput) {
    EXPECT_EQ(Run({"--list", "a.tnt"}), 0);
    EXPECT_EQ(console.out, "g\ta\t1\t2\t3\t4\t5\t6\t7\t8\t9\n");
    EXPECT_EQ(Run({"--list", "a.gpl"}), 0);
    EXPECT_EQ(console.out, "\tSonne\t255\t204\t77\t100\t100\t100\t30\t0\t0\n"
                           "\tNacht\t0\t0\t0\t100\t100\t100\t30\t0\t0\n");
    EXPECT_EQ(Run({"--list", "a.gpl", "--values", "1,2,3,4,5,6"}), 0);
    EXPECT_EQ(console.out, "\tSonne\t255\t204\t77\t1\t2\t3\t4\t5\t6\n"
                           "\tNacht\t0\t0\t0\t1\t2\t3\t4\t5\t6\n");
    EXPECT_EQ(console.told, "");
}

TEST_F(ConverterTest, CheckSaysWhatTheFileIs) {
    EXPECT_EQ(Run({"--check", "a.gpl"}), 0);
    EXPECT_EQ(console.out, "kind: GIMP palette (.gpl)\nname: Meins\ngroups: 0\ncolors: 2\n");
    Run({"a.tnt", "b.ase"});
    EXPECT_EQ(Run({"--check", "b.ase"}), 0);
    EXPECT_EQ(console.out, "kind: Adobe swatch exchange (.ase)\nname: \ngroups: 1\ncolors: 1\n");
    Run({"a.tnt", "b.aco"});
    EXPECT_EQ(Run({"--check", "b.aco"}), 0);
    EXPECT_EQ(console.out, "kind: Adobe color (.aco)\nname: \ngroups: 0\ncolors: 1\n");
    Run({"a.tnt", "b.txt"});
    EXPECT_EQ(Run({"--check", "b.txt"}), 0);
    EXPECT_EQ(console.out, "kind: table (.csv, .txt)\nname: \ngroups: 1\ncolors: 1\n");
}

TEST_F(ConverterTest, OutputThatTakesNothingIsTold) {
    console.isFull = true;
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--list", "a.gpl"}, {"--check", "a.gpl"}}) {
        EXPECT_EQ(Run(arguments), 4);
        EXPECT_EQ(console.told, About("standard output", "cannot be written"));
    }
    EXPECT_EQ(Run({"--version"}), 4);
}

TEST_F(ConverterTest, ExistingFileIsReplacedWhenThatIsAskedForAlone) {
    files.contents["b.gpl"] = "old";
    EXPECT_EQ(Run({"a.gpl", "b.gpl"}), 4);
    EXPECT_EQ(console.told, About("b.gpl", "exists; --force replaces it"));
    EXPECT_EQ(Content("b.gpl"), "old");
    EXPECT_EQ(Run({"a.gpl", "b.gpl", "--force"}), 0);
    EXPECT_EQ(Content("b.gpl").substr(0, 12), "GIMP Palette");
    EXPECT_FALSE(files.contents.contains("b.gpl.bak"));
    files.folders["folder.gpl"] = true;
    EXPECT_EQ(Run({"a.gpl", "folder.gpl"}), 4);
    EXPECT_EQ(Run({"a.gpl", "folder.gpl", "--force"}), 4);
}

TEST_F(ConverterTest, FileIsReplacedByItselfWhenThatIsAskedForAlone) {
    EXPECT_EQ(Run({"a.tnt", "a.tnt"}), 4);
    EXPECT_EQ(Content("a.tnt"), kLibrary);
    EXPECT_EQ(Run({"a.tnt", "a.tnt", "--force", "--name", "New"}), 0);
    EXPECT_EQ(Content("a.tnt").substr(0, 7), "\"D#New=");
}

TEST_F(ConverterTest, FileThatComesMeanwhileIsNotReplaced) {
    class Newcomer : public FakeFiles {
    public:
        bool Rename(const std::string& from, const std::string& to) override {
            contents[to] = "newcomer";
            return FakeFiles::Rename(from, to);
        }
    } others;
    others.contents["a.gpl"] = kGpl;
    const ExitCode exitCode =
        RunConverter({"a.gpl", "b.csv"}, "1",
                     {others, console, [](std::optional<unsigned>) {
                          return std::make_unique<SingleByteCodePage>(Windows1252::CodePage());
                      }});
    EXPECT_EQ(exitCode, ExitCode::NotWritten);
    EXPECT_EQ(others.contents["b.csv"], "newcomer");
    EXPECT_EQ(others.contents.size(), 2U);
}

TEST_F(ConverterTest, OldOrNewContentIsThereWhateverStepFails) {
    for (const FailureKind kind :
         {FailureKind::Reported, FailureKind::FromHereOn, FailureKind::Killed})
        for (const bool force : {false, true}) {
            int exitCode = 4;
            for (int step = 1; exitCode == 4; ++step) {
                ASSERT_LT(step, 20);
                files.contents.erase("b.gpl");
                if (force)
                    files.contents["b.gpl"] = "old";
                files.FailAtStep(step, kind);
                try {
                    exitCode = Run(force ? std::vector<std::string>{"a.gpl", "b.gpl", "--force"}
                                         : std::vector<std::string>{"a.gpl", "b.gpl"});
                } catch (const FakeFiles::Killed&) {
                    exitCode = 4;
                }
                const auto found = files.contents.find("b.gpl");
                const std::string now = found == files.contents.end() ? "" : found->second;
                EXPECT_TRUE(now == (force ? "old" : "") || now.ends_with("Nacht\n")) << now;
                EXPECT_TRUE(exitCode == 4 || now.ends_with("Nacht\n"));
                files.contents.erase("b.gpl.saving");
            }
            EXPECT_EQ(exitCode, 0);
        }
}

TEST_F(ConverterTest, ContentIsWholeBesideAPlaceThatSomebodyElseEmptiedAndFilled) {
    files.contents["b.gpl"] = "old";
    files.exchanges = Exchanged::OldIsGone;
    files.newcomer = "of somebody else";
    EXPECT_EQ(Run({"a.gpl", "b.gpl", "--force"}), 4);
    EXPECT_EQ(console.told, About("b.gpl", "is gone; the new content is beside it, whole, with "
                                           ".saving in its name"));
    EXPECT_TRUE(Content("b.gpl.saving").ends_with("Nacht\n"));
}

TEST_F(ConverterTest, FileIsReplacedInItsTurn) {
    files.contents["b.gpl"] = "old";
    std::vector<std::string> seen;
    files.onTurn = [&](const std::string& path) { seen.push_back(path + " " + Content(path)); };
    files.onTurnOver = [&] { seen.push_back(Content("b.gpl").substr(0, 4)); };
    EXPECT_EQ(Run({"a.gpl", "b.gpl", "--force"}), 0);
    EXPECT_EQ(seen, (std::vector<std::string>{"b.gpl old", "GIMP"}));
}

TEST_F(ConverterTest, WhatCannotBeReadIsTold) {
    EXPECT_EQ(Run({"none.gpl", "b.csv"}), 3);
    EXPECT_EQ(console.told, About("none.gpl", "cannot be read"));
    files.contents["text"] = "Dear Sir or Madam";
    const std::string words = "is neither a color library nor a palette that is known";
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"text", "b.csv"}, {"--list", "text"}, {"--check", "text"}}) {
        EXPECT_EQ(Run(arguments), 3);
        EXPECT_EQ(console.told, About("text", words));
        EXPECT_EQ(console.out, "");
    }
    EXPECT_FALSE(files.contents.contains("b.csv"));
}

TEST_F(ConverterTest, WrongUsageIsToldAndNothingDone) {
    EXPECT_EQ(Run({"a.gpl", "b.xyz"}), 2);
    EXPECT_EQ(console.told,
              About("b.xyz", "the ending is none of .tnt, .gpl, .ase, .aco, .csv, .txt"));
    EXPECT_EQ(Run({"a.gpl", "b.tnt", "--code-page", "7"}), 2);
    EXPECT_EQ(console.told, About("--code-page", "7 is not known here"));
    EXPECT_EQ(Run({"a.gpl"}), 2);
    EXPECT_NE(console.told, "");
    EXPECT_EQ(console.out, "");
    EXPECT_EQ(files.contents.size(), 2U);
}

TEST_F(ConverterTest, VersionGoesToStandardOutput) {
    EXPECT_EQ(Run({"--version"}), 0);
    EXPECT_EQ(console.out, "tnt-convert 1.2.3\n");
    EXPECT_EQ(console.told, "");
}

TEST_F(ConverterTest, LackOfMemoryIsToldAndHasACodeOfItsOwn) {
    const ExitCode exitCode =
        RunConverter({"a.gpl", "b.csv"}, "1",
                     {files, console, [](std::optional<unsigned>) -> std::unique_ptr<AnsiCodePage> {
                          throw std::bad_alloc();
                      }});
    EXPECT_EQ(exitCode, ExitCode::Failed);
    EXPECT_EQ(console.told, std::string("tnt-convert: error: ") + std::bad_alloc().what() + "\n");
}

TEST_F(ConverterTest, ProgressIsForWhoSitsInFrontOfATerminal) {
    console.isWatched = true;
    EXPECT_EQ(Run({"a.tnt", "b.tnt"}), 0);
    EXPECT_NE(console.told.find("\rreading 100 %"), std::string::npos);
    EXPECT_NE(console.told.find("\rwriting 100 %"), std::string::npos);
}

} // namespace
