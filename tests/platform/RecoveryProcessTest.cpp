// Rules: Recovery
// The shipped program in processes that are killed, crash and end.

#include "library/LibraryFiles.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32CalendarClock.h"
#include "platform/Win32Files.h"
#include "resources/controls.h"
#include "tests/fakes/Dose.h"
#include "tests/platform/EditedProgram.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/SettingsKey.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <commctrl.h>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <utility>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kColors = 12;
constexpr auto kOldestLoss = 5000ms; // of work that was done
constexpr auto kLongestCrash = 25s;  // then the program is ended
constexpr unsigned kEndedByLimit = 0xE0545443;

std::string NameOfColor(int number) {
    return "color " + std::to_string(number);
}

std::string Library() {
    std::string text = "\"D#Lib=0D:" + std::to_string(kColors + 1) + "\"\r\n\"G#g=0DG1\"\r\n";
    for (int number = 1; number <= kColors; ++number) {
        const std::string name = NameOfColor(number);
        text += "\"E#" + name + "=0DG1:" + name;
        for (int value = 1; value <= 9; ++value)
            text += "\xF7" + std::to_string(value);
        text += "\"\r\n";
    }
    return text;
}

// The library's colors from top to bottom; nothing: it cannot be read to its end.
std::optional<std::vector<std::string>> ColorsOf(const std::string& path) {
    Win32Files files;
    const Win32AnsiCodePage codePage(1252);
    const Win32CalendarClock clock;
    ColorLibrary library;
    LibraryFiles libraryFiles(library, {.files = files, .codePage = codePage, .clock = clock});
    UnheardProgress progress;
    if (libraryFiles.Read(path, progress).result != ReadResult::Complete)
        return {};
    std::vector<std::string> names;
    for (int index = 1; index <= library.Colors().UpperBound(); ++index)
        names.push_back(library.Colors().At(index).name);
    return names;
}

// A library of one group is loaded at the program's start; deleting a color asks nothing.
class RecoveryProcess : public testing::Test {
protected:
    RecoveryProcess() {
        folder.Write("a.tnt", Library());
        settings.SetText("", "DefaultColorFile", folder.File("a.tnt"));
        settings.SetText("", "ConfirmDel", "0");
        settings.SetText("", "Language", "1");
    }

    // Deletes one color; the copy of the library without it is waited for.
    void DeleteColor(const EditedProgram& program) const {
        const int before = program.RowCount();
        ASSERT_GT(before, 0);
        ASSERT_TRUE(program.Run(IDM_mnuColorDelColor));
        ASSERT_EQ(program.RowCount(), before - 1);
    }
    [[nodiscard]] bool IsKept(int colors) const {
        return std::ranges::any_of(kept.Libraries(), [&](const auto& file) {
            const auto names = ColorsOf(kept.Path() + "\\" + file.first);
            return names && static_cast<int>(names->size()) == colors;
        });
    }
    // The rows of the window that lists what there is to recover; the window stays open.
    [[nodiscard]] static RemoteWindow OpenList(const EditedProgram& program) {
        program.Begin(IDM_mnuFileRecover);
        return program.Wait(L"frmRecover");
    }
    [[nodiscard]] static LRESULT Rows(const RemoteWindow& list) {
        return SendMessageW(list.Child(IDC_lvRecover).Handle(), LVM_GETITEMCOUNT, 0, 0);
    }
    static void Press(const RemoteWindow& window, int button) {
        PostMessageW(window.Child(button).Handle(), BM_CLICK, 0, 0);
        EXPECT_TRUE(PollUntil([&] { return !window.IsVisible(); }));
    }
    [[nodiscard]] static bool Tells(const EditedProgram& program, const std::string& what) {
        return PollUntil([&] { return program.Status().find(what) != std::string::npos; });
    }

    const SettingsKey settings;
    const KeptLibraries kept;
    const ScratchFolder folder;
};

constexpr const char* kOneToRecover = "Libraries that were not saved: 1";

TEST_F(RecoveryProcess, WhatAKilledProgramHadNotSavedComesBackWithItsFile) {
    {
        const EditedProgram program;
        ASSERT_EQ(program.RowCount(), kColors);
        DeleteColor(program);
        const auto changed = Clock::now();
        ASSERT_TRUE(PollUntil([&] { return IsKept(kColors - 1); }));
        std::cout << "kept after " << (Clock::now() - changed) / 1ms << " ms\n";
        program.Kill();
    }
    EXPECT_EQ(folder.Read("a.tnt"), Library());
    settings.SetText("", "DefaultColorFile", "");
    const EditedProgram next;
    EXPECT_TRUE(Tells(next, kOneToRecover)) << next.Status();
    const RemoteWindow list = OpenList(next);
    EXPECT_EQ(Rows(list), 1);
    Press(list, IDC_cmdOpen);
    EXPECT_TRUE(PollUntil([&] { return next.RowCount() == kColors - 1; }));
    ASSERT_TRUE(next.Run(IDM_mnuFileSave));
    EXPECT_EQ(ColorsOf(folder.File("a.tnt"))->size(), kColors - 1U);
    EXPECT_TRUE(PollUntil([&] { return kept.Libraries().empty(); })) << "it is saved";
}

