#include "platform/RunningObjects.h"

#include "platform/BusyResult.h"
#include "platform/DispatchObject.h"
#include "platform/Utf16.h"

AutomationObjectPtr RunningObjects::GetRunningObject(const std::string& className) {
    CLSID classId{};
    if (FAILED(CLSIDFromProgID(ToUtf16(className).c_str(), &classId)))
        return nullptr;
    Microsoft::WRL::ComPtr<IUnknown> running;
    if (FAILED(GetActiveObject(classId, nullptr, &running)))
        return nullptr;
    DispatchPtr dispatch;
    retry_.RepeatWhileBusy([&] { return IsBusy(running.As(&dispatch)); });
    return dispatch ? std::make_shared<DispatchObject>(dispatch, retry_) : nullptr;
}
