#include "standin/model/SelectionManager.h"

#include "standin/model/Component.h"
#include "standin/model/Document.h"

SelectedItem SelectionManager::ItemAt(const AutomationValue& index) const {
    const auto document = RequireOpen(owner_);
    const auto& items = document->CurrentSelection().Items();
    const std::int32_t number = index.AsInt32();
    if (number < 1 || static_cast<std::size_t>(number) > items.size())
        return {};
    return items[static_cast<std::size_t>(number - 1)];
}

const MemberTable<SelectionManager>& SelectionManager::Members() const {
    using Arguments = AutomationArray;
    static const MemberTable<SelectionManager> members{
        {"GetSelectedObjectCount", 0,
         [](SelectionManager& manager, const Arguments&) -> AutomationValue {
             const auto document = RequireOpen(manager.owner_);
             return static_cast<std::int32_t>(document->CurrentSelection().Items().size());
         }},
        {"GetSelectedObject3", 1,
         [](SelectionManager& manager, const Arguments& arguments) -> AutomationValue {
             return AutomationObjectPtr(manager.ItemAt(arguments[0]).entity);
         }},
        {"GetSelectedObjectType2", 1,
         [](SelectionManager& manager, const Arguments& arguments) -> AutomationValue {
             const EntityPtr entity = manager.ItemAt(arguments[0]).entity;
             return entity ? static_cast<std::int32_t>(entity->Kind()) : 0;
         }},
        {"GetSelectedObjectsComponent", 1,
         [](SelectionManager& manager, const Arguments& arguments) -> AutomationValue {
             return AutomationObjectPtr(manager.ItemAt(arguments[0]).component);
         }},
    };
    return members;
}
