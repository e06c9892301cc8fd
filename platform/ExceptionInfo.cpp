#include "platform/ExceptionInfo.h"

#include "platform/SystemMessage.h"
#include "platform/Utf16.h"

#include <oleauto.h>

EXCEPINFO* ExceptionInfo::Receive() noexcept {
    Clear();
    return &info_;
}

std::string ExceptionInfo::Describe(HRESULT result) {
    if (result != DISP_E_EXCEPTION)
        return SystemMessage(result);
    if (info_.pfnDeferredFillIn != nullptr)
        info_.pfnDeferredFillIn(&info_);
    if (SysStringLen(info_.bstrDescription) != 0)
        return ToUtf8(
            std::wstring_view(info_.bstrDescription, SysStringLen(info_.bstrDescription)));
    return SystemMessage(FAILED(info_.scode) ? info_.scode : result);
}

void ExceptionInfo::Clear() noexcept {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
    info_ = {};
}
