#pragma once

#include "platform/VariantConversion.h"
#include "standin/com/MemberIds.h"
#include "standin/model/StandInObject.h"

// What an object that clients hold asks of those who serve it.
class ServedObjectHost {
public:
    ServedObjectHost() = default;
    ServedObjectHost(const ServedObjectHost&) = delete;
    ServedObjectHost& operator=(const ServedObjectHost&) = delete;
    virtual ~ServedObjectHost() = default;

    // The same object has the same IDispatch as long as that one lives.
    [[nodiscard]] virtual DispatchPtr DispatchOf(const StandInObjectPtr& object) = 0;
    [[nodiscard]] virtual MemberIds& Members() noexcept = 0;
    virtual void CountNameLookup() noexcept = 0;
    // Called by an object that goes.
    virtual void Forget(const StandInObject& object) noexcept = 0;
};
