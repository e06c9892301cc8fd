#include "standin/com/CallFailure.h"

#include "common/RuntimeError.h"
#include "platform/Utf16.h"
#include "standin/model/Fault.h"
#include "standin/model/MemberTable.h"

#include <comdef.h>
#include <new>

namespace {

constexpr const wchar_t* kSource = L"SolidWorks stand-in";

HRESULT Describe(const RuntimeError& error, EXCEPINFO* exception) {
    if (error.Number() == ErrorNumber::NoSuchMember)
        return DISP_E_MEMBERNOTFOUND;
    if (error.Number() == kWrongArgumentCount)
        return DISP_E_BADPARAMCOUNT;
    if (exception != nullptr) {
        *exception = {};
        exception->scode =
            error.Number() == ErrorNumber::TypeMismatch ? DISP_E_TYPEMISMATCH : E_FAIL;
        exception->bstrSource = SysAllocString(kSource);
        exception->bstrDescription = SysAllocString(ToUtf16(error.Description()).c_str());
    }
    return DISP_E_EXCEPTION;
}

} // namespace

HRESULT ResultOfCurrentException(EXCEPINFO* exception) noexcept {
    try {
        throw;
    } catch (const CallRejected&) {
        return RPC_E_SERVERCALL_RETRYLATER; // the other answer is the message filter's
    } catch (const RuntimeError& error) {
        try {
            return Describe(error, exception);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    } catch (const _com_error& error) {
        return error.Error();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}
