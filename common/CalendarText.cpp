#include "common/CalendarText.h"

#include <array>
#include <cstdio>

std::string CalendarText(const CalendarTime& time, const char* between) {
    std::array<char, 100> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d%s%02d%s%02d",
                                    time.year, time.month, time.day, time.hour, between,
                                    time.minute, between, time.second));
    return text.data();
}
