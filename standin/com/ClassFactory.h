#pragma once

#include "platform/VariantConversion.h"
#include "standin/com/ComObject.h"

// Gives the one running application object to everybody who asks for a new one, so that script
// hosts reach it through CreateObject.
class ClassFactory final : public ComObject<IClassFactory> {
public:
    explicit ClassFactory(DispatchPtr application) : application_(std::move(application)) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** result) override {
        if (result == nullptr)
            return E_POINTER;
        *result = nullptr;
        return outer != nullptr ? CLASS_E_NOAGGREGATION : application_->QueryInterface(id, result);
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*lock*/) override { return S_OK; }

private:
    DispatchPtr application_;
};
