#pragma once

#include "standin/model/Document.h"

// A drawing: nothing in it can be selected or colored.
class DrawingDocument final : public Document {
public:
    [[nodiscard]] static std::shared_ptr<DrawingDocument> Create(const SessionPtr& session,
                                                                 const std::string& title);

protected:
    [[nodiscard]] std::optional<SelectedItem> Locate(const EntityPtr& entity) const override;

private:
    DrawingDocument(const SessionPtr& session, const std::string& title)
        : Document(session, DocumentType::Drawing, title) {}
};
