#pragma once

#include "common/ports/CalendarClock.h"

#include <string>

// "YYYY-MM-DD hh:mm:ss", or with something else between the parts of the time.
[[nodiscard]] std::string CalendarText(const CalendarTime& time, const char* between = ":");
