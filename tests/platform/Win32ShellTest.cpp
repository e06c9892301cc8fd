// Rules: Auxiliary windows
#include "platform/Win32Shell.h"

#include "platform/Win32AnsiCodePage.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/ScratchFolder.h"

#include <gtest/gtest.h>
#include <windows.h>
#include <shellapi.h>

namespace {

class Win32ShellTest : public testing::Test {
protected:
    [[nodiscard]] bool BecomesText(const std::string& name, const std::string& text) const {
        return PollUntil([&] { return folder.Read(name).starts_with(text); });
    }

    ScratchFolder folder;
    Win32AnsiCodePage codePage{1252};
    Win32Shell shell{codePage};
};

} // namespace

TEST_F(Win32ShellTest, ProgramIsStartedWithItsArguments) {
    EXPECT_TRUE(shell.StartProgram("cmd.exe /c echo done> \"" + folder.File("x.txt") + "\""));
    EXPECT_TRUE(BecomesText("x.txt", "done"));
}

TEST_F(Win32ShellTest, PathWithBlanksIsOneProgram) {
    std::filesystem::copy_file(R"(C:\windows\system32\hostname.exe)", folder.File("a b.exe"));
    EXPECT_TRUE(shell.StartProgram(folder.File("a b.exe")));
}

TEST_F(Win32ShellTest, MissingProgramDoesNotStart) {
    EXPECT_FALSE(shell.StartProgram(folder.File("none.exe")));
    EXPECT_FALSE(shell.StartProgram(""));
}

TEST_F(Win32ShellTest, RequestIsPassedToTheShell) {
    const int result = shell.Execute({ShellOwner::ActiveWindow, "open", "cmd.exe",
                                      "/c echo Gr\xC3\xBCn> x.txt", folder.Path(), SW_HIDE});
    EXPECT_GT(result, 32);
    EXPECT_TRUE(PollUntil([&] { return !folder.Read("x.txt").empty(); }));
}

TEST_F(Win32ShellTest, FailureIsTheShellsNumber) {
    EXPECT_EQ(shell.Execute({ShellOwner::None, "open", folder.File("none.xyz"), std::nullopt,
                             std::nullopt, SW_SHOW}),
              SE_ERR_FNF);
}
