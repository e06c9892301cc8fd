#include "standin/model/Entity.h"

#include "standin/model/Document.h"

const char* EntityKindName(EntityKind kind) noexcept {
    switch (kind) {
    case EntityKind::Edge:
        return "edge";
    case EntityKind::Face:
        return "face";
    case EntityKind::Vertex:
        return "vertex";
    case EntityKind::Plane:
        return "plane";
    case EntityKind::Sketch:
        return "sketch";
    case EntityKind::Component:
        return "component";
    case EntityKind::Folder:
        return "folder";
    case EntityKind::BodyFeature:
        break;
    }
    return "feature";
}

bool CarriesColor(EntityKind kind) noexcept {
    return kind == EntityKind::Face || kind == EntityKind::Component ||
           kind == EntityKind::BodyFeature;
}

void Entity::Rename(std::string name) {
    name_ = std::move(name);
    session_->events.Changed();
}

void Entity::SetColor(const MaterialOverride& color) {
    color_ = color;
    session_->events.Changed();
}

bool Entity::Select(bool append) {
    const auto document = session_->activeDocument.lock();
    return document && document->Select(shared_from_this(), append);
}

std::shared_ptr<Document> Entity::RequireOwner() const {
    return RequireOpen(owner_);
}

std::string Entity::Label() const {
    return std::string(EntityKindName(kind_)) + " \"" + name_ + "\"";
}
