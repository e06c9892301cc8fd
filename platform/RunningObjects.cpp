#include "platform/RunningObjects.h"

#include "platform/BusyResult.h"
#include "platform/DispatchObject.h"
#include "platform/Utf16.h"

HRESULT RunningObjects::ActiveObject(const CLSID& classId, IUnknown** object) {
    return GetActiveObject(classId, nullptr, object);
}

HRESULT RunningObjects::Attach(const CLSID& classId, IDispatch** dispatch) const {
    Microsoft::WRL::ComPtr<IUnknown> running;
    const HRESULT result = source_(classId, &running);
    return FAILED(result) ? result : running->QueryInterface(IID_PPV_ARGS(dispatch));
}

AutomationObjectPtr RunningObjects::GetRunningObject(const std::string& className) {
    CLSID classId{};
    if (FAILED(CLSIDFromProgID(ToUtf16(className).c_str(), &classId)))
        return nullptr;
    DispatchPtr dispatch;
    retry_.RepeatWhileBusy([&] { return IsBusy(Attach(classId, &dispatch)); });
    return dispatch ? std::make_shared<DispatchObject>(dispatch, retry_) : nullptr;
}
