#pragma once

#include "standin/model/MemberTable.h"

// Answers the calls of an object from the member table of its class (`Object::Members()`).
template <class Object, class Base>
class WithMembers : public Base {
public:
    using Base::Base;

    AutomationValue Invoke(const std::string& member, const AutomationArray& arguments) override {
        return Self().Members().Invoke(Self(), member, arguments);
    }

    void Put(const std::string& member, const AutomationValue& value) override {
        Self().Members().Put(Self(), member, value);
    }

    [[nodiscard]] std::optional<std::string> FindMember(const std::string& name) const override {
        return static_cast<const Object&>(*this).Members().Find(name);
    }

private:
    Object& Self() { return static_cast<Object&>(*this); }
};
