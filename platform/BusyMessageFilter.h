#pragma once

#include <windows.h>
#include <objidl.h>
#include <wrl/client.h>

// The calling thread's message filter for as long as this object lives (CoRegisterMessageFilter):
// during a call windows are repainted but take no input.  A call that a busy program rejects comes
// back to its caller at once and is repeated there (BusyRetry), so that its time has one clock and
// a user can stop it.
class BusyMessageFilter : private IMessageFilter {
public:
    BusyMessageFilter();
    BusyMessageFilter(const BusyMessageFilter&) = delete;
    BusyMessageFilter& operator=(const BusyMessageFilter&) = delete;
    virtual ~BusyMessageFilter(); // behind the interface in the table of virtual functions

    // IMessageFilter
    STDMETHODIMP_(DWORD)
    HandleInComingCall(DWORD callType, HTASK caller, DWORD tickCount,
                       LPINTERFACEINFO interfaceInfo) noexcept override;
    STDMETHODIMP_(DWORD)
    RetryRejectedCall(HTASK callee, DWORD tickCount, DWORD rejectType) noexcept override;
    STDMETHODIMP_(DWORD)
    MessagePending(HTASK callee, DWORD tickCount, DWORD pendingType) noexcept override;

private:
    // IUnknown.  The object's lifetime is its owner's; the counts are only COM's.
    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override;
    STDMETHODIMP_(ULONG) Release() noexcept override;

    Microsoft::WRL::ComPtr<IMessageFilter> previous_;
};
