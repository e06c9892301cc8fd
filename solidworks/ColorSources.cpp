#include "solidworks/ColorSources.h"

#include "common/RuntimeError.h"
#include "solidworks/ColorArray.h"

namespace ColorSources {

AutomationAnswer Probe(const std::function<AutomationAnswer()>& source) {
    try {
        return source();
    } catch (const RuntimeError& error) {
        if (error.Number() == ErrorNumber::ConnectionLost ||
            error.Number() == ErrorNumber::UserInterrupt)
            throw;
        return {};
    }
}

AutomationObjectPtr ProbeObject(AutomationObject& owner, const char* member) {
    const AutomationAnswer answer = Probe([&] { return owner.Get(member); });
    const auto* object = std::get_if<AutomationObjectPtr>(&answer.data);
    return object != nullptr ? *object : nullptr;
}

ColorValueArray Values(const AutomationAnswer& array) {
    return NamingMember(array.Member(), [&] { return ColorArray::ToValues(array); });
}

} // namespace ColorSources
