#pragma once

#include "standin/com/ComObject.h"
#include "standin/model/CallGate.h"

#include <objidl.h>

// Turns calls away before they reach their object, as a program that is busy does: the thread's
// message filter, which is asked for every call that comes in.  Only calls of members and look-ups
// of their names are turned away.
class BusyFilter final : public ComObject<IMessageFilter> {
public:
    explicit BusyFilter(CallGate& gate) : gate_(gate) {}

    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD callType, HTASK caller, DWORD tickCount,
                                               LPINTERFACEINFO call) noexcept override;
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK callee, DWORD tickCount,
                                              DWORD rejectType) noexcept override;
    DWORD STDMETHODCALLTYPE MessagePending(HTASK callee, DWORD tickCount,
                                           DWORD pendingType) noexcept override;

private:
    CallGate& gate_;
};

// The filter is the calling thread's as long as this lives.
class BusyAnswer {
public:
    explicit BusyAnswer(CallGate& gate);
    BusyAnswer(const BusyAnswer&) = delete;
    BusyAnswer& operator=(const BusyAnswer&) = delete;
    ~BusyAnswer();
};
