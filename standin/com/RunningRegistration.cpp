#include "standin/com/RunningRegistration.h"

#include "common/RuntimeError.h"
#include "platform/SystemMessage.h"
#include "platform/Win32WaitingClock.h"
#include "standin/com/ClassFactory.h"

#include <oleauto.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 10s;
constexpr auto kPause = 100ms;

// Soon after the system's start its object service may not answer yet.
HRESULT RegisterWhenReady(IUnknown* object, const CLSID& classId, DWORD& registration) {
    Win32WaitingClock clock;
    const auto start = clock.Now();
    HRESULT result = S_OK;
    do {
        result = RegisterActiveObject(object, classId, ACTIVEOBJECT_STRONG, &registration);
        if (result != HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE))
            return result;
        clock.Wait(kPause);
    } while (clock.Now() - start < kPatience);
    return result;
}

} // namespace

RunningRegistration::RunningRegistration(const CLSID& classId, DispatchPtr application)
    : application_(std::move(application)) {
    Microsoft::WRL::ComPtr<IClassFactory> factory;
    AdoptNew(factory, new ClassFactory(application_));
    HRESULT result = RegisterWhenReady(application_.Get(), classId, activeObject_);
    if (SUCCEEDED(result))
        result = CoRegisterClassObject(classId, factory.Get(), CLSCTX_LOCAL_SERVER,
                                       REGCLS_MULTIPLEUSE, &classObject_);
    if (FAILED(result)) {
        Revoke();
        throw SystemError(result);
    }
}

RunningRegistration::~RunningRegistration() {
    Revoke();
    CoDisconnectObject(application_.Get(), 0);
}

void RunningRegistration::Revoke() const noexcept {
    if (classObject_ != 0)
        CoRevokeClassObject(classObject_);
    if (activeObject_ != 0)
        RevokeActiveObject(activeObject_, nullptr);
}
