#pragma once

#include <windows.h>

// The results of a call that the other side rejected because it is busy, and that may be repeated.
[[nodiscard]] inline bool IsBusy(HRESULT result) noexcept {
    return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
}
