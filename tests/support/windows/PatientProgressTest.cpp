// Rules: Auxiliary windows
#include "support/windows/PatientProgress.h"

#include "common/RuntimeError.h"
#include "tests/fakes/FakeOnDemand.h"
#include "tests/fakes/FakeProgressForm.h"
#include "tests/fakes/FakeWaitingClock.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Calls = std::vector<std::string>;

// Ticks when the test says so.
class FakeTicker : public Ticker {
public:
    void Start(std::chrono::milliseconds, std::function<void()> newTick) override {
        tick = std::move(newTick);
    }
    void Stop() noexcept override { tick = nullptr; }

    std::function<void()> tick; // empty while it is stopped
};

class PatientProgressTest : public testing::Test {
protected:
    PatientProgressTest() { window.isMade = false; }

    void Tick() {
        const std::function<void()> tick = ticker.tick; // it may stop the ticker
        if (tick)
            tick();
    }

    FakeProgressForm form;
    FakeOnDemand<ProgressForm> window{form};
    FakeTicker ticker;
    FakeWaitingClock clock;
    PatientProgress progress{window, ticker, clock, 1s};
    const Calls& calls = form.progress.calls;
};

} // namespace

TEST_F(PatientProgressTest, OperationOfLessThanItsPatienceMakesNoWindow) {
    progress.ShowProgress("x", 0, 2);
    clock.now += 999ms;
    progress.SetProgress(1);
    progress.RefreshProgress();
    Tick();
    const std::function<void()> late = ticker.tick;
    progress.HideProgress();
    clock.now += 1s;
    late();
    EXPECT_FALSE(ticker.tick) << "nothing goes on behind an operation";
    progress.SetProgress(2);
    progress.RefreshProgress();
    progress.HideProgress();
    EXPECT_FALSE(window.isMade);
}

TEST_F(PatientProgressTest, WindowAppearsWithTheFirstStepAfterItsPatience) {
    progress.ShowProgress("x", 0, 9);
    progress.SetProgress(1);
    clock.now += 1s;
    EXPECT_FALSE(window.isMade);
    progress.SetProgress(2);
    EXPECT_EQ(calls, (Calls{"show x 0..9", "value 2"}));
    EXPECT_FALSE(ticker.tick);
    progress.SetProgress(3);
    progress.RefreshProgress();
    progress.HideProgress();
    EXPECT_EQ(calls, (Calls{"show x 0..9", "value 2", "value 3", "refresh", "hide"}));
}

TEST_F(PatientProgressTest, WindowAppearsWhileTheUserInterfaceHandlesEvents) {
    progress.ShowProgress("x", 3, 9);
    Tick();
    EXPECT_TRUE(calls.empty());
    clock.now += 1s;
    Tick();
    EXPECT_EQ(calls, (Calls{"show x 3..9", "value 3"})) << "as it stands at its beginning";
}

TEST_F(PatientProgressTest, WindowThatIsShownTakesTheNextOperationAtOnce) {
    progress.ShowProgress("x", 0, 9);
    clock.now += 1s;
    Tick();
    progress.ShowProgress("y", 1, 5);
    EXPECT_EQ(calls, (Calls{"show x 0..9", "value 0", "show y 1..5", "value 1"}));
    progress.HideProgress();
    progress.ShowProgress("z", 0, 9);
    EXPECT_EQ(calls.back(), "hide") << "the patience begins anew";
}

TEST_F(PatientProgressTest, ClockIsAskedForFewOfManySteps) {
    progress.ShowProgress("x", 0, 1000);
    for (std::int32_t step = 1; step <= 64; ++step)
        progress.SetProgress(step);
    clock.now += 1s;
    for (std::int32_t step = 65; step < 128; ++step)
        progress.SetProgress(step);
    EXPECT_FALSE(window.isMade);
    progress.SetProgress(128);
    EXPECT_EQ(calls, (Calls{"show x 0..1000", "value 128"}));
}

TEST_F(PatientProgressTest, WithoutPatienceTheWindowAppearsAtOnce) {
    PatientProgress impatient(window, ticker, clock, 0s);
    impatient.ShowProgress("x", 0, 2);
    EXPECT_EQ(calls, (Calls{"show x 0..2", "value 0"}));
}

TEST_F(PatientProgressTest, OperationGoesOnWithoutAWindowThatCannotBeMade) {
    struct : OnDemand<ProgressForm> {
        ProgressForm& Get() override {
            ++attempts;
            throw RuntimeError(ErrorNumber::Internal, ErrorTexts::NoWindow, {"frmProgress"});
        }
        ProgressForm* IfMade() noexcept override { return nullptr; }
        int attempts = 0;
    } none;
    PatientProgress alone(none, ticker, clock, 1s);
    alone.ShowProgress("x", 0, 9);
    clock.now += 1s;
    alone.SetProgress(1);
    alone.SetProgress(2);
    alone.RefreshProgress();
    alone.HideProgress();
    EXPECT_EQ(none.attempts, 1);
}

TEST_F(PatientProgressTest, WindowThatFailsWhileItIsShownIsTakenDown) {
    struct : FakeProgressForm {
        void ShowProgress(const ProgressState&) override {
            throw RuntimeError(ErrorNumber::Internal, "no language file");
        }
    } failing;
    FakeOnDemand<ProgressForm> failingWindow(failing);
    PatientProgress shown(failingWindow, ticker, clock, 0s);
    EXPECT_THROW(shown.ShowProgress("x", 0, 9), RuntimeError);
    shown.SetProgress(1);
    shown.HideProgress();
    EXPECT_EQ(failing.progress.calls, (Calls{"hide"})) << "with the hourglass";
}
