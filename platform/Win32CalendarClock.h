#pragma once

#include "common/ports/CalendarClock.h"

// The CalendarClock port over GetLocalTime.
class Win32CalendarClock : public CalendarClock {
public:
    [[nodiscard]] CalendarTime Now() const override;
};
