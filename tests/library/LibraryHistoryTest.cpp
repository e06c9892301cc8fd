// Rules: Undo and redo
#include "library/ColorLibrary.h"

#include <gtest/gtest.h>

namespace {

constexpr int kColors = 100;
constexpr std::size_t kMostOfAStep = 1000; // what a step takes itself
constexpr std::size_t kBytesOfAGroup = kColors * sizeof(RemovedColor) + kMostOfAStep;

// A library whose groups of a hundred colors are deleted one after the other, the last one first.
class LibraryHistoryBudget : public testing::Test {
protected:
    LibraryHistoryBudget() {
        library.NewMainNode("Lib");
        for (int group = 0; group < 5; ++group) {
            const std::string key = library.NewGroupNode("0D", "g");
            library.AppendColors(key, std::vector<ColorRecord>(kColors));
        }
    }
    void DeleteLastGroup() {
        library.History().BeginStep({});
        const std::string key = library.GetGroupInMainnode("0D").back();
        library.Colors().EraseGroups({key});
        library.Tree().Remove(key);
        library.History().EndStep(1, {});
    }
    int UndoAll() {
        int count = 0;
        for (; library.History().NextUndo(); ++count)
            static_cast<void>(library.History().Undo());
        return count;
    }

    ColorLibrary library;
};

TEST_F(LibraryHistoryBudget, OldestStepsGoWhenTheyKeepTooMuch) {
    library.History().SetMostBytes(3 * kBytesOfAGroup);
    for (int group = 0; group < 5; ++group)
        DeleteLastGroup();
    EXPECT_EQ(UndoAll(), 3);
    EXPECT_EQ(library.Colors().UpperBound(), 3 * kColors);
}

TEST_F(LibraryHistoryBudget, StepsThatKeepNoColorsCountToo) {
    library.History().SetMostBytes(100 * kMostOfAStep);
    for (int step = 0; step < 1000; ++step) {
        library.History().BeginStep({});
        library.Tree().SetText("0D", "name " + std::to_string(step));
        library.History().EndStep(1, {});
    }
    const int left = UndoAll();
    EXPECT_GE(left, 100);
    EXPECT_LE(left, 500);
}

TEST_F(LibraryHistoryBudget, LastStepStaysHoweverMuchItKeeps) {
    library.History().SetMostBytes(1);
    DeleteLastGroup();
    DeleteLastGroup();
    EXPECT_EQ(UndoAll(), 1);
    EXPECT_EQ(library.Colors().UpperBound(), 4 * kColors);
}

TEST_F(LibraryHistoryBudget, StepsThatWereDroppedByAnotherOneCountNoMore) {
    library.History().SetMostBytes(2 * kBytesOfAGroup);
    for (int turn = 0; turn < 4; ++turn) {
        DeleteLastGroup();
        static_cast<void>(library.History().Undo());
    }
    DeleteLastGroup();
    DeleteLastGroup();
    EXPECT_EQ(UndoAll(), 2);
}

} // namespace
