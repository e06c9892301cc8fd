// Rules: Start-up and shut-down
#include "common/ProgramNames.h"
#include "platform/Utf16.h"
#include "resources/controls.h"
#include "tests/e2e/RemoteWindow.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/platform/BuiltProgram.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/SettingsKey.h"

#include <array>
#include <commctrl.h>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

constexpr std::array kSettingNames = {"Language",      "AlwaysOnTop",        "ConfirmDel",
                                      "CreateBackups", "ViewToolbar",        "ViewBarStandards",
                                      "ViewBarColor",  "ViewBarListview",    "ViewBarSolidWorks",
                                      "ViewStatusBar", "ViewHugeColorDialog"};

constexpr int kMessageText = 0xFFFF; // number of a message box's text

// The shipped program in a process of its own.
class RunningTnt {
public:
    explicit RunningTnt(const std::filesystem::path& program = BuiltProgram(),
                        const std::string& arguments = {})
        : process_("\"" + ToUtf8(program.wstring()) + "\" " + arguments) {}

    [[nodiscard]] RemoteWindow Wait(const wchar_t* className) const {
        return RemoteWindow::WaitFor(className, process_.Id());
    }
    [[nodiscard]] RemoteWindow Main() const { return Wait(L"frmMain"); }

    void Command(int id) const { PostMessageW(Main().Handle(), WM_COMMAND, MAKEWPARAM(id, 0), 0); }

    // A window that is shown, takes input and answers.
    [[nodiscard]] bool IsUsable() const {
        const HWND window = Main().Handle();
        DWORD_PTR answer = 0;
        return IsWindowEnabled(window) != FALSE &&
               SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL,
                                   static_cast<UINT>(std::chrono::milliseconds(kPatience).count()),
                                   &answer) != 0;
    }
    [[nodiscard]] LRESULT NodeCount() const {
        return SendMessageW(Main().Child(IDC_tvColor).Handle(), TVM_GETCOUNT, 0, 0);
    }

    // The text of the message box that stands on the screen; it is closed by OK.
    [[nodiscard]] std::string DismissMessage() const {
        const RemoteWindow box = Wait(L"#32770");
        std::string text = box.Child(kMessageText).Text();
        PostMessageW(box.Handle(), WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        EXPECT_TRUE(PollUntil([&] { return !box.Exists(); }));
        return text;
    }

    // How it ended; nothing: it did not.
    [[nodiscard]] std::optional<unsigned> Quit() const {
        Command(IDM_mnuQuit);
        return process_.WaitForExitCode();
    }
    [[nodiscard]] std::optional<unsigned> CloseByItsBox() const {
        Main().Close();
        return process_.WaitForExitCode();
    }

private:
    RunningProgram process_;
};

class ProgramStart : public testing::Test {
protected:
    // A copy of the program alone, without a file beside it.
    [[nodiscard]] std::filesystem::path ProgramAlone() const {
        std::filesystem::path copy = ToUtf16(folder.File("tnt4swx.exe"));
        std::filesystem::copy_file(BuiltProgram(), copy);
        return copy;
    }
    void CopyBeside(const std::wstring& name) const {
        std::filesystem::copy_file(BuiltProgram().parent_path() / name,
                                   std::filesystem::path(ToUtf16(folder.Path())) / name);
    }

    const SettingsKey settings;
    ScratchFolder folder;
};

using Names = std::vector<std::string>;

TEST_F(ProgramStart, QuitEndsWithZeroAndStoresTheBannerAlone) {
    const RunningTnt program;
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.Quit(), 0U);
    EXPECT_EQ(settings.Names(), Names{"LastSponsorShown"});
}

TEST_F(ProgramStart, CloseBoxEndsWithZeroAndStoresThePositionAndTheBanner) {
    const RunningTnt program;
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.CloseByItsBox(), 0U);
    EXPECT_EQ(settings.Names(), (Names{"Form Positions|frmMain", "LastSponsorShown"}));
}

TEST_F(ProgramStart, ArgumentsOnTheCommandLineChangeNothing) {
    const std::string library =
        ToUtf8((BuiltProgram().parent_path() / L"samples" / L"materials.tnt").wstring());
    const RunningTnt program(BuiltProgram(), "\"" + library + "\" /quit --help -lang 0");
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.NodeCount(), 0);
    EXPECT_EQ(program.Quit(), 0U);
    EXPECT_EQ(settings.Names(), Names{"LastSponsorShown"});
}

TEST_F(ProgramStart, DefaultLibraryIsThereWhenTheWindowIsShown) {
    settings.SetText(
        "", "DefaultColorFile",
        ToUtf8((BuiltProgram().parent_path() / L"samples" / L"materials.tnt").wstring()));
    const RunningTnt program;
    EXPECT_TRUE(program.IsUsable());
    EXPECT_GT(program.NodeCount(), 1);
    EXPECT_EQ(program.Quit(), 0U);
}

