#pragma once

#include "common/BusyRetry.h"
#include "common/ports/AutomationObject.h"
#include "platform/VariantConversion.h"

#include <map>

// A late-bound object of another program: IDispatch, called by name.  A name is resolved once per
// object.  A call that the other side rejects because it is busy is repeated; resolving its name is
// part of it.
class DispatchObject : public AutomationObject {
public:
    // retry must outlive this object and every object that its members return.
    DispatchObject(DispatchPtr dispatch, BusyRetry& retry);

    AutomationValue Invoke(const std::string& member, const AutomationArray& arguments) override;
    void Put(const std::string& member, const AutomationValue& value) override;

private:
    // The member's number, asked for once.
    [[nodiscard]] HRESULT Resolve(const std::string& member, DISPID& id);
    [[nodiscard]] AutomationValue Call(const std::string& member, WORD kind,
                                       const DISPPARAMS& parameters);

    [[nodiscard]] AutomationObjectPtr Wrap(const DispatchPtr& dispatch) const;
    [[nodiscard]] static DispatchPtr Unwrap(const AutomationObjectPtr& object);

    DispatchPtr dispatch_;
    BusyRetry& retry_;
    std::map<std::string, DISPID> members_;
};
