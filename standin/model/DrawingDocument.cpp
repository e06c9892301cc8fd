#include "standin/model/DrawingDocument.h"

std::shared_ptr<DrawingDocument> DrawingDocument::Create(const SessionPtr& session,
                                                         const std::string& title) {
    std::shared_ptr<DrawingDocument> drawing(new DrawingDocument(session, title));
    drawing->Connect();
    return drawing;
}

std::optional<SelectedItem> DrawingDocument::Locate(const EntityPtr& /*entity*/) const {
    return std::nullopt;
}