TEST_F(ProgramStart, CorruptSettingsAreReportedInOneMessageAndTheWindowIsUsable) {
    for (const char* name : kSettingNames)
        settings.SetText("", name, "rubbish");
    settings.SetText("", "DefaultColorFile", "?*<>|\"");
    settings.SetText("", "LastSponsorShown", "rubbish");
    settings.SetText(ProgramNames::FormPositionsKey, "frmMain", "rubbish");
    const RunningTnt program;
    EXPECT_EQ(program.DismissMessage(),
              "An error occurred:\r\nStored settings that cannot be understood; their defaults "
              "are used: Language, AlwaysOnTop, ConfirmDel, CreateBackups, ViewToolbar, "
              "ViewBarStandards, ViewBarColor, ViewBarListview, ViewBarSolidWorks, ViewStatusBar, "
              "ViewHugeColorDialog. Options, Save settings, replaces them.");
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.Quit(), 0U);
}

TEST_F(ProgramStart, SettingsOfAForeignTypeLeaveAUsableWindow) {
    for (const char* name : kSettingNames)
        settings.SetBinary(name);
    settings.SetBinary("DefaultColorFile");
    settings.SetBinary("LastSponsorShown");
    const RunningTnt program;
    EXPECT_TRUE(program.DismissMessage().starts_with("An error occurred:"));
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.Quit(), 0U);
}

TEST_F(ProgramStart, DefaultLibraryOnAMissingDriveLeavesAnEmptyTreeAndNoMessage) {
    settings.SetText("", "DefaultColorFile", "Q:\\gone\\colors.tnt");
    const RunningTnt program;
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.NodeCount(), 0);
    EXPECT_EQ(program.Quit(), 0U);
}

TEST_F(ProgramStart, DefaultLibraryThatIsNoneIsReportedAndTheWindowIsUsable) {
    folder.Write("no.tnt", "rubbish");
    settings.SetText("", "DefaultColorFile", folder.File("no.tnt"));
    const RunningTnt program;
    EXPECT_EQ(program.DismissMessage(), "Invalid format: " + folder.File("no.tnt"));
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.Quit(), 0U);
}

TEST_F(ProgramStart, ProgramWithoutItsFilesIsUsableAndNamesTheMissingText) {
    const RunningTnt program(ProgramAlone());
    EXPECT_TRUE(program.IsUsable());
    program.Command(IDM_mnuHlpShowReadme);
    EXPECT_EQ(program.Wait(L"frmTxtView").Child(IDC_rtbShowtext).Text(),
              folder.File("readme_us.txt") + ": missing file");
    program.Command(IDM_mnuHlpAbout);
    const RemoteWindow about = program.Wait(L"frmAbout");
    EXPECT_EQ(about.Title(), "TNT4SWX - Info ");
    about.Close();
    EXPECT_TRUE(PollUntil([&] { return program.IsUsable(); }));
    EXPECT_EQ(program.Quit(), 0U);
}

// As in a folder that the user may not read: the files are there and cannot be opened.
TEST_F(ProgramStart, FilesThatCannotBeReadLeaveAUsableWindow) {
    std::vector<KernelHandle> locks;
    const std::filesystem::path copy = ProgramAlone();
    for (const wchar_t* name : {L"tntlng_us.ini", L"readme_us.txt"}) {
        CopyBeside(name);
        locks.emplace_back(CreateFileW((copy.parent_path() / name).c_str(), GENERIC_READ, 0,
                                       nullptr, OPEN_EXISTING, 0, nullptr));
    }
    const RunningTnt program(copy);
    EXPECT_TRUE(program.IsUsable());
    program.Command(IDM_mnuHlpShowReadme);
    EXPECT_EQ(program.Wait(L"frmTxtView").Child(IDC_rtbShowtext).Text(),
              folder.File("readme_us.txt") + ": missing file");
    EXPECT_EQ(program.Quit(), 0U);
}

// Greek letters, which no code page of Western or Cyrillic systems has together with its own.
TEST_F(ProgramStart, FolderThatTheCodePageCannotHoldStillGivesItsLanguages) {
    const std::filesystem::path target =
        std::filesystem::path(ToUtf16(folder.Path())) / L"\x03C7\x03C1\x03CE\x03BC\x03B1 \x0436";
    std::filesystem::create_directory(target);
    for (const wchar_t* name : {L"tnt4swx.exe", L"tntlng_us.ini"})
        std::filesystem::copy_file(BuiltProgram().parent_path() / name, target / name);
    const RunningTnt program(target / L"tnt4swx.exe");
    EXPECT_TRUE(program.IsUsable());
    EXPECT_EQ(program.Main().Child(IDC_fraShowColor).Text(), "Active color");
    EXPECT_EQ(program.Quit(), 0U);
}

TEST_F(ProgramStart, SecondCopyRunsBesideTheFirst) {
    const RunningTnt first;
    EXPECT_TRUE(first.IsUsable());
    const RunningTnt second;
    EXPECT_TRUE(second.IsUsable());
    EXPECT_EQ(first.CloseByItsBox(), 0U);
    EXPECT_TRUE(second.IsUsable());
    EXPECT_EQ(second.Quit(), 0U);
}

TEST_F(ProgramStart, ModelessViewerAndItsTextDoNotKeepTheProgramFromEnding) {
    const RunningTnt program;
    program.Command(IDM_mnuHlpShowLizenz);
    EXPECT_TRUE(program.Wait(L"frmTxtView").Child(IDC_rtbShowtext).Text().starts_with("TNT4SWX"));
    EXPECT_EQ(program.Quit(), 0U);
    EXPECT_EQ(settings.Names(), Names{"LastSponsorShown"});
}

} // namespace