TEST_F(RecoveryProcess, QuitAndTheCloseBoxKeepTheLastChangeToo) {
    for (const bool byBox : {false, true}) {
        {
            const EditedProgram program;
            DeleteColor(program);
            if (byBox)
                program.Main().Close();
            else
                program.Begin(IDM_mnuQuit);
            ASSERT_EQ(program.WaitForExitCode(), 0U);
        }
        ASSERT_EQ(kept.Libraries().size(), byBox ? 2U : 1U);
        EXPECT_TRUE(IsKept(kColors - 1));
        EXPECT_EQ(folder.Read("a.tnt"), Library());
    }
}

TEST_F(RecoveryProcess, ProgramThatEndsWithoutAChangeKeepsNothing) {
    const EditedProgram program;
    DeleteColor(program);
    ASSERT_TRUE(PollUntil([&] { return IsKept(kColors - 1); }));
    ASSERT_TRUE(program.Run(IDM_mnuEditUndo));
    program.Begin(IDM_mnuQuit);
    EXPECT_EQ(program.WaitForExitCode(), 0U);
    EXPECT_TRUE(kept.Files("").empty());
}

TEST_F(RecoveryProcess, TwoProgramsDoNotShowEachOthersLibrariesBeforeOneIsGone) {
    const EditedProgram first;
    DeleteColor(first);
    ASSERT_TRUE(PollUntil([&] { return IsKept(kColors - 1); }));
    const EditedProgram second;
    EXPECT_EQ(second.Status().find("not saved"), std::string::npos) << second.Status();
    const RemoteWindow before = OpenList(second);
    EXPECT_EQ(Rows(before), 0);
    Press(before, IDC_cmdClose);
    EXPECT_EQ(kept.Libraries().size(), 1U) << "the second one's start left it alone";
    first.Kill();
    const RemoteWindow after = OpenList(second);
    EXPECT_EQ(Rows(after), 1);
    Press(after, IDC_cmdClose);
}

// Where the program wrote to what it may not, as the report tells; 0: it tells of no such thing.
std::uintptr_t AddressOfCrash(const std::string& report) {
    constexpr std::string_view kStart = "exception C0000005 at ";
    const std::size_t start = report.find(kStart);
    return start == std::string::npos
               ? 0
               : std::stoull(report.substr(start + kStart.size()), nullptr, 16);
}

TEST_F(RecoveryProcess, CrashLeavesAReportThatTheNextStartTellsOnce) {
    ModuleRange crashedIn{};
    {
        const EditedProgram program;
        DeleteColor(program);
        ASSERT_TRUE(PollUntil([&] { return IsKept(kColors - 1); }));
        const auto crashed = Clock::now();
        crashedIn = program.Crash();
        const std::optional<unsigned> code = program.WaitForExitCode();
        const auto took = Clock::now() - crashed;
        std::cout << "ended after " << took / 1ms << " ms\n";
        // A dump that takes longer than a crash may, on a machine full of other work, is cut off.
        EXPECT_TRUE(code == EXCEPTION_ACCESS_VIOLATION ||
                    (took >= kLongestCrash && code == kEndedByLimit))
            << code.value_or(0);
    }
    const auto reports = kept.Files(".new");
    ASSERT_EQ(reports.size(), 1U);
    const std::string& report = reports.begin()->second;
    EXPECT_EQ(report.find("TNT4SWX 1."), 0U) << report;
    EXPECT_GE(AddressOfCrash(report), crashedIn.begin) << report;
    EXPECT_LT(AddressOfCrash(report), crashedIn.end) << report;
    const auto dumps = kept.Files(".dmp");
    ASSERT_EQ(dumps.size(), 1U);
    EXPECT_TRUE(dumps.begin()->second.starts_with("MDMP"));
    std::cout << "dump of " << dumps.begin()->second.size() << " bytes\n";
    const std::string name = reports.begin()->first;
    const std::string told = kept.Path() + "\\" + name.substr(0, name.size() - 4) + ".txt";
    for (const bool isFirst : {true, false}) {
        const EditedProgram next;
        ASSERT_TRUE(Tells(next, kOneToRecover)) << next.Status();
        EXPECT_EQ(next.Status().find(told) != std::string::npos, isFirst) << next.Status();
        next.Kill();
    }
}

