// Rules: Options
#include "support/settings/Options.h"

#include "common/RuntimeError.h"
#include "resources/controls.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeForm.h"
#include "tests/fakes/FakeFormWindow.h"
#include "tests/fakes/FakeProfile.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kGerman = "C:\\prog\\tntlng_de.ini";
constexpr const char* kEnglish = "C:\\prog\\tntlng_us.ini";

class FakeMarks : public MenuMarks {
public:
    void SetMenuChecked(int command, bool checked) override { marks[command] = checked; }

    std::map<int, bool> marks;
};

class OptionsTest : public testing::Test {
protected:
    OptionsTest() {
        for (const char* file : {kGerman, kEnglish})
            files.contents[file] = "";
        for (FakeForm* form : {&main, &about, &progress})
            form->Add("lbl", "Label");
    }
    [[nodiscard]] std::vector<LocalizableForm*> Forms() { return {&main, &about, &progress}; }
    [[nodiscard]] std::string Caption() { return main.Controls()[0]->Property("Caption"); }

    FakeProfile profile;
    FakeFiles files;
    FakeCodePage codePage = FakeCodePage::Western();
    clsMultiLanguage language{profile, files, codePage};
    FakeForm main{"frmMain"};
    FakeForm about{"frmAbout"};
    FakeForm progress{"frmProgress"};
    Localisation localisation{language, "C:\\prog", [this] { return Forms(); }};
    Settings settings;
    FakeMarks menu;
    FakeFormWindow window;
    int saves = 0;
    Options options{{settings, localisation, menu, window, [this] { ++saves; }}};
};

TEST_F(OptionsTest, LanguageFileIsTheProgramFolderTheCodeAndIni) {
    localisation.Choose(0);
    EXPECT_EQ(language.IniFile(), kGerman);
    localisation.Choose(1);
    EXPECT_EQ(language.IniFile(), kEnglish);
}

TEST_F(OptionsTest, LanguageNumberOutsideTheTableIsABoundsError) {
    for (const int number : {-1, 2, 32767})
        try {
            localisation.Choose(number);
            FAIL() << number;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::SubscriptOutOfRange);
        }
}

TEST_F(OptionsTest, FormsTakeTheirTextsInTheirOrder) {
    options.mnuOptionsLngGerman_Click();
    EXPECT_EQ(profile.asked, (Lines{"frmMain/lbl.Caption", "frmMain/lbl.ToolTipText",
                                    "frmAbout/lbl.Caption", "frmAbout/lbl.ToolTipText",
                                    "frmProgress/lbl.Caption", "frmProgress/lbl.ToolTipText"}));
}

TEST_F(OptionsTest, LanguageCommandSetsNumberFileAndTheOneMark) {
    options.mnuOptionsLngGerman_Click();
    EXPECT_EQ(settings.language, 0);
    EXPECT_EQ(menu.marks, (std::map<int, bool>{{IDM_mnuOptionsLngGerman, true},
                                               {IDM_mnuOptionsLngEnglish, false}}));
    options.mnuOptionsLngEnglish_Click();
    EXPECT_EQ(settings.language, 1);
    EXPECT_EQ(language.IniFile(), kEnglish);
    EXPECT_EQ(menu.marks, (std::map<int, bool>{{IDM_mnuOptionsLngGerman, false},
                                               {IDM_mnuOptionsLngEnglish, true}}));
}

TEST_F(OptionsTest, ChoosingTheActiveLanguageReadsTheFileAgain) {
    options.mnuOptionsLngGerman_Click();
    const auto marks = menu.marks;
    profile.values[{kGerman, "frmMain", "lbl.Caption"}] = "neu";
    options.mnuOptionsLngGerman_Click();
    EXPECT_EQ(Caption(), "neu");
    EXPECT_EQ(menu.marks, marks);
    EXPECT_EQ(settings.language, 0);
}

TEST_F(OptionsTest, LanguageWithoutItsFileLeavesEveryTextAndMessagesSaySo) {
    profile.values[{kEnglish, "frmMain", "lbl.Caption"}] = "English";
    options.mnuOptionsLngEnglish_Click();
    files.contents.erase(kGerman);
    options.mnuOptionsLngGerman_Click();
    EXPECT_EQ(Caption(), "English");
    EXPECT_EQ(language.IniFile(), "");
    EXPECT_EQ(language.GetInfoText(5), "INI file doesn't exists ");
}

TEST_F(OptionsTest, LanguageIsNotStoredByItsCommand) {
    options.mnuOptionsLngGerman_Click();
    EXPECT_EQ(saves, 0);
    options.mnuOptionsSaveSettings_Click();
    EXPECT_EQ(saves, 1);
}

TEST_F(OptionsTest, ToggleNegatesTheMarkAndTheSettingFollowsTheMark) {
    settings.confirmDel = settings.createBackups = true; // the marks start unset all the same
    options.mnuOptionsConfirmDel_Click();
    options.mnuOptionsCreateBackups_Click();
    EXPECT_TRUE(settings.confirmDel && settings.createBackups);
    EXPECT_TRUE(menu.marks.at(IDM_mnuOptionsConfirmDel));
    EXPECT_TRUE(menu.marks.at(IDM_mnuOptionsCreateBackups));
    options.mnuOptionsConfirmDel_Click();
    EXPECT_FALSE(settings.confirmDel);
    EXPECT_FALSE(menu.marks.at(IDM_mnuOptionsConfirmDel));
    EXPECT_TRUE(settings.createBackups);
    EXPECT_TRUE(window.topmost.empty());
}

TEST_F(OptionsTest, AlwaysOnTopToggledTwiceLeavesTheWindowNotTopmostAndTheFlagFalse) {
    settings.alwaysOnTop = false;
    options.mnuOptionsAlwaysOnTop_Click();
    EXPECT_TRUE(settings.alwaysOnTop);
    options.mnuOptionsAlwaysOnTop_Click();
    EXPECT_FALSE(settings.alwaysOnTop);
    EXPECT_FALSE(menu.marks.at(IDM_mnuOptionsAlwaysOnTop));
    EXPECT_EQ(window.topmost, (std::vector<bool>{true, false}));
}

TEST_F(OptionsTest, AtStartUpTheOneToggleKeepsTheFlagAndSetsMarkAndWindow) {
    settings.alwaysOnTop = true;
    options.mnuOptionsAlwaysOnTop_Click();
    EXPECT_TRUE(settings.alwaysOnTop);
    EXPECT_TRUE(menu.marks.at(IDM_mnuOptionsAlwaysOnTop));
    EXPECT_EQ(window.topmost, std::vector<bool>{true});
}

TEST_F(OptionsTest, MarksOfConfirmDelAndCreateBackupsFollowTheLoadedSettings) {
    settings.confirmDel = false;
    settings.createBackups = true;
    options.ShowConfirmDelAndCreateBackups();
    EXPECT_FALSE(menu.marks.at(IDM_mnuOptionsConfirmDel));
    EXPECT_TRUE(menu.marks.at(IDM_mnuOptionsCreateBackups));
}

} // namespace
