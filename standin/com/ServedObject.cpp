#include "standin/com/ServedObject.h"

#include "common/RuntimeError.h"
#include "platform/Utf16.h"
#include "standin/com/CallFailure.h"

#include <comdef.h>

namespace {

AutomationObjectPtr RefuseObject(const DispatchPtr& /*dispatch*/) {
    throw RuntimeError(ErrorNumber::TypeMismatch, "No member takes an object as an argument");
}

// Arguments travel in reverse order.
AutomationArray ReadArguments(const DISPPARAMS& parameters) {
    AutomationArray arguments;
    for (UINT i = parameters.cArgs; i > 0; --i)
        arguments.push_back(FromVariant(parameters.rgvarg[i - 1], RefuseObject));
    return arguments;
}

// Whoever assigns a property says which argument is the new value.
bool NamesNewValue(const DISPPARAMS& parameters) noexcept {
    return parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs != nullptr &&
           parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
}

} // namespace

HRESULT STDMETHODCALLTYPE ServedObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ServedObject::GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                                    ITypeInfo** info) {
    if (info != nullptr)
        *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT STDMETHODCALLTYPE ServedObject::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names,
                                                      UINT count, LCID /*locale*/, DISPID* ids) {
    if (names == nullptr || ids == nullptr || count == 0)
        return E_INVALIDARG;
    host_->CountNameLookup();
    // Only the member itself has a name; arguments have none.
    for (UINT i = 0; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    try {
        ids[0] = Resolve(names[0]);
    } catch (...) {
        return ResultOfCurrentException(nullptr);
    }
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

DISPID ServedObject::Resolve(const OLECHAR* name) {
    const auto member = object_->FindMember(ToUtf8(name));
    return member ? host_->Members().IdOf(*member) : DISPID_UNKNOWN;
}

HRESULT STDMETHODCALLTYPE ServedObject::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/,
                                               WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                               EXCEPINFO* exception, UINT* /*badArgument*/) {
    const std::string* member = host_->Members().NameOf(id);
    if (member == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    if (parameters == nullptr)
        return E_INVALIDARG;
    try {
        const bool assigns = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        if (assigns && !NamesNewValue(*parameters))
            return DISP_E_PARAMNOTFOUND;
        if (assigns)
            Assign(*member, *parameters);
        else if (parameters->cNamedArgs != 0)
            return DISP_E_NONAMEDARGS;
        else
            Call(*member, *parameters, result);
        return S_OK;
    } catch (...) {
        return ResultOfCurrentException(exception);
    }
}

void ServedObject::Call(const std::string& member, const DISPPARAMS& parameters, VARIANT* result) {
    const AutomationValue answer = object_->Invoke(member, ReadArguments(parameters));
    if (result == nullptr)
        return;
    _variant_t variant;
    ToVariant(
        answer,
        [this](const AutomationObjectPtr& object) {
            return host_->DispatchOf(std::static_pointer_cast<StandInObject>(object));
        },
        variant);
    *result = variant.Detach();
}

void ServedObject::Assign(const std::string& member, const DISPPARAMS& parameters) {
    const AutomationArray arguments = ReadArguments(parameters);
    if (arguments.size() != 1)
        throw RuntimeError(ErrorNumber::TypeMismatch, "A property takes exactly one value", member);
    object_->Put(member, arguments.front());
}
