#pragma once

#include "common/ports/CalendarClock.h"

// Stands still.
class FakeCalendarClock : public CalendarClock {
public:
    CalendarTime Now() const override { return now; }

    CalendarTime now{2024, 3, 9, 8, 5, 7};
};
