#include "platform/BusyMessageFilter.h"

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

DWORD BusyMessageFilter::RetryRejectedCall(HTASK, DWORD, DWORD) noexcept {
    return static_cast<DWORD>(-1); // returns to the caller at once
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
