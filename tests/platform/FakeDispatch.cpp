#include "tests/platform/FakeDispatch.h"

#include <iterator>

FakeDispatch::Answer FakeDispatch::Returns(const _variant_t& value) {
    return [value](VARIANT* result, EXCEPINFO*) {
        VARIANT source = value; // the platform takes it without const
        return VariantCopy(result, &source);
    };
}

HRESULT FakeDispatch::QueryInterface(REFIID interfaceId, void** object) {
    if (interfaceId == IID_IDispatch && FAILED(interfaceResult)) {
        *object = nullptr;
        return interfaceResult;
    }
    const bool known = interfaceId == IID_IUnknown || interfaceId == IID_IDispatch;
    *object = known ? static_cast<IDispatch*>(this) : nullptr;
    if (!known)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT FakeDispatch::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT FakeDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    ++nameQueries;
    if (TakeBusyAnswer())
        return busyResult;
    const auto found = members.find(*names);
    if (found == members.end())
        return DISP_E_UNKNOWNNAME;
    *ids = static_cast<DISPID>(std::distance(members.begin(), found)) + 100;
    return S_OK;
}

HRESULT FakeDispatch::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                             VARIANT* result, EXCEPINFO* exception, UINT*) {
    if (TakeBusyAnswer())
        return busyResult;
    const auto member = std::next(members.begin(), id - 100);
    Call& call = calls.emplace_back();
    call.member = member->first;
    call.kind = kind;
    call.arguments.assign(parameters->rgvarg, parameters->rgvarg + parameters->cArgs);
    call.namedArguments.assign(parameters->rgdispidNamedArgs,
                               parameters->rgdispidNamedArgs + parameters->cNamedArgs);
    call.resultWanted = result != nullptr;
    return member->second ? member->second(result, exception) : S_OK;
}

bool FakeDispatch::TakeBusyAnswer() {
    if (busyAnswers == 0)
        return false;
    --busyAnswers;
    return true;
}
