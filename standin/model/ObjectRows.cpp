#include "standin/model/ObjectRows.h"

namespace {

using Rows = std::vector<SelectedItem>;
using ComponentPtr = std::shared_ptr<Component>;

template <class Entities>
void AddAll(const Entities& entities, const ComponentPtr& component, Rows& rows) {
    for (const auto& entity : entities)
        rows.push_back({entity, component});
}

// Planes and sketches; folders and the like cannot be picked.
void AddReferences(const Document& document, const ComponentPtr& component, Rows& rows) {
    for (const auto& feature : document.Chain())
        if (feature->Kind() == EntityKind::Plane || feature->Kind() == EntityKind::Sketch)
            rows.push_back({feature, component});
}

void AddContents(const Document& document, const ComponentPtr& component, Rows& rows) {
    AddAll(document.Features(), component, rows);
    if (document.Type() != DocumentType::Part)
        return;
    const auto& part = static_cast<const PartDocument&>(document);
    AddAll(part.Faces(), component, rows);
    AddAll(part.Edges(), component, rows);
    AddAll(part.Vertices(), component, rows);
    AddReferences(part, component, rows);
}

void AddChildren(const Component& parent, Rows& rows) {
    for (const ComponentPtr& child : parent.Children()) {
        rows.push_back({child, child});
        if (const DocumentPtr model = child->Model())
            AddContents(*model, child, rows);
        AddChildren(*child, rows);
    }
}

ColorLevels LevelsOfComponent(const Component& component) {
    ColorLevels levels;
    levels.component = component.EffectiveColor();
    if (const DocumentPtr model = component.Model())
        levels.part = model->Color();
    return levels;
}

ColorLevels LevelsOfFeature(const Feature& feature, const MaterialOverride& component) {
    ColorLevels levels{component, {}, feature.Color(), {}, {}};
    const DocumentPtr owner = feature.RequireOwner();
    levels.part = owner->Color();
    if (owner->Type() == DocumentType::Part)
        if (const auto& solid = static_cast<const PartDocument&>(*owner).Solid())
            levels.body = solid->Color();
    return levels;
}

} // namespace

std::vector<SelectedItem> ObjectRows(const DocumentPtr& document) {
    Rows rows;
    if (!document)
        return rows;
    AddContents(*document, nullptr, rows);
    if (document->Type() == DocumentType::Assembly)
        if (const auto& root = static_cast<const AssemblyDocument&>(*document).Root())
            AddChildren(*root, rows);
    return rows;
}

std::string RowName(const SelectedItem& item) {
    if (!item.component || item.component == item.entity)
        return item.entity->Name();
    return item.entity->Name() + " of " + item.component->Name();
}

DisplayColor DisplayColorOf(const SelectedItem& item) {
    const MaterialOverride component =
        item.component ? item.component->EffectiveColor() : std::nullopt;
    switch (item.entity->Kind()) {
    case EntityKind::Face: {
        const auto& face = static_cast<const Face&>(*item.entity);
        return ResolveDisplayColor(face.RequirePart()->LevelsOf(face, component));
    }
    case EntityKind::BodyFeature:
        return ResolveDisplayColor(
            LevelsOfFeature(static_cast<const Feature&>(*item.entity), component));
    case EntityKind::Component:
        return ResolveDisplayColor(LevelsOfComponent(static_cast<const Component&>(*item.entity)));
    default:
        break;
    }
    return ResolveDisplayColor({});
}
