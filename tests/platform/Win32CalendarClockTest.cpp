// Rules: Library files
#include "platform/Win32CalendarClock.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {

std::string ThisMinute() {
    const std::time_t now = std::time(nullptr);
    char text[32] = {};
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", std::localtime(&now));
    return text;
}

std::string MinuteOf(const CalendarTime& time) {
    char text[80] = {};
    snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d", time.year, time.month, time.day,
             time.hour, time.minute);
    return text;
}

} // namespace

TEST(Win32CalendarClock, TellsTheLocalTime) {
    const std::string before = ThisMinute();
    const CalendarTime time = Win32CalendarClock().Now();
    EXPECT_TRUE(MinuteOf(time) == before || MinuteOf(time) == ThisMinute()) << MinuteOf(time);
    EXPECT_GE(time.second, 0);
    EXPECT_LE(time.second, 60);
}
