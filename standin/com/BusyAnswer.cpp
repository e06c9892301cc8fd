#include "standin/com/BusyAnswer.h"

#include <oaidl.h>

DWORD STDMETHODCALLTYPE BusyFilter::HandleInComingCall(DWORD /*callType*/, HTASK /*caller*/,
                                                       DWORD /*tickCount*/,
                                                       LPINTERFACEINFO call) noexcept {
    const bool isMember = call != nullptr && call->iid == IID_IDispatch;
    return isMember && gate_.TakeRejection(FaultKind::Busy) ? SERVERCALL_REJECTED
                                                            : SERVERCALL_ISHANDLED;
}

DWORD STDMETHODCALLTYPE BusyFilter::RetryRejectedCall(HTASK /*callee*/, DWORD /*tickCount*/,
                                                      DWORD /*rejectType*/) noexcept {
    return static_cast<DWORD>(-1);
}

DWORD STDMETHODCALLTYPE BusyFilter::MessagePending(HTASK /*callee*/, DWORD /*tickCount*/,
                                                   DWORD /*pendingType*/) noexcept {
    return PENDINGMSG_WAITDEFPROCESS;
}

BusyAnswer::BusyAnswer(CallGate& gate) {
    Microsoft::WRL::ComPtr<IMessageFilter> filter;
    AdoptNew(filter, new BusyFilter(gate));
    CoRegisterMessageFilter(filter.Get(), nullptr);
}

BusyAnswer::~BusyAnswer() {
    CoRegisterMessageFilter(nullptr, nullptr);
}
