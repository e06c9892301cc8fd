#include "common/AutomationAnswer.h"

#include "common/RuntimeError.h"

double AutomationAnswer::AsDouble() const {
    return NamingMember(member_, [this] { return AutomationValue::AsDouble(); });
}

std::int32_t AutomationAnswer::AsInt32() const {
    return NamingMember(member_, [this] { return AutomationValue::AsInt32(); });
}

std::string AutomationAnswer::AsString() const {
    return NamingMember(member_, [this] { return AutomationValue::AsString(); });
}

bool AutomationAnswer::AsBoolean() const {
    return NamingMember(member_, [this] { return AutomationValue::AsBoolean(); });
}

AutomationObjectPtr AutomationAnswer::AsObject() const {
    return NamingMember(member_, [this] { return AutomationValue::AsObject(); });
}
