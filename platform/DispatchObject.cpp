#include "platform/DispatchObject.h"

#include "common/RuntimeError.h"
#include "platform/BusyResult.h"
#include "platform/ExceptionInfo.h"
#include "platform/Utf16.h"

namespace {

// True when the program that owns the object is gone, or was busy until patience ended.
bool IsConnectionLost(HRESULT result) noexcept {
    switch (result) {
    case RPC_E_DISCONNECTED:
    case RPC_E_SERVER_DIED:
    case RPC_E_SERVER_DIED_DNE:
    case RPC_E_CONNECTION_TERMINATED:
    case CO_E_OBJNOTCONNECTED:
        return true;
    default:
        return IsBusy(result) || result == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE) ||
               result == HRESULT_FROM_WIN32(RPC_S_CALL_FAILED) ||
               result == HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE);
    }
}

[[noreturn]] void ThrowCallFailed(HRESULT result, ExceptionInfo& exception,
                                  const std::string& member) {
    throw exception.ToError(
        result, IsConnectionLost(result) ? ErrorNumber::ConnectionLost : ErrorNumber::Automation,
        member);
}

// Calls take their arguments as an array of plain variants.
static_assert(sizeof(_variant_t) == sizeof(VARIANT));

} // namespace

DispatchObject::DispatchObject(DispatchPtr dispatch, BusyRetry& retry)
    : dispatch_(std::move(dispatch)), retry_(retry) {}

AutomationValue DispatchObject::Invoke(const std::string& member,
                                       const AutomationArray& arguments) {
    std::vector<_variant_t> reversed(arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i)
        NamingMember(member,
                     [&] { ToVariant(arguments[i], Unwrap, reversed[arguments.size() - 1 - i]); });
    const DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    return Call(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters);
}

void DispatchObject::Put(const std::string& member, const AutomationValue& value) {
    _variant_t argument;
    NamingMember(member, [&] { ToVariant(value, Unwrap, argument); });
    DISPID assigned = DISPID_PROPERTYPUT;
    static_cast<void>(Call(member, DISPATCH_PROPERTYPUT, {&argument, &assigned, 1, 1}));
}

HRESULT DispatchObject::Resolve(const std::string& member, DISPID& id) {
    if (const auto known = members_.find(member); known != members_.end()) {
        id = known->second;
        return S_OK;
    }
    std::wstring name = ToUtf16(member);
    LPOLESTR names = name.data();
    const HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (SUCCEEDED(result))
        members_.emplace(member, id);
    return result;
}

AutomationValue DispatchObject::Call(const std::string& member, WORD kind,
                                     const DISPPARAMS& parameters) {
    DISPPARAMS passed = parameters; // the interface takes it without const
    VARIANT* noResult = nullptr;
    _variant_t answer;
    ExceptionInfo exception;
    UINT badArgument = 0;
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = S_OK;
    retry_.RepeatWhileBusy([&] {
        result = Resolve(member, id);
        if (SUCCEEDED(result))
            result = dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &passed,
                                       kind == DISPATCH_PROPERTYPUT ? noResult : &answer,
                                       exception.Receive(), &badArgument);
        return IsBusy(result);
    });
    if (FAILED(result))
        ThrowCallFailed(result, exception, member);
    return NamingMember(member, [&] {
        return FromVariant(answer, [this](const DispatchPtr& dispatch) { return Wrap(dispatch); });
    });
}

AutomationObjectPtr DispatchObject::Wrap(const DispatchPtr& dispatch) const {
    return std::make_shared<DispatchObject>(dispatch, retry_);
}

DispatchPtr DispatchObject::Unwrap(const AutomationObjectPtr& object) {
    const auto* other = dynamic_cast<const DispatchObject*>(object.get());
    if (other == nullptr)
        throw RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::WrongKindOfValue);
    return other->dispatch_;
}
