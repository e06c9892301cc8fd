// Rules: Start-up and shut-down
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/fakes/LibraryText.h"

#include <gtest/gtest.h>

namespace {

class StartUpTest : public testing::Test {
protected:
    FakeProgram program;
};

TEST_F(StartUpTest, FirstStartWithAnEmptyRegistryCentresTheWindowAndShowsIt) {
    program.application.Start();
    EXPECT_TRUE(program.view.isShown);
    EXPECT_EQ(program.mainWindow.bounds, (TwipsRect{2880, 2160, 9600, 7200}));
}

TEST_F(StartUpTest, FirstStartIsEnglishOnTopWithConfirmationAndBackups) {
    program.application.Start();
    EXPECT_EQ(program.language.IniFile(), "C:\\prog\\tntlng_us.ini");
    EXPECT_TRUE(program.view.checks.at(IDM_mnuOptionsLngEnglish));
    EXPECT_FALSE(program.view.checks.at(IDM_mnuOptionsLngGerman));
    EXPECT_EQ(program.mainWindow.topmost, std::vector<bool>{true});
    EXPECT_TRUE(program.view.checks.at(IDM_mnuOptionsAlwaysOnTop));
    EXPECT_TRUE(program.view.checks.at(IDM_mnuOptionsConfirmDel));
    EXPECT_TRUE(program.view.checks.at(IDM_mnuOptionsCreateBackups));
}

TEST_F(StartUpTest, FirstStartShowsToolbarColorAndSolidWorksBarsAlone) {
    program.application.Start();
    EXPECT_TRUE(program.view.toolbarVisible);
    EXPECT_FALSE(program.view.statusBarVisible);
    EXPECT_FALSE(program.view.buttonsVisible.at("New"));
    EXPECT_FALSE(program.view.buttonsVisible.at("View Details"));
    EXPECT_FALSE(program.view.buttonsVisible.contains("Cut")) << "shown as designed";
    EXPECT_FALSE(program.view.buttonsVisible.contains("GetSWX"));
    EXPECT_FALSE(program.view.layout.hugeFrameShown);
}

TEST_F(StartUpTest, ViewsThatDifferFromTheDesignTakeTheirPlacesOnceForAll) {
    program.application.Start();
    EXPECT_EQ(program.view.barArrangements, 1);
}

TEST_F(StartUpTest, ListStartsInItsDetailViewWithItsColumns) {
    program.application.Start();
    EXPECT_EQ(program.view.listMode, ListViewMode::Details);
    EXPECT_TRUE(program.view.presses.at("View Details"));
    EXPECT_TRUE(program.view.checks.at(IDM_mnuViewColorDetails));
    EXPECT_FALSE(program.view.checks.at(IDM_mnuViewColorList));
    EXPECT_EQ(program.view.columns.size(), 10U);
}

TEST_F(StartUpTest, EditorStartsWithTheInitialColor) {
    program.application.Start();
    EXPECT_EQ(program.view.colorName, "New Color");
    EXPECT_EQ(program.view.valueTexts[6], "30");
}

TEST_F(StartUpTest, StoredSettingsReplaceTheDefaults) {
    program.registry.SetText(FakeProgram::Setting("Language"), "0");
    program.registry.SetText(FakeProgram::Setting("AlwaysOnTop"), "False");
    program.registry.SetText(FakeProgram::Setting("ViewStatusBar"), "True");
    program.registry.SetText(FakeProgram::Setting("ViewHugeColorDialog"), "True");
    program.registry.SetText(FakeProgram::Setting("ViewToolbar"), "False");
    program.application.Start();
    EXPECT_EQ(program.language.IniFile(), "C:\\prog\\tntlng_de.ini");
    EXPECT_TRUE(program.mainWindow.topmost.empty());
    EXPECT_TRUE(program.view.statusBarVisible);
    EXPECT_TRUE(program.view.layout.hugeFrameShown);
    EXPECT_TRUE(program.view.checks.at(IDM_mnuViewHugeColorDialog));
    EXPECT_FALSE(program.view.toolbarVisible);
}

TEST_F(StartUpTest, LanguageNumberTwoSelectsNoLanguage) {
    program.registry.SetText(FakeProgram::Setting("Language"), "2");
    program.application.Start();
    EXPECT_EQ(program.language.IniFile(), "");
    EXPECT_FALSE(program.view.checks.contains(IDM_mnuOptionsLngEnglish));
}

TEST_F(StartUpTest, SettingThatDoesNotConvertIsReportedOnceAndKeepsItsDefault) {
    program.registry.SetText(FakeProgram::Setting("Language"), "English");
    program.registry.SetText(FakeProgram::Setting("ConfirmDel"), "maybe");
    program.application.Start();
    ASSERT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_EQ(program.prompts.messages[0],
              (FakePrompts::Message{"<3>\r\nStored settings that cannot be understood; their "
                                    "defaults are used: Language, ConfirmDel. Options, Save "
                                    "settings, replaces them.",
                                    48, "<98>"}));
    EXPECT_TRUE(program.view.isShown);
    EXPECT_EQ(program.language.IniFile(), "C:\\prog\\tntlng_us.ini");
    EXPECT_TRUE(program.view.checks.at(IDM_mnuOptionsConfirmDel));
}

TEST_F(StartUpTest, StoredPositionIsRestored) {
    program.registry.SetText("SOFTWARE\\Chromixs\\TNT4SWX\\Form Positions|frmMain",
                             "L=100;T=200;W=3000;H=4000;S=0;");
    program.application.Start();
    EXPECT_EQ(program.mainWindow.bounds, (TwipsRect{100, 200, 3000, 4000}));
}

TEST_F(StartUpTest, DefaultLibraryIsLoadedWithoutAQuestion) {
    program.files.contents["C:\\a.tnt"] = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
    program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
    program.application.Start();
    EXPECT_EQ(program.view.nodes.at("0D"), "Lib");
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(StartUpTest, DefaultLibraryThatIsGoneLeavesAnEmptyTreeAndNoMessage) {
    program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\gone.tnt");
    program.application.Start();
    EXPECT_TRUE(program.view.nodes.empty());
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_TRUE(program.prompts.questions.empty());
}

TEST_F(StartUpTest, DefaultLibraryThatIsNoneGivesTheInvalidFileMessageAndTheWindowIsShown) {
    program.files.contents["C:\\a.tnt"] = "rubbish";
    program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
    program.application.Start();
    ASSERT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_EQ(program.prompts.messages[0].prompt, "<5> C:\\a.tnt");
    EXPECT_TRUE(program.view.isShown);
}

TEST_F(StartUpTest, DefaultLibraryWithAFaultGivesTheInvalidFileMessageAndKeepsWhatWasReadBefore) {
    program.files.contents["C:\\a.tnt"] = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n\"G#rubbish\"\r\n";
    program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
    program.application.Start();
    ASSERT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_EQ(program.prompts.messages[0].prompt, "<5> C:\\a.tnt");
    EXPECT_EQ(program.view.nodes.at("0D"), "Lib");
    EXPECT_EQ(program.view.nodes.at("0DG1"), "g");
    EXPECT_TRUE(program.view.isShown);
}

TEST_F(StartUpTest, DefaultLibraryWithABrokenValueIsReportedAndTheWindowIsShown) {
    program.files.contents["C:\\a.tnt"] =
        "\"D#L=0D:1\"\r\n\"G#g=0DG1\"\r\n" + ColorLine("0DG1", "a", "99999");
    program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
    program.application.Start();
    ASSERT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_EQ(
        program.prompts.messages[0].prompt,
        "<3>\r\nThis number is not between -32768 and 32767: 99999\r\nFile: C:\\a.tnt, line 3");
    EXPECT_EQ(program.view.nodes.at("0DG1"), "g") << "what was read stays";
    EXPECT_TRUE(program.view.isShown);
}

TEST_F(StartUpTest, BannerStartsAtTheStoredIndexOrAtOne) {
    for (const auto& [stored, expected] : {std::pair{"2", 2}, std::pair{"0", 1}, std::pair{"4", 1},
                                           std::pair{"x", 1}, std::pair{"", 1}}) {
        FakeProgram other;
        other.registry.SetText(FakeProgram::Setting("LastSponsorShown"), stored);
        other.application.Start();
        EXPECT_EQ(other.view.banner, expected) << stored;
        EXPECT_EQ(other.about.banner, expected);
    }
}

TEST_F(StartUpTest, QuitFromTheMenuStoresTheBannerAloneAndAsksNothing) {
    program.application.Start();
    program.Main().banner.BannerTicked();
    program.registry.written.clear();
    program.Main().frame.RunCommand(IDM_mnuQuit);
    EXPECT_EQ(program.registry.written,
              std::vector<std::string>{FakeProgram::Setting("LastSponsorShown")});
    EXPECT_EQ(program.registry.Text(FakeProgram::Setting("LastSponsorShown")), "2");
    EXPECT_TRUE(program.view.isEnded);
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(StartUpTest, CloseBoxStoresThePositionBeforeItQuits) {
    program.application.Start();
    program.registry.written.clear();
    program.Main().frame.WindowClosing();
    EXPECT_EQ(program.registry.written,
              (std::vector<std::string>{"SOFTWARE\\Chromixs\\TNT4SWX\\Form Positions|frmMain",
                                        FakeProgram::Setting("LastSponsorShown")}));
    EXPECT_TRUE(program.view.isEnded);
}

TEST_F(StartUpTest, OptionsAreStoredByTheSaveCommandAlone) {
    program.application.Start();
    program.Main().frame.RunCommand(IDM_mnuOptionsConfirmDel);
    EXPECT_EQ(program.registry.Text(FakeProgram::Setting("ConfirmDel")), "(none)");
    program.Main().frame.RunCommand(IDM_mnuOptionsSaveSettings);
    EXPECT_EQ(program.registry.Text(FakeProgram::Setting("ConfirmDel")), "False");
    EXPECT_EQ(program.registry.Text(FakeProgram::Setting("Language")), "1");
    EXPECT_EQ(program.registry.Text(FakeProgram::Setting("ViewToolbar")), "True");
}

} // namespace
