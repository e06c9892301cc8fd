#include "common/BusyRetry.h"

#include "tests/fakes/FakeWaitingClock.h"

#include <gtest/gtest.h>

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
