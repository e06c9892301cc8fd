#pragma once

#include <windows.h>
#include <oaidl.h>

// Turns the exception that is being handled into the result of an IDispatch call; exception may be
// null.
[[nodiscard]] HRESULT ResultOfCurrentException(EXCEPINFO* exception) noexcept;
