#pragma once

#include "platform/VariantConversion.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

// An automation object in this process that records its calls and answers as the test says.
class FakeDispatch : public IDispatch {
public:
    struct Call {
        std::wstring member;
        WORD kind = 0;
        std::vector<_variant_t> arguments; // in the order in which they came: the last one first
        std::vector<DISPID> namedArguments;
        bool resultWanted = false;
    };
    // Fills the result; what it returns is the call's.
    using Answer = std::function<HRESULT(VARIANT* result, EXCEPINFO* exception)>;

    // An answer that succeeds with the value.
    [[nodiscard]] static Answer Returns(const _variant_t& value);

    std::map<std::wstring, Answer> members;
    std::vector<Call> calls;
    int nameQueries = 0;
    int busyAnswers = 0; // so many calls and name queries are rejected first
    HRESULT busyResult = RPC_E_CALL_REJECTED;
    HRESULT interfaceResult = S_OK; // of asking for the automation interface

    // Counts held by others; this object itself belongs to the test.
    [[nodiscard]] ULONG References() const noexcept { return references_; }

    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override { return --references_; }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override;

private:
    [[nodiscard]] bool TakeBusyAnswer();

    ULONG references_ = 0;
};
