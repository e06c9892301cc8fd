// Rules: Auxiliary windows
#include "resources/controls.h"
#include "support/windows/MakerAddresses.h"
#include "tests/fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;

// The link that a mail opens.
std::string MailLink(const std::string& address, const std::string& subject,
                     const std::string& body) {
    FakeShell shell;
    const modinternet links(shell);
    links.SendMail(address, subject, body);
    return shell.requests.at(0).file;
}

TEST(modinternet, MailAddressGetsItsPrefix) {
    EXPECT_EQ(MailLink("a@b.c", "", ""), "mailto:a@b.c");
    EXPECT_EQ(MailLink("mailt", "", ""), "mailto:mailt") << "shorter than the prefix";
}

TEST(modinternet, AddressThatBeginsWithMailToInAnyLetterCaseGetsNoSecondPrefix) {
    EXPECT_EQ(MailLink("MailTo:a@b.c", "", ""), "MailTo:a@b.c");
}

TEST(modinternet, BodyWithoutASubjectFollowsAQuestionMark) {
    EXPECT_EQ(MailLink("a@b.c", "", "body text"), "mailto:a@b.c?body=body text");
}

TEST(modinternet, SubjectAndBodyAreJoinedByAnAmpersand) {
    EXPECT_EQ(MailLink("a@b.c", "s", "ü"), "mailto:a@b.c?subject=s&body=ü");
}

TEST(modinternet, NothingInAMailLinkIsEscaped) {
    EXPECT_EQ(MailLink("a@b.c", "s & t", ""), "mailto:a@b.c?subject=s & t");
}

TEST(modinternet, MailHasNoOwnerNoParametersAndNoDirectory) {
    FakeShell shell;
    const modinternet links(shell);
    links.SendMail("a@b.c", "", "");
    EXPECT_EQ(shell.requests[0],
              (ShellRequest{ShellOwner::None, "open", "mailto:a@b.c", {}, {}, 5}));
}

TEST(modinternet, MailResultIsInverted) {
    FakeShell shell;
    const modinternet links(shell);
    EXPECT_FALSE(links.SendMail("a@b.c", "", "")) << "33 is success";
    shell.result = 0;
    EXPECT_TRUE(links.SendMail("a@b.c", "", ""));
}

TEST(modinternet, UrlIsOpenedByTheActiveWindowInTheDirectoryZero) {
    FakeShell shell;
    const modinternet links(shell);
    links.OpenURL("https://www.example.org");
    EXPECT_EQ(shell.requests[0], (ShellRequest{ShellOwner::ActiveWindow, "Open",
                                               "https://www.example.org", "", "0", 1}));
}

class AuxiliaryWindowsTest : public testing::Test {
protected:
    AuxiliaryWindowsTest() { program.application.Start(); }
    FakeProgram program;
};

TEST_F(AuxiliaryWindowsTest, AboutIsCaptionedCentredOnTopAndModal) {
    program.Main().frame.RunCommand(IDM_mnuHlpAbout);
    EXPECT_EQ(program.about.caption, "TNT4SWX - Info ");
    EXPECT_EQ(program.about.title, "TNT4SWX");
    EXPECT_EQ(program.about.version, "Version 1.2.7");
    EXPECT_EQ(program.about.bounds, (TwipsRect{4680, 3760, 6000, 4000}));
    EXPECT_EQ(program.about.topmost, std::vector<bool>{true});
    EXPECT_EQ(program.about.shown, 1);
}

TEST_F(AuxiliaryWindowsTest, AboutAndViewerTakeTheCurrentOnTopStateEachTimeTheyAreShown) {
    program.Main().frame.RunCommand(IDM_mnuOptionsAlwaysOnTop);
    program.Main().frame.RunCommand(IDM_mnuHlpAbout);
    program.Main().frame.RunCommand(IDM_mnuHlpShowReadme);
    EXPECT_EQ(program.about.topmost, std::vector<bool>{false});
    EXPECT_EQ(program.textViewer.topmost, std::vector<bool>{false});
    program.Main().frame.RunCommand(IDM_mnuOptionsAlwaysOnTop);
    program.Main().frame.RunCommand(IDM_mnuHlpAbout);
    program.Main().frame.RunCommand(IDM_mnuHlpShowReadme);
    EXPECT_EQ(program.about.topmost, (std::vector<bool>{false, true}));
    EXPECT_EQ(program.textViewer.topmost, (std::vector<bool>{false, true}));
}

