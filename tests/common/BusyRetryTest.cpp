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

// The platform's message filter takes a pause below 100 milliseconds for "at once".
TEST(PauseBeforeRetry, IsAtLeastATenthOfASecond) {
    EXPECT_GE(PauseBeforeRetry(0ms).value(), 100ms);
    EXPECT_GE(PauseBeforeRetry(29999ms).value(), 100ms);
}

TEST(PauseBeforeRetry, EndsWithTheThirtiethSecond) {
    EXPECT_TRUE(PauseBeforeRetry(29999ms));
    EXPECT_FALSE(PauseBeforeRetry(30s));
}
