#pragma once

// A moment as people of this place read it from the calendar and the clock on the wall.
struct CalendarTime {
    int year = 0;
    int month = 0; // from 1
    int day = 0;   // from 1
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// Tells what time it is.
class CalendarClock {
public:
    virtual ~CalendarClock() = default;

    [[nodiscard]] virtual CalendarTime Now() const = 0;
};
