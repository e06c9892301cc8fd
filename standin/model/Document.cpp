#include "standin/model/Document.h"

#include "standin/model/Component.h"
#include "standin/model/Configuration.h"

#include <utility>

Document::Document(SessionPtr session, DocumentType type, std::string title)
    : session_(std::move(session)), type_(type), title_(std::move(title)),
      colorTable_(std::make_shared<StandardColorTable>(session_, StandardColors())) {}

void Document::Connect() {
    selectionManager_ = std::make_shared<SelectionManager>(weak_from_this());
}

void Document::SetColor(const MaterialOverride& color) {
    color_ = color;
    session_->events.Changed();
}

void Document::AddFeature(const std::string& name, const MaterialOverride& color,
                          const std::string& typeName) {
    AddReference(EntityKind::BodyFeature, name, typeName);
    features_.push_back(chain_.back());
    features_.back()->SetColor(color);
}

void Document::AddReference(EntityKind kind, const std::string& name, const std::string& typeName) {
    chain_.push_back(std::make_shared<Feature>(
        session_, Feature::Made{kind, name, typeName, chain_.size()}, weak_from_this()));
}

void Document::SetTitle(std::string title) {
    title_ = std::move(title);
    session_->events.Changed();
}

std::shared_ptr<Feature> Document::ChainAt(std::size_t index) const {
    return index < chain_.size() ? chain_[index] : nullptr;
}

std::shared_ptr<Feature> Document::FeatureAt(std::size_t index) const {
    return index < features_.size() ? features_[index] : nullptr;
}

bool Document::Select(const EntityPtr& entity, bool append) {
    const SelectedItem* selected = selection_.Find(*entity);
    const std::optional<SelectedItem> item =
        selected ? std::optional<SelectedItem>(*selected) : Locate(entity);
    if (item)
        SelectItem(*item, append);
    return item.has_value();
}

void Document::SelectItem(const SelectedItem& item, bool append) {
    if (append)
        selection_.Add(item);
    else
        selection_.Replace(item);
    session_->events.Changed();
}

void Document::Deselect(const SelectedItem& item) {
    selection_.Remove(item);
    session_->events.Changed();
}

void Document::ClearSelection() {
    selection_.Clear();
    session_->events.Changed();
}

std::shared_ptr<Configuration> Document::ActiveConfiguration() const {
    return nullptr;
}