// How long the program was seen to run: a moment in which it did not answer counts little.
class TimeOfAnswers {
public:
    void Answered() {
        constexpr std::chrono::milliseconds kLongest(100);
        const auto now = Clock::now();
        passed_ += std::min(kLongest, std::chrono::duration_cast<std::chrono::milliseconds>(
                                          now - std::exchange(last_, now)));
    }
    [[nodiscard]] std::chrono::milliseconds Passed() const { return passed_; }

private:
    Clock::time_point last_ = Clock::now();
    std::chrono::milliseconds passed_{};
};

// Edits the program's library at random moments; knows which states it has had, and when.
class RandomEditor {
public:
    RandomEditor(const EditedProgram& program, std::mt19937& random)
        : program_(program), random_(random) {}

    void EditFor(std::chrono::milliseconds time) {
        while (time_.Passed() < time) {
            Change();
            const auto next = time_.Passed() + std::chrono::milliseconds(Below(600));
            while (time_.Passed() < std::min(next, time)) {
                std::this_thread::sleep_for(10ms);
                Answer();
            }
        }
    }

    // For how long the library has not had so many colors any more; nothing: it never had.
    [[nodiscard]] std::optional<std::chrono::milliseconds> AgeOf(int colors) const {
        for (std::size_t index = states_.size(); index-- > 0;)
            if (states_[index].colors == colors)
                return index + 1 < states_.size() ? time_.Passed() - states_[index + 1].since : 0ms;
        return {};
    }
    [[nodiscard]] std::size_t Changes() const { return states_.size() - 1; }

private:
    struct State {
        std::chrono::milliseconds since;
        int colors;
    };

    [[nodiscard]] int Below(int count) {
        return std::uniform_int_distribution<>(0, count - 1)(random_);
    }
    void Answer() {
        ASSERT_TRUE(program_.Answers());
        time_.Answered();
    }
    void Change() {
        constexpr std::array kCommands = {IDM_mnuColorDelColor, IDM_mnuColorDelColor,
                                          IDM_mnuEditUndo, IDM_mnuEditRedo};
        ASSERT_TRUE(program_.Run(kCommands.at(static_cast<std::size_t>(Below(4)))));
        Answer();
        states_.push_back({time_.Passed(), program_.RowCount()});
    }

    const EditedProgram& program_;
    std::mt19937& random_;
    TimeOfAnswers time_;
    std::vector<State> states_{{0ms, kColors}};
};

// Every third program runs for so long that too old a library would be seen.
std::chrono::milliseconds SomeTime(int kill, std::mt19937& random) {
    const bool isLong = kill % 3 == 0;
    return std::chrono::milliseconds(
        std::uniform_int_distribution<>(isLong ? 8000 : 300, isLong ? 10'000 : 3000)(random));
}

// Colors are only taken away, and come back in their places.
bool IsPartOfTheLibrary(const std::vector<std::string>& names) {
    std::size_t found = 0;
    for (int number = 1; number <= kColors; ++number)
        if (found < names.size() && names[found] == NameOfColor(number))
            ++found;
    return found == names.size();
}

TEST_F(RecoveryProcess, ProgramKilledAtAnyMomentLosesTheLastSecondsAtMost) {
    std::mt19937 random(20'240'309);
    const int kills = Dose("TNT_KILLS", 4);
    for (int kill = 1; kill <= kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        const EditedProgram program;
        ASSERT_EQ(program.RowCount(), kColors);
        RandomEditor editor(program, random);
        editor.EditFor(SomeTime(kill, random));
        program.Kill();
        ASSERT_FALSE(HasFatalFailure());
        const auto libraries = kept.Libraries();
        ASSERT_LE(libraries.size(), 1U);
        int colors = kColors; // nothing is kept of what is as its file
        for (const auto& [name, content] : libraries) {
            const auto names = ColorsOf(kept.Path() + "\\" + name);
            ASSERT_TRUE(names.has_value()) << content;
            EXPECT_TRUE(IsPartOfTheLibrary(*names)) << content;
            colors = static_cast<int>(names->size());
        }
        const auto age = editor.AgeOf(colors);
        ASSERT_TRUE(age.has_value()) << colors << " colors are kept";
        EXPECT_LE(*age, kOldestLoss) << colors << " colors are kept";
        std::cout << "kill " << kill << ": " << editor.Changes() << " changes, " << colors
                  << " colors kept, of " << *age / 1ms << " ms before\n";
        kept.Clean();
    }
}

} // namespace