TEST_F(AuxiliaryWindowsTest, AboutAndViewerAreMadeWhenTheyAreFirstShownAndGetTheBannerThen) {
    FakeProgram other;
    other.aboutWindow.isMade = other.textViewerWindow.isMade = other.progressWindow.isMade = false;
    other.application.Start();
    other.Main().frame.RunCommand(IDM_mnuOptionsLngGerman);
    EXPECT_FALSE(other.aboutWindow.isMade || other.textViewerWindow.isMade);
    EXPECT_FALSE(other.progressWindow.isMade);
    EXPECT_EQ(other.about.banner, -1);
    EXPECT_EQ(other.textViewer.banner, -1);
    other.Main().frame.RunCommand(IDM_mnuHlpAbout);
    EXPECT_FALSE(other.textViewerWindow.isMade);
    other.Main().frame.RunCommand(IDM_mnuHlpShowReadme);
    EXPECT_EQ(other.about.banner, 1);
    EXPECT_EQ(other.textViewer.banner, 1);
}

TEST_F(AuxiliaryWindowsTest, LanguageCommandGivesMainWindowAboutAndProgressTheirTextsInThisOrder) {
    program.mainForm.Add("lbl", "Label");
    program.about.form.Add("lbl", "Label");
    program.progressForm.form.Add("lbl", "Label");
    program.profile.asked.clear();
    program.Main().frame.RunCommand(IDM_mnuOptionsLngGerman);
    std::vector<std::string> captions;
    for (const std::string& key : program.profile.asked)
        if (key.ends_with("/lbl.Caption"))
            captions.push_back(key);
    EXPECT_EQ(captions, (std::vector<std::string>{"frmMain/lbl.Caption", "frmAbout/lbl.Caption",
                                                  "frmProgress/lbl.Caption"}));
}

TEST_F(AuxiliaryWindowsTest, AboutIsNeverRestoredAlthoughItIsStored) {
    program.Main().frame.RunCommand(IDM_mnuHlpAbout);
    program.about.bounds = {100, 200, 6000, 4000};
    program.application.AboutWindowEvents().AboutUnloading();
    EXPECT_EQ(program.registry.Text("SOFTWARE\\Chromixs\\TNT4SWX\\Form Positions|frmAbout"),
              "L=100;T=200;W=6000;H=4000;S=0;");
    program.Main().frame.RunCommand(IDM_mnuHlpAbout);
    EXPECT_EQ(program.about.bounds.left, 4680);
}

TEST_F(AuxiliaryWindowsTest, AboutsLinksHaveTheirFixedTexts) {
    program.application.AboutWindowEvents().HomepageClicked();
    program.application.AboutWindowEvents().MailClicked();
    EXPECT_EQ(program.shell.requests[0].file, MakerAddresses::HomePage);
    EXPECT_EQ(program.shell.requests[1].file,
              std::string("mailto:") + MakerAddresses::SupportMail +
                  "?subject=TNT4SWX Mail&body=Ich möchte gerne einen Kommentar zu TNT4SWX "
                  "abgegeben ...");
}

TEST_F(AuxiliaryWindowsTest, SystemInformationRunsTheRegisteredProgram) {
    program.registry.SetText("HKLM:SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH",
                             "C:\\m\\msinfo32.exe");
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_EQ(program.shell.programs, std::vector<std::string>{"C:\\m\\msinfo32.exe"});
}

TEST_F(AuxiliaryWindowsTest, SystemInformationTakesARegisteredPathUpToItsFirstNul) {
    program.registry.values["HKLM:SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = {
        RegistryType::String, std::string("C:\\a.exe\0rest\0", 14)};
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_EQ(program.shell.programs, std::vector<std::string>{"C:\\a.exe"});
}

