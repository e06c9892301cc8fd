#include "platform/ExceptionInfo.h"

#include "platform/SystemMessage.h"
#include "platform/Utf16.h"

#include <oleauto.h>

EXCEPINFO* ExceptionInfo::Receive() noexcept {
    Clear();
    return &info_;
}

RuntimeError ExceptionInfo::ToError(HRESULT result, int number, const std::string& member) {
    if (result != DISP_E_EXCEPTION)
        return SystemError(result, number, member);
    if (info_.pfnDeferredFillIn != nullptr)
        info_.pfnDeferredFillIn(&info_);
    const std::wstring_view words(info_.bstrDescription, SysStringLen(info_.bstrDescription));
    if (!words.empty())
        return {number, ToUtf8(words), member};
    return SystemError(FAILED(info_.scode) ? info_.scode : result, number, member);
}

void ExceptionInfo::Clear() noexcept {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
    info_ = {};
}
