// Rules: File commands
#include "platform/FileDialog.h"

#include "platform/ChosenFiles.h"
#include "platform/ComApartment.h"
#include "platform/Utf16.h"
#include "tests/platform/DialogDriver.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/ScratchFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr int kFileName = 1148;

class FileDialogTest : public testing::Test {
protected:
    [[nodiscard]] FileDialogRequest Request(unsigned flags,
                                            const std::string& fileName = {}) const {
        return {"tnt dialog", "Libraries|*.tnt|All files|*.*", fileName, flags};
    }

    // The dialog fills its name in a moment after it is visible.
    static void EnterName(HWND dialog, const std::string& path) {
        const std::wstring wide = ToUtf16(path);
        EXPECT_TRUE(PollUntilItStays([&] {
            const bool isEntered = TextOfControl(dialog, kFileName) == wide;
            if (!isEntered)
                SetDlgItemTextW(dialog, kFileName, wide.c_str());
            return isEntered;
        }));
        Press(dialog, IDOK);
    }

    std::optional<std::string> Open(const FileDialogRequest& request,
                                    const std::function<void(HWND)>& work) {
        const DialogDriver driver(L"tnt dialog", work);
        return ShowOpenDialog(nullptr, request);
    }
    std::optional<std::string> Save(const FileDialogRequest& request,
                                    const std::function<void(HWND)>& work) {
        const DialogDriver driver(L"tnt dialog", work);
        return ShowSaveDialog(nullptr, request);
    }

    ComApartment apartment;
    ScratchFolder folder;
};

} // namespace

TEST_F(FileDialogTest, OpenGivesTheFullPathThatWasChosen) {
    const std::string path = folder.File("Gr\xC3\xBCn.tnt");
    folder.Write("Gr\xC3\xBCn.tnt", "");
    EXPECT_EQ(Open(Request(FileDialogFlags::Open), [&](HWND dialog) { EnterName(dialog, path); }),
              path);
}

TEST_F(FileDialogTest, CancelGivesNothing) {
    const auto cancel = [](HWND dialog) { Press(dialog, IDCANCEL); };
    EXPECT_FALSE(Open(Request(FileDialogFlags::Open), cancel));
    EXPECT_FALSE(Save(Request(FileDialogFlags::SaveAs), cancel));
}

TEST_F(FileDialogTest, PresetNameStandsInTheDialogAndItsFolderIsShown) {
    std::wstring shown;
    const std::string preset = folder.File("newtnt.tnt");
    const auto path = Save(Request(FileDialogFlags::SaveAs, preset), [&](HWND dialog) {
        static_cast<void>(
            PollUntil([&] { return !(shown = TextOfControl(dialog, kFileName)).empty(); }));
        Press(dialog, IDOK);
    });
    EXPECT_EQ(shown.substr(shown.find_last_of(L'\\') + 1), L"newtnt.tnt");
    EXPECT_EQ(path, preset);
}

TEST_F(FileDialogTest, NameTypedWithoutAnEndingIsSavedWithTheFirstPatternsEnding) {
    EXPECT_EQ(Save(Request(FileDialogFlags::SaveAs),
                   [&](HWND dialog) { EnterName(dialog, folder.File("mine")); }),
              folder.File("mine.tnt"));
}

TEST_F(FileDialogTest, NameTypedWithoutAnEndingGetsThatOfTheKindThatIsChosen) {
    FileDialogRequest request = Request(FileDialogFlags::SaveAs);
    request.filter = "One|*.gpl|Two|*.ase|Three|*.csv";
    const auto path = Save(request, [&](HWND dialog) {
        constexpr int kKinds = 1136; // the combo box with the kinds of files
        const HWND kinds = GetDlgItem(dialog, kKinds);
        EXPECT_TRUE(PollUntil([&] { return SendMessageW(kinds, CB_GETCOUNT, 0, 0) == 3; }));
        SendMessageW(kinds, CB_SETCURSEL, 1, 0);
        for (const int told : {CBN_SELENDOK, CBN_SELCHANGE}) // as the combo box itself does
            SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(kKinds, told),
                         reinterpret_cast<LPARAM>(kinds));
        EnterName(dialog, folder.File("mine"));
    });
    EXPECT_EQ(path, folder.File("mine.ase"));
}

TEST_F(FileDialogTest, SeveralFilesAreGivenWithTheirFullPaths) {
    folder.Write("a.gpl", "");
    folder.Write("b c.gpl", "");
    const auto choose = [&](const std::string& names) {
        const DialogDriver driver(L"tnt dialog", [&](HWND dialog) { EnterName(dialog, names); });
        return ShowOpenDialogForSeveral(nullptr,
                                        Request(FileDialogFlags::Open, folder.File("none.gpl")));
    };
    EXPECT_EQ(choose("\"a.gpl\" \"b c.gpl\""),
              (std::vector<std::string>{folder.File("a.gpl"), folder.File("b c.gpl")}));
    EXPECT_EQ(choose(folder.File("b c.gpl")), std::vector<std::string>{folder.File("b c.gpl")});
}

TEST_F(FileDialogTest, NoFileOfSeveralIsGivenWhenTheUserCancels) {
    const DialogDriver driver(L"tnt dialog", [](HWND dialog) { Press(dialog, IDCANCEL); });
    EXPECT_TRUE(ShowOpenDialogForSeveral(nullptr, Request(FileDialogFlags::Open)).empty());
}

TEST(ChosenFiles, AreWhatTheDialogsBufferHoldsUpToItsTwoZeros) {
    using namespace std::string_literals;
    using Paths = std::vector<std::string>;
    EXPECT_EQ(ChosenFiles(L""s), Paths());
    EXPECT_EQ(ChosenFiles(L"\0\0"s), Paths());
    EXPECT_EQ(ChosenFiles(L"C:\\a.gpl\0\0rest"s), Paths{"C:\\a.gpl"});
    EXPECT_EQ(ChosenFiles(L"C:\\pal\0a\0b\0\0rest"s), (Paths{"C:\\pal\\a", "C:\\pal\\b"}));
    EXPECT_EQ(ChosenFiles(L"C:\\\0a\0b"s), (Paths{"C:\\a", "C:\\b"}));
}

TEST_F(FileDialogTest, ImpossiblePresetDoesNotHideTheDialog) {
    bool shown = false;
    static_cast<void>(Open(Request(FileDialogFlags::Open, "<|>:*?"), [&](HWND dialog) {
        shown = true;
        Press(dialog, IDCANCEL);
    }));
    EXPECT_TRUE(shown);
}

// The platform's dialog may walk the process's current directory along with the user.
TEST_F(FileDialogTest, CurrentDirectoryIsAfterwardsWhatItWas) {
    const std::filesystem::path before = std::filesystem::current_path();
    folder.Write("x.tnt", "");
    EXPECT_TRUE(Open(Request(FileDialogFlags::Open), [&](HWND dialog) {
        SetCurrentDirectoryW(ToUtf16(folder.Path()).c_str());
        EnterName(dialog, folder.File("x.tnt"));
    }));
    EXPECT_EQ(std::filesystem::current_path(), before);
}
