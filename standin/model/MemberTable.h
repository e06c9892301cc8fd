#pragma once

#include "common/RuntimeError.h"
#include "common/Text.h"
#include "common/ports/AutomationObject.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

// The run-time error for a call with too few or too many arguments.
inline constexpr int kWrongArgumentCount = 450;

// One method or property of a class of objects.  write is null for all that cannot be assigned.
template <class Object>
struct Member {
    const char* name;
    std::size_t argumentCount;
    AutomationValue (*read)(Object&, const AutomationArray&);
    void (*write)(Object&, const AutomationValue&) = nullptr;
};

// The members of a class of objects and how a call finds them.  Calls need the exact spelling.
template <class Object>
class MemberTable {
public:
    MemberTable(std::initializer_list<Member<Object>> members) : members_(members) {}

    // All members of `base`, then these.
    MemberTable(const MemberTable& base, std::initializer_list<Member<Object>> members)
        : members_(base.members_) {
        members_.insert(members_.end(), members);
    }

    // Throws RuntimeError: NoSuchMember, kWrongArgumentCount, or what the member itself throws,
    // always with the member's name.
    AutomationValue Invoke(Object& object, const std::string& name,
                           const AutomationArray& arguments) const {
        const Member<Object>& member = Require(name);
        if (arguments.size() != member.argumentCount)
            throw RuntimeError(kWrongArgumentCount,
                               "Wrong number of arguments: " + std::to_string(arguments.size()) +
                                   " instead of " + std::to_string(member.argumentCount),
                               name);
        return NamingMember(name, [&] { return member.read(object, arguments); });
    }

    void Put(Object& object, const std::string& name, const AutomationValue& value) const {
        const Member<Object>& member = Require(name);
        if (!member.write)
            throw RuntimeError(ErrorNumber::NoSuchMember, "This member cannot be assigned", name);
        NamingMember(name, [&] { member.write(object, value); });
    }

    [[nodiscard]] std::optional<std::string> Find(const std::string& name) const {
        const std::string wanted = ToLowerAscii(name);
        const auto found = std::find_if(members_.begin(), members_.end(), [&](const auto& member) {
            return ToLowerAscii(member.name) == wanted;
        });
        return found == members_.end() ? std::nullopt : std::optional<std::string>(found->name);
    }

private:
    const Member<Object>& Require(const std::string& name) const {
        const auto found = std::find_if(members_.begin(), members_.end(),
                                        [&](const auto& member) { return member.name == name; });
        if (found == members_.end())
            throw RuntimeError(ErrorNumber::NoSuchMember,
                               "The object has no property or method of this name", name);
        return *found;
    }

    std::vector<Member<Object>> members_;
};
