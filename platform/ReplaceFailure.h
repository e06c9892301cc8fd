#pragma once

#include "common/ports/Files.h"

#include <windows.h>

// What a failed ReplaceFile has left, by its error: most errors leave everything as it was, but the
// call has several steps and can stay in their middle.
[[nodiscard]] constexpr Exchanged AfterFailedReplace(DWORD error, bool hasBackup) noexcept {
    switch (error) {
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
        return hasBackup ? Exchanged::Unchanged : Exchanged::OldIsGone;
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
        return Exchanged::OldIsBackup;
    // Of file systems and servers that have no such call.
    case ERROR_NOT_SUPPORTED:
    case ERROR_INVALID_FUNCTION:
    case ERROR_INVALID_PARAMETER:
    case ERROR_CALL_NOT_IMPLEMENTED:
    case ERROR_INVALID_LEVEL:
    case ERROR_NOT_SAME_DEVICE:
        return Exchanged::NotSupported;
    default: // ERROR_UNABLE_TO_REMOVE_REPLACED among them
        return Exchanged::Unchanged;
    }
}
