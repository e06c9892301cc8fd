// Rules: SolidWorks session
#include "common/BusyRetry.h"

#include "tests/fakes/FakeWaitingClock.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace std::chrono_literals;

TEST(BusyRetry, CallThatIsNotRejectedIsMadeOnceWithoutWaiting) {
    FakeWaitingClock clock;
    int attempts = 0;
    BusyRetry(clock).RepeatWhileBusy([&] {
        ++attempts;
        return false;
    });
    EXPECT_EQ(attempts, 1);
    EXPECT_TRUE(clock.waits.empty());
}

TEST(BusyRetry, RejectedCallIsRepeatedUntilItIsTaken) {
    FakeWaitingClock clock;
    int attempts = 0;
    BusyRetry(clock).RepeatWhileBusy([&] { return ++attempts < 4; });
    EXPECT_EQ(attempts, 4);
    EXPECT_EQ(clock.waits.size(), 3U);
}

TEST(BusyRetry, GivesUpAfterThirtySeconds) {
    FakeWaitingClock clock;
    const auto start = clock.now;
    BusyRetry(clock).RepeatWhileBusy([] { return true; });
    EXPECT_GE(clock.now - start, 30s);
    EXPECT_LT(clock.now - start, 31s);
}

TEST(BusyRetry, TimeSpentInsideTheCallCountsTowardsTheThirtySeconds) {
    FakeWaitingClock clock;
    int attempts = 0;
    BusyRetry(clock).RepeatWhileBusy([&] {
        ++attempts;
        clock.now += 16s;
        return true;
    });
    EXPECT_EQ(attempts, 2);
}

TEST(BusyRetry, ErrorOfTheCallIsPassedOn) {
    FakeWaitingClock clock;
    EXPECT_THROW(BusyRetry(clock).RepeatWhileBusy([]() -> bool { throw 1; }), int);
}

TEST(BusyRetry, UserCanStopWaitingAfterEveryRejection) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    int attempts = 0;
    const StoppableCalls stoppable(retry, [&] { return attempts == 3; });
    EXPECT_THROW(retry.RepeatWhileBusy([&] {
        ++attempts;
        return true;
    }),
                 OperationStopped);
    EXPECT_EQ(attempts, 3);
    EXPECT_EQ(clock.waits.size(), 2U);
}

TEST(BusyRetry, CallThatIsTakenDoesNotAskWhetherItIsStopped) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    const StoppableCalls stoppable(retry, [] { return true; });
    EXPECT_NO_THROW(retry.RepeatWhileBusy([] { return false; }));
}

TEST(BusyRetry, StopHoldsOnlyWhileTheCallsAreStoppable) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    {
        const StoppableCalls stoppable(retry, [] { return true; });
    }
    int attempts = 0;
    EXPECT_NO_THROW(retry.RepeatWhileBusy([&] { return ++attempts < 2; }));
}

namespace {

// Keeps what it is told, and gives up when it is asked for the given time.
class RecordingWatch : public BusyWatch {
public:
    void BusyBegins() override { told.emplace_back("busy"); }
    void BusyEnds() override { told.emplace_back("over"); }
    bool DropInput() override { return ++drops == givesUpAt; }

    std::vector<std::string> told;
    int drops = 0;
    int givesUpAt = 0; // never
};

} // namespace

TEST(BusyRetry, WatchIsToldOnceForEachCallThatIsRejected) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RecordingWatch watch;
    const WatchedCalls watched(retry, watch);
    int attempts = 0;
    retry.RepeatWhileBusy([&] { return ++attempts < 4; });
    EXPECT_EQ(watch.told, (std::vector<std::string>{"busy", "over"}));
    EXPECT_EQ(watch.drops, 4) << "after each rejection, and when the call was taken";
}

TEST(BusyRetry, WatchIsNotTroubledByCallsThatAreTakenAtOnce) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RecordingWatch watch;
    const WatchedCalls watched(retry, watch);
    retry.RepeatWhileBusy([] { return false; });
    EXPECT_TRUE(watch.told.empty());
    EXPECT_EQ(watch.drops, 0);
}

TEST(BusyRetry, InputOfACallThatTookASecondIsDroppedToo) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RecordingWatch watch;
    watch.givesUpAt = 2;
    const WatchedCalls watched(retry, watch);
    const auto callTaking = [&](std::chrono::milliseconds time) {
        retry.RepeatWhileBusy([&] {
            clock.now += time;
            return false;
        });
    };
    callTaking(999ms);
    EXPECT_EQ(watch.drops, 0);
    callTaking(1000ms);
    EXPECT_EQ(watch.drops, 1);
    EXPECT_THROW(callTaking(5s), OperationStopped) << "Escape is seen";
}

TEST(BusyRetry, InputOfManyShortCallsIsDroppedAtTheirEnd) {
    for (const int calls : {19, 20}) {
        FakeWaitingClock clock;
        BusyRetry retry(clock);
        RecordingWatch watch;
        {
            const WatchedCalls watched(retry, watch);
            for (int call = 0; call < calls; ++call)
                retry.RepeatWhileBusy([&] {
                    clock.now += 50ms;
                    return false;
                });
            EXPECT_EQ(watch.drops, 0) << "each of them is short";
        }
        EXPECT_EQ(watch.drops, calls == 20 ? 1 : 0) << calls;
    }
}

TEST(BusyRetry, GivingUpEndsTheWaitAndTheWatchIsTold) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RecordingWatch watch;
    watch.givesUpAt = 3;
    const WatchedCalls watched(retry, watch);
    EXPECT_THROW(retry.RepeatWhileBusy([] { return true; }), OperationStopped);
    EXPECT_EQ(clock.waits.size(), 2U);
    EXPECT_EQ(watch.told, (std::vector<std::string>{"busy", "over"}));
}

TEST(BusyRetry, WatchIsToldTheEndAlsoWhenTheCallFails) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RecordingWatch watch;
    const WatchedCalls watched(retry, watch);
    int attempts = 0;
    EXPECT_THROW(retry.RepeatWhileBusy([&]() -> bool {
        if (++attempts == 2)
            throw 1;
        return true;
    }),
                 int);
    EXPECT_EQ(watch.told, (std::vector<std::string>{"busy", "over"}));
}

TEST(BusyRetry, StoppableCallsKeepTheirInput) {
    FakeWaitingClock clock;
    BusyRetry retry(clock);
    RecordingWatch watch;
    const WatchedCalls watched(retry, watch);
    const StoppableCalls stoppable(retry, [] { return false; });
    int attempts = 0;
    retry.RepeatWhileBusy([&] {
        clock.now += 2s;
        return ++attempts < 3;
    });
    EXPECT_EQ(watch.drops, 0);
    EXPECT_EQ(watch.told, (std::vector<std::string>{"busy", "over"}));
}
