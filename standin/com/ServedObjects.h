#pragma once

#include "platform/VariantConversion.h"
#include "standin/com/MemberIds.h"
#include "standin/model/StandInObject.h"

#include <memory>
#include <unordered_map>

// The COM side of the objects that clients hold.  The same object has the same IDispatch as long as
// that one lives.
class ServedObjects : public std::enable_shared_from_this<ServedObjects> {
public:
    [[nodiscard]] DispatchPtr DispatchOf(const StandInObjectPtr& object);

    [[nodiscard]] MemberIds& Members() noexcept { return members_; }

    void CountNameLookup() noexcept { ++nameLookups_; }
    [[nodiscard]] std::size_t NameLookups() const noexcept { return nameLookups_; }

    // Called by an object that goes.
    void Forget(const StandInObject& object) noexcept { served_.erase(&object); }

private:
    MemberIds members_;
    std::unordered_map<const StandInObject*, IDispatch*> served_; // not owned: clients own them
    std::size_t nameLookups_ = 0;
};
