#pragma once

#include "standin/model/Entity.h"
#include "standin/model/WithMembers.h"

#include <optional>

class Feature;
class PartDocument;

// A face of a part's body.
class Face final : public WithMembers<Face, Entity> {
public:
    // index: its place among the faces of the body, from 0; featureIndex: the feature that made it.
    Face(SessionPtr session, std::string name, std::weak_ptr<Document> owner, std::size_t index,
         std::optional<std::size_t> featureIndex)
        : WithMembers(std::move(session), EntityKind::Face, std::move(name), std::move(owner)),
          index_(index), featureIndex_(featureIndex) {}

    // Throws RuntimeError Automation when the document is closed.
    [[nodiscard]] std::shared_ptr<PartDocument> RequirePart() const;

    // Null after the last one.
    [[nodiscard]] std::shared_ptr<Face> Next() const;

    // The feature that made it; null when there is none.
    [[nodiscard]] std::shared_ptr<Feature> OwnFeature() const;

    [[nodiscard]] const MemberTable<Face>& Members() const;

private:
    std::size_t index_;
    std::optional<std::size_t> featureIndex_;
};
