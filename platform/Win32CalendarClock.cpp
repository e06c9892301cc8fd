#include "platform/Win32CalendarClock.h"

#include <windows.h>

CalendarTime Win32CalendarClock::Now() const {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}