TEST_F(AuxiliaryWindowsTest, RegisteredPathComesBeforeTheFolder) {
    program.registry.SetText("HKLM:SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH", "C:\\a.exe");
    program.registry.SetText("HKLM:SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO", "C:\\m");
    program.files.contents["C:\\m\\MSINFO32.EXE"] = "";
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_EQ(program.shell.programs, std::vector<std::string>{"C:\\a.exe"});
}

TEST_F(AuxiliaryWindowsTest, FolderWithoutTheSystemInformationProgramGivesTheMessage) {
    program.registry.SetText("HKLM:SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO", "C:\\m");
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_TRUE(program.shell.programs.empty());
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(AuxiliaryWindowsTest, SystemInformationThatDoesNotStartGivesTheMessage) {
    program.registry.SetText("HKLM:SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH", "C:\\a.exe");
    program.shell.starts = false;
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(AuxiliaryWindowsTest, SystemInformationIsLookedForInItsFolder) {
    program.registry.SetText("HKLM:SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO", "C:\\m");
    program.files.contents["C:\\m\\MSINFO32.EXE"] = "";
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_EQ(program.shell.programs, std::vector<std::string>{"C:\\m\\MSINFO32.EXE"});
}

TEST_F(AuxiliaryWindowsTest, WithoutSystemInformationTheFixedGermanTextIsShown) {
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_TRUE(program.shell.programs.empty());
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{
                  {"Systeminformationen sind momentan nicht verfügbar", 0, "TNT4SWX"}}));
}

TEST_F(AuxiliaryWindowsTest, NumberInTheRegistryIsTakenAsHexadecimalText) {
    program.registry.values["HKLM:SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = {
        RegistryType::DWord, std::string("\xFF\x01\0\0", 4)};
    program.application.AboutWindowEvents().SystemInfoClicked();
    EXPECT_EQ(program.shell.programs, std::vector<std::string>{"&h1FF"});
}

TEST_F(AuxiliaryWindowsTest, ViewerHasItsFiveEntriesAndShowsTheOneAskedFor) {
    program.files.contents["C:\\prog\\readme_us.txt"] = "Read \xFC"
                                                        "ber";
    program.Main().frame.RunCommand(IDM_mnuHlpShowReadme);
    EXPECT_EQ(program.textViewer.entries,
              (std::vector<std::string>{"readme", "lizenz", "changes", "todo", "limitations"}));
    EXPECT_EQ(program.textViewer.names, (std::vector<std::string>{"<293>", "<294>"}));
    EXPECT_EQ(program.textViewer.selected, 0);
    EXPECT_EQ(program.textViewer.text, "Read über");
    EXPECT_EQ(program.textViewer.shown, 1);
    program.Main().frame.RunCommand(IDM_mnuHlpShowLizenz);
    EXPECT_EQ(program.textViewer.selected, 1);
}

TEST_F(AuxiliaryWindowsTest, EntryChangesInLanguageNumberOneLoadsChangesUsFromTheProgramFolder) {
    program.files.contents["C:\\prog\\changes_us.txt"] = "changes";
    program.application.TextViewerWindowEvents().EntryChosen(2);
    EXPECT_EQ(program.textViewer.text, "changes");
}

