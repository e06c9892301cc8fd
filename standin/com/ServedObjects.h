#pragma once

#include "standin/com/ServedObjectHost.h"

#include <memory>
#include <unordered_map>

// The COM side of the objects that clients hold.
class ServedObjects final : public ServedObjectHost,
                            public std::enable_shared_from_this<ServedObjects> {
public:
    [[nodiscard]] DispatchPtr DispatchOf(const StandInObjectPtr& object) override;
    [[nodiscard]] MemberIds& Members() noexcept override { return members_; }
    void CountNameLookup() noexcept override { ++nameLookups_; }
    void Forget(const StandInObject& object) noexcept override { served_.erase(&object); }

    [[nodiscard]] std::size_t NameLookups() const noexcept { return nameLookups_; }

private:
    MemberIds members_;
    std::unordered_map<const StandInObject*, IDispatch*> served_; // not owned: clients own them
    std::size_t nameLookups_ = 0;
};
