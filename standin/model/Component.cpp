#include "standin/model/Component.h"

#include "common/Numbers.h"
#include "standin/model/EntityMembers.h"

#include <algorithm>
#include <iterator>

namespace {

// The first main revision whose components can lose their color.
constexpr double kRevisionWithRemove = 9.0;

AutomationValue ChildrenOf(const Component& component) {
    AutomationArray children;
    std::transform(component.Children().begin(), component.Children().end(),
                   std::back_inserter(children), [](const std::shared_ptr<Component>& child) {
                       return AutomationValue(AutomationObjectPtr(child));
                   });
    return children;
}

const MemberTable<Component>& MembersOfOldRevisions() {
    using Arguments = AutomationArray;
    static const MemberTable<Component> members{
        EntityMembers::Select<Component>(),
        EntityMembers::MaterialPropertyValues<Component>(),
        {"GetModelDoc", 0,
         [](Component& component, const Arguments&) -> AutomationValue {
             return AutomationObjectPtr(component.Model());
         }},
        {"GetChildren", 0,
         [](Component& component, const Arguments&) { return ChildrenOf(component); }},
        {"IsSuppressed", 0, [](Component&, const Arguments&) -> AutomationValue { return false; }},
        {"Name2", 0,
         [](Component& component, const Arguments&) -> AutomationValue {
             return component.Name();
         }},
    };
    return members;
}

const MemberTable<Component>& MembersOfNewRevisions() {
    static const MemberTable<Component> members{
        MembersOfOldRevisions(),
        {{"RemoveMaterialProperty", 0,
          [](Component& component, const AutomationArray&) -> AutomationValue {
              component.SetColor(std::nullopt);
              return true;
          }}}};
    return members;
}

} // namespace

std::shared_ptr<Component> Component::Add(const std::string& name, const DocumentPtr& model) {
    children_.push_back(std::make_shared<Component>(OwnSession(), name, RequireOwner(), model));
    children_.back()->parent_ = std::static_pointer_cast<Component>(shared_from_this());
    return children_.back();
}

MaterialOverride Component::EffectiveColor() const {
    const auto parent = parent_.lock();
    const MaterialOverride outer = parent ? parent->EffectiveColor() : std::nullopt;
    return outer ? outer : Color();
}

DocumentPtr Component::Model() const {
    return hasModel_ ? RequireOpen(model_) : nullptr;
}

const MemberTable<Component>& Component::Members() const {
    return LeadingNumber(OwnSession()->revision) < kRevisionWithRemove ? MembersOfOldRevisions()
                                                                       : MembersOfNewRevisions();
}
