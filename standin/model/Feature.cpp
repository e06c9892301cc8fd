#include "standin/model/Feature.h"

#include "standin/model/Document.h"
#include "standin/model/EntityMembers.h"

std::shared_ptr<Feature> Feature::Next() const {
    return RequireOwner()->ChainAt(index_ + 1);
}

const MemberTable<Feature>& Feature::Members() const {
    using Arguments = AutomationArray;
    static const MemberTable<Feature> members{
        EntityMembers::Select<Feature>(),
        {"GetMaterialPropertyValues", 0,
         [](Feature& feature, const Arguments&) { return ToAutomationValue(feature.Color()); }},
        {"SetMaterialPropertyValues", 1,
         [](Feature& feature, const Arguments& arguments) -> AutomationValue {
             feature.SetColor(ReadMaterialValues(arguments[0]));
             return true;
         }},
        {"IsSuppressed", 0,
         [](Feature& feature, const Arguments&) -> AutomationValue {
             return feature.IsSuppressed();
         }},
        {"GetNextFeature", 0,
         [](Feature& feature, const Arguments&) -> AutomationValue {
             return AutomationObjectPtr(feature.Next());
         }},
        {"GetTypeName", 0,
         [](Feature& feature, const Arguments&) -> AutomationValue { return feature.TypeName(); }},
        {"Name", 0,
         [](Feature& feature, const Arguments&) -> AutomationValue { return feature.Name(); },
         [](Feature& feature, const AutomationValue& value) { feature.Rename(value.AsString()); }},
    };
    return members;
}
