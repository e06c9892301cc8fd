#include "standin/model/AssemblyDocument.h"

namespace {

// The first component below `parent`, at any depth, that shows the model.
std::shared_ptr<Component> FindOccurrence(const Component& parent, const DocumentPtr& model) {
    for (const auto& child : parent.Children()) {
        if (child->Model() == model)
            return child;
        if (auto found = FindOccurrence(*child, model))
            return found;
    }
    return nullptr;
}

} // namespace

std::shared_ptr<AssemblyDocument> AssemblyDocument::Create(const SessionPtr& session,
                                                           const std::string& title) {
    std::shared_ptr<AssemblyDocument> assembly(new AssemblyDocument(session, title));
    assembly->Connect();
    assembly->configuration_ = std::make_shared<Configuration>(
        std::make_shared<Component>(session, title, assembly, assembly));
    return assembly;
}

std::optional<SelectedItem> AssemblyDocument::Locate(const EntityPtr& entity) const {
    const DocumentPtr owner = entity->Owner();
    if (owner.get() == this) {
        if (entity->Kind() == EntityKind::Component)
            return SelectedItem{entity, std::static_pointer_cast<Component>(entity)};
        return SelectedItem{entity, nullptr};
    }
    const auto component = owner && Root() ? FindOccurrence(*Root(), owner) : nullptr;
    if (!component)
        return std::nullopt;
    return SelectedItem{entity, component};
}
