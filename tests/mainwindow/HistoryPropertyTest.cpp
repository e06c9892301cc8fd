// Rules: Undo and redo
// Whatever a user did: taken back step by step it is as it was before each step, and done again it
// is as it was at the end.

#include "tests/fakes/Dose.h"
#include "tests/fakes/RandomUser.h"

#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int kStepsOfARun = 250; // tried; some are refused or find nothing to do

// So many users in a test, or thousand steps that are taken back.
unsigned Runs() {
    return static_cast<unsigned>(Dose("TNT_HISTORY", 15));
}

RandomUser::Choose Seeded(unsigned seed) {
    return [random = std::mt19937(seed)](unsigned bound) mutable {
        return static_cast<unsigned>(random() % bound);
    };
}

// What there was around a step; of most steps it is not looked at, for that takes longer than the
// step.
struct StepStates {
    bool isLookedAt = false;
    std::size_t librariesBefore = 0;
    std::size_t shownBefore = 0;
    std::size_t shownAfter = 0;
};
constexpr int kLookAtEach = 7;

std::size_t Hash(const std::string& text) {
    return std::hash<std::string>()(text);
}

// A user and what there was before and after each step.
class RememberedUser : public RandomUser {
public:
    explicit RememberedUser(unsigned seed) : RandomUser(Seeded(seed)) {}

    void DoStep() {
        StepStates states;
        states.isLookedAt = ++tried_ % kLookAtEach == 0;
        if (states.isLookedAt) {
            states.librariesBefore = Hash(Libraries());
            states.shownBefore = Hash(Shown());
        }
        bool isAdded = false;
        library.History().onChange = [&] { isAdded = true; };
        RandomUser::DoStep();
        library.History().onChange = nullptr;
        if (!isAdded)
            return;
        if (states.isLookedAt)
            states.shownAfter = Hash(Shown());
        done.push_back(states);
        undone.clear();
    }
    void UndoAndCompare() {
        Undo();
        if (done.back().isLookedAt) {
            EXPECT_EQ(Hash(Libraries()), done.back().librariesBefore) << Libraries();
            EXPECT_EQ(Hash(Shown()), done.back().shownBefore) << Shown();
        }
        undone.push_back(done.back());
        done.pop_back();
    }
    void RedoAndCompare() {
        Redo();
        if (undone.back().isLookedAt) {
            EXPECT_EQ(Hash(Shown()), undone.back().shownAfter) << Shown();
        }
        done.push_back(undone.back());
        undone.pop_back();
    }

    std::vector<StepStates> done;
    std::vector<StepStates> undone;

private:
    int tried_ = 0;
};

TEST(HistoryProperty, AllStepsTakenBackAreTheStartAndDoneAgainTheEnd) {
    const std::size_t wanted = std::size_t{1000} * Runs();
    std::size_t steps = 0; // that changed something
    for (unsigned seed = 1; steps < wanted && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RememberedUser user(seed);
        for (int step = 0; step < kStepsOfARun; ++step) {
            if (step % 3 == 0)
                user.LookAround();
            user.DoStep();
        }
        steps += user.done.size();
        const std::vector<std::string> bytes = user.SavedBytes();
        const std::string libraries = user.Libraries();
        while (user.library.History().NextUndo() && !testing::Test::HasFailure())
            user.UndoAndCompare();
        EXPECT_TRUE(user.done.empty());
        EXPECT_EQ(user.Libraries(), "") << "nothing was there at the start";
        while (user.library.History().NextRedo() && !testing::Test::HasFailure())
            user.RedoAndCompare();
        EXPECT_EQ(user.Libraries(), libraries);
        EXPECT_EQ(user.SavedBytes(), bytes);
    }
}

// Some steps back, some again, and on from there.
TEST(HistoryProperty, StepsAfterSomeThatWereTakenBackGoOnFromThere) {
    for (unsigned seed = 1; seed <= Runs() && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RememberedUser user(seed);
        auto choose = Seeded(seed + 10000);
        for (int step = 0; step < kStepsOfARun && !testing::Test::HasFailure(); ++step) {
            user.DoStep();
            for (unsigned back = choose(6) == 0 ? choose(9) : 0; back > 0 && !user.done.empty();
                 --back)
                user.UndoAndCompare();
            for (unsigned again = choose(4); again > 0 && !user.undone.empty(); --again)
                user.RedoAndCompare();
            EXPECT_EQ(!user.library.History().NextUndo(), user.done.empty());
            EXPECT_EQ(!user.library.History().NextRedo(), user.undone.empty());
        }
    }
}

// Each library by what it holds, whatever key it has.
std::map<LibraryId, std::string> ContentsById(const RandomUser& user) {
    std::map<LibraryId, std::string> contents;
    const LibraryTree& tree = user.library.Tree();
    for (const std::string& main : tree.MainNodes()) {
        std::string& content = contents[tree.At(main).id];
        content = tree.At(main).text + "\n";
        for (const std::string& group : tree.At(main).children)
            content += group.substr(main.size()) + " " + tree.At(group).text + "\n";
        const ColorTable& colors = user.library.Colors();
        for (int index = 1; index <= colors.UpperBound(); ++index)
            if (const ColorRecord color = colors.At(index); color.key.starts_with(main))
                content += color.key.substr(main.size()) + " " + color.name + " " + color.altName +
                           " " + std::to_string(color.values[0]) + "\n";
    }
    return contents;
}

// Opened libraries take the keys of closed ones, which get other keys when they come back.
TEST(HistoryProperty, FilesThatAreOpenedAndSavedInBetweenDropNoStepAndAreNotTakenBack) {
    for (unsigned seed = 1; seed <= Runs() && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RememberedUser user(seed);
        std::vector<std::map<LibraryId, std::string>> before;
        for (int step = 0; step < kStepsOfARun / 2; ++step) {
            if (step % 4 == 0)
                user.OpenOrSave();
            const bool isLookedAt = step % kLookAtEach == 0;
            std::map<LibraryId, std::string> contents;
            if (isLookedAt)
                contents = ContentsById(user);
            const std::size_t count = user.done.size();
            user.DoStep();
            if (user.done.size() > count)
                before.push_back(std::move(contents));
        }
        const std::map<LibraryId, std::string> end = ContentsById(user);
        while (user.library.History().NextUndo() && !testing::Test::HasFailure()) {
            user.Undo();
            const auto now = before.back().empty() ? before.back() : ContentsById(user);
            for (const auto& [library, content] : before.back()) {
                ASSERT_TRUE(now.contains(library));
                EXPECT_EQ(now.at(library), content);
            }
            before.pop_back();
        }
        EXPECT_TRUE(before.empty());
        while (user.library.History().NextRedo())
            user.Redo();
        EXPECT_EQ(ContentsById(user), end);
    }
}

} // namespace