TEST_F(AuxiliaryWindowsTest, ViewerChangesItsLanguageOnlyWhenAnEntryIsChosen) {
    program.files.contents["C:\\prog\\changes_us.txt"] = "changes";
    program.files.contents["C:\\prog\\changes_de.txt"] = "neu";
    program.application.TextViewerWindowEvents().EntryChosen(2);
    program.Main().frame.RunCommand(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(program.textViewer.text, "changes");
    program.application.TextViewerWindowEvents().EntryChosen(2);
    EXPECT_EQ(program.textViewer.text, "neu");
}

TEST_F(AuxiliaryWindowsTest, EntryWithoutItsFileShowsTheFullPathAndMissingFile) {
    program.Main().frame.RunCommand(IDM_mnuOptionsLngGerman);
    program.application.TextViewerWindowEvents().EntryChosen(3);
    EXPECT_EQ(program.textViewer.text, "C:\\prog\\todo_de.txt: missing file");
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(AuxiliaryWindowsTest, FileThatCannotBeReadCountsAsMissing) {
    program.files.contents["C:\\prog\\todo_us.txt"] = "x";
    program.files.unreadable["C:\\prog\\todo_us.txt"] = true;
    program.application.TextViewerWindowEvents().EntryChosen(3);
    EXPECT_EQ(program.textViewer.text, "C:\\prog\\todo_us.txt: missing file");
}

TEST_F(AuxiliaryWindowsTest, LanguageNumberWithoutACodeShowsTheMissingFileText) {
    FakeProgram other;
    other.registry.SetText(FakeProgram::Setting("Language"), "7");
    other.application.Start();
    other.application.TextViewerWindowEvents().EntryChosen(0);
    EXPECT_EQ(other.textViewer.text, "C:\\prog\\readme_.txt: missing file");
}

TEST_F(AuxiliaryWindowsTest, ViewersTextLeavesItsMarginsAndIsNeverBelowFive) {
    const TextViewerEvents& viewer = program.application.TextViewerWindowEvents();
    EXPECT_EQ(viewer.TextSize({9000, 6000}), (TwipsSize{7100, 5375}));
    EXPECT_EQ(viewer.TextSize({100, 100}), (TwipsSize{5, 5}));
}

TEST_F(AuxiliaryWindowsTest, StopButtonSetsTheStopFlagAndLeavesTheProgressWindowOpen) {
    const Settings settings;
    bool stopFlag = false;
    Progress progress(program.progressWindow, program.language, settings, stopFlag);
    progress.StopClicked();
    EXPECT_TRUE(stopFlag);
    EXPECT_TRUE(program.progress.calls.empty());
}

TEST_F(AuxiliaryWindowsTest, ProgressWindowTakesTheCurrentOnTopStateEachTimeItIsShown) {
    program.application.ProgressWindowEvents().ProgressLoading();
    program.Main().frame.RunCommand(IDM_mnuOptionsAlwaysOnTop);
    program.application.ProgressWindowEvents().ProgressLoading();
    EXPECT_EQ(program.progressForm.window.topmost, (std::vector<bool>{true, false}));
}

TEST_F(AuxiliaryWindowsTest, ProgressWindowTakesItsTextsOfTheCurrentLanguage) {
    program.profile.values[{"C:\\prog\\tntlng_us.ini", "frmProgress", "cmdCancel.Caption"}] =
        "&Stop it";
    FakeControl& button = program.progressForm.form.Add("cmdCancel", "CommandButton");
    program.application.ProgressWindowEvents().ProgressLoading();
    EXPECT_EQ(button.Property("Caption"), "&Stop it");
}

TEST_F(AuxiliaryWindowsTest, BannerTicksThroughAllPicturesAndItsClickOpensTheirAddress) {
    program.Main().banner.BannerTicked();
    program.Main().banner.BannerTicked();
    EXPECT_EQ(program.view.banner, 3);
    program.Main().banner.BannerTicked();
    EXPECT_EQ(program.view.banner, 1) << "after the last one the first";
    EXPECT_EQ(program.textViewer.banner, 1);
    program.Main().banner.BannerClicked();
    EXPECT_EQ(program.shell.requests[0].file, "https://www.example.org/1");
}

TEST(Banner, TimersCounterStartsFromTheIndexAtItsFirstTick) {
    FakeShell shell;
    const modinternet links(shell);
    Banner banner(links, {"a", "b", "c"}, [](int) {});
    banner.Start("2");
    banner.BannerTicked();
    EXPECT_EQ(banner.Index(), 3);
    banner.BannerClicked();
    EXPECT_EQ(shell.requests.at(0).file, "c");
}

TEST(Banner, WithoutPicturesNothingIsShownAndAClickDoesNothing) {
    FakeShell shell;
    const modinternet links(shell);
    int shown = -1;
    Banner banner(links, {}, [&](int index) { shown = index; });
    banner.Start("2");
    banner.BannerTicked();
    banner.BannerClicked();
    EXPECT_EQ(shown, 0);
    EXPECT_TRUE(shell.requests.empty());
}

TEST(Banner, WithoutPicturesTheStoredNumberIsStoredAgain) {
    FakeShell shell;
    const modinternet links(shell);
    Banner none(links, {}, [](int) {});
    none.Start("2");
    EXPECT_EQ(none.IndexToStore(), 2);
    Banner three(links, {"a", "b", "c"}, [](int) {});
    three.Start("2");
    three.BannerTicked();
    EXPECT_EQ(three.IndexToStore(), 3);
}

TEST(Banner, PictureHasTheLineOfItsNumberAsItsAddress) {
    const std::string lines = "a\r\n\r\n c \n";
    using Addresses = std::vector<std::string>;
    EXPECT_EQ(AddressesOfBanners(lines, {1, 2, 3}), (Addresses{"a", "", "c"}));
    EXPECT_EQ(AddressesOfBanners(lines, {3, 9, 0, 1}), (Addresses{"c", "", "", "a"}));
    EXPECT_EQ(AddressesOfBanners("", {1, 2}), (Addresses{"", ""})) << "without the addresses' file";
    EXPECT_TRUE(AddressesOfBanners(lines, {}).empty());
    EXPECT_EQ(AddressesOfBanners("\xEF\xBB\xBF" + lines, {1}), Addresses{"a"}) << "of an editor";
}

TEST(Banner, PicturesWithAnAddressAreLinks) {
    EXPECT_EQ(AreLinks({"a", "", "c"}), (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(AreLinks({}).empty());
}

TEST(Banner, PictureWithoutAnAddressIsShownAndIsNoLink) {
    FakeShell shell;
    const modinternet links(shell);
    int shown = -1;
    Banner banner(links, {"a", ""}, [&](int index) { shown = index; });
    banner.Start("2");
    EXPECT_EQ(shown, 2);
    banner.BannerClicked();
    EXPECT_TRUE(shell.requests.empty());
    banner.BannerTicked();
    banner.BannerClicked();
    EXPECT_EQ(shell.requests.at(0).file, "a");
}

TEST_F(AuxiliaryWindowsTest, LanguageIsAppliedToTheFormsAtOnceAndMarksExcludeEachOther) {
    program.mainForm.Add("mnuFile", "Menu");
    program.profile.values[{"C:\\prog\\tntlng_de.ini", "frmMain", "mnuFile.Caption"}] = "&Datei";
    program.Main().frame.RunCommand(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(program.mainForm.Controls()[0]->Property("Caption"), "&Datei");
    EXPECT_TRUE(program.view.checks.at(IDM_mnuOptionsLngGerman));
    EXPECT_FALSE(program.view.checks.at(IDM_mnuOptionsLngEnglish));
}

TEST_F(AuxiliaryWindowsTest, LanguageWithoutItsFileLeavesEveryTextAndMessagesSaySo) {
    program.mainForm.Add("mnuFile", "Menu");
    program.files.contents.erase("C:\\prog\\tntlng_de.ini");
    program.Main().frame.RunCommand(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(program.mainForm.Controls()[0]->Property("Caption"), "built-in Caption");
    EXPECT_EQ(program.language.GetInfoText(1), "INI file doesn't exists ");
}

TEST_F(AuxiliaryWindowsTest, OnTopToggledTwiceIsAsBefore) {
    program.Main().frame.RunCommand(IDM_mnuOptionsAlwaysOnTop);
    program.Main().frame.RunCommand(IDM_mnuOptionsAlwaysOnTop);
    EXPECT_EQ(program.mainWindow.topmost, (std::vector<bool>{true, false, true}));
}

} // namespace
