#pragma once

#include "standin/com/ComObject.h"
#include "standin/com/ServedObjectHost.h"

#include <memory>
#include <oaidl.h>
#include <utility>

// IDispatch for one object of the stand-in.  Names are found whatever their letter case; a call
// with METHOD or PROPERTYGET reads, one with PROPERTYPUT assigns.  No exception leaves it: the
// words of a RuntimeError go into EXCEPINFO, a rejected call returns
// RPC_E_SERVERCALL_RETRYLATER.
class ServedObject final : public ComObject<IDispatch> {
public:
    ServedObject(std::shared_ptr<ServedObjectHost> host, StandInObjectPtr object)
        : host_(std::move(host)), object_(std::move(object)) {}
    ServedObject(const ServedObject&) = delete;
    ServedObject& operator=(const ServedObject&) = delete;
    ~ServedObject() override { host_->Forget(*object_); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                            LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) override;

private:
    [[nodiscard]] DISPID Resolve(const OLECHAR* name);
    void Call(const std::string& member, const DISPPARAMS& parameters, VARIANT* result);
    void Assign(const std::string& member, const DISPPARAMS& parameters);

    std::shared_ptr<ServedObjectHost> host_;
    StandInObjectPtr object_;
};
