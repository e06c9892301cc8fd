// Rules: SolidWorks session
#include "platform/BusyMessageFilter.h"

#include "platform/ComApartment.h"

#include <gtest/gtest.h>

namespace {

constexpr DWORD kGiveUp = static_cast<DWORD>(-1);

Microsoft::WRL::ComPtr<IMessageFilter> RegisteredFilter() {
    Microsoft::WRL::ComPtr<IMessageFilter> registered;
    CoRegisterMessageFilter(nullptr, &registered);
    CoRegisterMessageFilter(registered.Get(), nullptr);
    return registered;
}

} // namespace

TEST(BusyMessageFilter, RejectedCallComesBackToItsCallerAtOnce) {
    const ComApartment apartment;
    BusyMessageFilter filter;
    for (const DWORD reason : {DWORD{SERVERCALL_REJECTED}, DWORD{SERVERCALL_RETRYLATER}})
        EXPECT_EQ(filter.RetryRejectedCall(nullptr, 0, reason), kGiveUp);
}

TEST(BusyMessageFilter, WindowsTakeNoInputDuringACall) {
    const ComApartment apartment;
    BusyMessageFilter filter;
    EXPECT_EQ(filter.MessagePending(nullptr, 0, PENDINGTYPE_TOPLEVEL),
              static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
}

TEST(BusyMessageFilter, CallsFromOutsideAreTaken) {
    const ComApartment apartment;
    BusyMessageFilter filter;
    EXPECT_EQ(filter.HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, nullptr),
              static_cast<DWORD>(SERVERCALL_ISHANDLED));
}

TEST(BusyMessageFilter, IsTheThreadsFilterForAsLongAsItLives) {
    const ComApartment apartment;
    EXPECT_EQ(RegisteredFilter(), nullptr);
    {
        const BusyMessageFilter filter;
        EXPECT_NE(RegisteredFilter(), nullptr);
    }
    EXPECT_EQ(RegisteredFilter(), nullptr);
}
