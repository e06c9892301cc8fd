#pragma once

#include "standin/model/Body.h"
#include "standin/model/Configuration.h"
#include "standin/model/DisplayColor.h"
#include "standin/model/Document.h"
#include "standin/model/Edge.h"
#include "standin/model/Face.h"

// A part: features, and a body with faces and edges.
class PartDocument final : public Document {
public:
    [[nodiscard]] static std::shared_ptr<PartDocument> Create(const SessionPtr& session,
                                                              const std::string& title);

    // feature: index of the feature that made the face.
    void AddFace(const std::string& name, std::optional<std::size_t> feature,
                 const MaterialOverride& color = {});
    void AddEdge(const std::string& name);
    void AddVertex(const std::string& name);
    // Takes the body away, and with it the faces, edges and vertices.
    void RemoveBody();

    // Null when the part has none.
    [[nodiscard]] const std::shared_ptr<::Body>& Solid() const noexcept { return body_; }
    [[nodiscard]] const std::vector<std::shared_ptr<Face>>& Faces() const noexcept {
        return faces_;
    }
    [[nodiscard]] const std::vector<std::shared_ptr<Edge>>& Edges() const noexcept {
        return edges_;
    }
    [[nodiscard]] const std::vector<std::shared_ptr<Edge>>& Vertices() const noexcept {
        return vertices_;
    }
    // Null behind the last one.
    [[nodiscard]] std::shared_ptr<Face> FaceAt(std::size_t index) const;

    // What the levels carry for a face of this part; `component` is that of the component through
    // which the part is seen.
    [[nodiscard]] ColorLevels LevelsOf(const Face& face, const MaterialOverride& component) const;

protected:
    [[nodiscard]] std::optional<SelectedItem> Locate(const EntityPtr& entity) const override;
    [[nodiscard]] std::shared_ptr<Configuration> ActiveConfiguration() const override {
        return configuration_;
    }

private:
    PartDocument(const SessionPtr& session, const std::string& title)
        : Document(session, DocumentType::Part, title) {}

    std::shared_ptr<Configuration> configuration_ = std::make_shared<Configuration>(nullptr);
    std::shared_ptr<::Body> body_;
    std::vector<std::shared_ptr<Face>> faces_;
    std::vector<std::shared_ptr<Edge>> edges_;
    std::vector<std::shared_ptr<Edge>> vertices_;
};
