#include "standin/model/Configuration.h"

const MemberTable<Configuration>& Configuration::Members() const {
    static const MemberTable<Configuration> members{
        {"GetRootComponent", 0,
         [](Configuration& configuration, const AutomationArray&) -> AutomationValue {
             return AutomationObjectPtr(configuration.Root());
         }},
    };
    return members;
}
