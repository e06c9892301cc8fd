// Rules: Library files
// Two processes that save one file, at the same time and in turn.

#include "platform/Win32Files.h"
#include "platform/Win32Folders.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/fakes/Dose.h"
#include "tests/faults/SecondProcess.h"
#include "tests/platform/ScratchFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <optional>
#include <set>
#include <sstream>

namespace {

// How many saves of each process.
int Saves() {
    return Dose("TNT_SAVES", 100);
}

// A hundred saves take far less than one wait is patient.
std::optional<unsigned> ExitCodeOf(const RunningProgram& program) {
    std::optional<unsigned> exitCode;
    for (int wait = 0; wait <= Saves() / 100 && !exitCode; ++wait)
        exitCode = program.WaitForExitCode();
    return exitCode;
}

std::set<std::string> Lines(const std::string& text) {
    std::istringstream stream(text);
    std::set<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.insert(line);
    return lines;
}

class TwoSavers : public testing::Test {
protected:
    [[nodiscard]] std::set<std::string> Written(const std::string& name) const {
        return Lines(folder.Read("a.tnt." + name));
    }
    // What stands in the library file and in those that were kept beside it.
    [[nodiscard]] std::set<std::string> Contents() {
        std::set<std::string> contents;
        for (const std::string& name : Win32Folders().FileNamesIn(folder.Path()))
            if (name.ends_with(".tnt"))
                contents.insert(folder.Read(name));
        return contents;
    }

    void ExpectThatNothingIsLost() {
        const std::set<std::string> found = Contents();
        int lost = 0;
        for (const char* name : {"one", "other"}) {
            const std::set<std::string> written = Written(name);
            std::cout << name << ": " << written.size() << " of " << Saves() << " saves written\n";
            EXPECT_EQ(written.size(), static_cast<std::size_t>(Saves())) << name;
            lost += static_cast<int>(std::ranges::count_if(
                written, [&](const std::string& content) { return !found.contains(content); }));
        }
        EXPECT_EQ(lost, 0);
    }

    ScratchFolder folder;
};

TEST_F(TwoSavers, NothingThatOneOfThemHasWrittenIsLostWhenTheySaveAtTheSameTime) {
    const std::string arguments =
        " " + std::to_string(Saves()) + " \"" + folder.File("a.tnt") + '"';
    {
        const RunningProgram one(SecondProcess("--save-often one" + arguments));
        const RunningProgram other(SecondProcess("--save-often other" + arguments));
        folder.Write("a.tnt.go", "");
        ASSERT_EQ(ExitCodeOf(one), 0U);
        ASSERT_EQ(ExitCodeOf(other), 0U);
    }
    ExpectThatNothingIsLost();
}

TEST_F(TwoSavers, NothingThatOneOfThemHasWrittenIsLostWhenTheySaveInTurn) {
    const std::string arguments =
        " " + std::to_string(Saves()) + " \"" + folder.File("a.tnt") + '"';
    {
        const RunningProgram one(SecondProcess("--save-in-turn one other" + arguments));
        const RunningProgram other(SecondProcess("--save-in-turn other one" + arguments));
        ASSERT_EQ(ExitCodeOf(one), 0U);
        ASSERT_EQ(ExitCodeOf(other), 0U);
    }
    EXPECT_EQ(folder.Read("a.tnt"), "other " + std::to_string(Saves()));
    ExpectThatNothingIsLost();
}

} // namespace
