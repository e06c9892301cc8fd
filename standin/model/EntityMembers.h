#pragma once

#include "standin/model/Entity.h"
#include "standin/model/MemberTable.h"

// Members that several kinds of entities have in the same words.
namespace EntityMembers {

template <class Object>
[[nodiscard]] Member<Object> Select() {
    return {"Select", 1, [](Object& object, const AutomationArray& arguments) -> AutomationValue {
                return object.Select(arguments[0].AsBoolean());
            }};
}

template <class Object>
[[nodiscard]] Member<Object> MaterialPropertyValues() {
    return {"MaterialPropertyValues", 0,
            [](Object& object, const AutomationArray&) -> AutomationValue {
                return ToAutomationValue(object.Color());
            },
            [](Object& object, const AutomationValue& value) {
                object.SetColor(ReadMaterialValues(value));
            }};
}

} // namespace EntityMembers
