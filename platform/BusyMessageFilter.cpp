#include "platform/BusyMessageFilter.h"

#include "common/BusyRetry.h"

#include <objbase.h>

BusyMessageFilter::BusyMessageFilter() {
    CoRegisterMessageFilter(this, &previous_);
}

BusyMessageFilter::~BusyMessageFilter() {
    CoRegisterMessageFilter(previous_.Get(), nullptr);
}

DWORD BusyMessageFilter::HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) noexcept {
    return SERVERCALL_ISHANDLED;
}

// tickCount: milliseconds since the call was first made.  The answer is a pause in milliseconds
// (100 or more), or -1: give up.
DWORD BusyMessageFilter::RetryRejectedCall(HTASK, DWORD tickCount, DWORD) noexcept {
    const auto pause = PauseBeforeRetry(std::chrono::milliseconds(tickCount));
    return pause ? static_cast<DWORD>(pause->count()) : static_cast<DWORD>(-1);
}

DWORD BusyMessageFilter::MessagePending(HTASK, DWORD, DWORD) noexcept {
    return PENDINGMSG_WAITDEFPROCESS;
}

HRESULT BusyMessageFilter::QueryInterface(REFIID interfaceId, void** object) noexcept {
    const bool known = interfaceId == IID_IUnknown || interfaceId == IID_IMessageFilter;
    *object = known ? static_cast<IMessageFilter*>(this) : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

ULONG BusyMessageFilter::AddRef() noexcept {
    return 1;
}

ULONG BusyMessageFilter::Release() noexcept {
    return 1;
}
