#include "standin/model/PartDocument.h"

#include "standin/model/Component.h"

std::shared_ptr<PartDocument> PartDocument::Create(const SessionPtr& session,
                                                   const std::string& title) {
    std::shared_ptr<PartDocument> part(new PartDocument(session, title));
    part->Connect();
    part->body_ = std::make_shared<::Body>(session, part);
    return part;
}

void PartDocument::AddFace(const std::string& name, std::optional<std::size_t> feature,
                           const MaterialOverride& color) {
    faces_.push_back(
        std::make_shared<Face>(OwnSession(), name, weak_from_this(), faces_.size(), feature));
    faces_.back()->SetColor(color);
}

void PartDocument::AddEdge(const std::string& name) {
    edges_.push_back(
        std::make_shared<Edge>(OwnSession(), EntityKind::Edge, name, weak_from_this()));
}

void PartDocument::AddVertex(const std::string& name) {
    vertices_.push_back(
        std::make_shared<Edge>(OwnSession(), EntityKind::Vertex, name, weak_from_this()));
}

void PartDocument::RemoveBody() {
    body_.reset();
    faces_.clear();
    edges_.clear();
    vertices_.clear();
}

std::shared_ptr<Face> PartDocument::FaceAt(std::size_t index) const {
    return index < faces_.size() ? faces_[index] : nullptr;
}

ColorLevels PartDocument::LevelsOf(const Face& face, const MaterialOverride& component) const {
    const auto feature = face.OwnFeature();
    return {component, face.Color(), feature ? feature->Color() : MaterialOverride(),
            body_ ? body_->Color() : MaterialOverride(), Color()};
}

std::optional<SelectedItem> PartDocument::Locate(const EntityPtr& entity) const {
    if (entity->Owner().get() != this)
        return std::nullopt;
    return SelectedItem{entity, nullptr};
}
