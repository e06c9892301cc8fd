#pragma once

#include "standin/model/Entity.h"
#include "standin/model/WithMembers.h"

// A feature of a part or an assembly; also what only stands among the features: planes, sketches,
// folders.
class Feature final : public WithMembers<Feature, Entity> {
public:
    struct Made {
        EntityKind kind = EntityKind::BodyFeature;
        std::string name;
        std::string typeName;  // as GetTypeName answers
        std::size_t index = 0; // in the owner's chain
    };

    Feature(SessionPtr session, const Made& made, std::weak_ptr<Document> owner)
        : WithMembers(std::move(session), made.kind, made.name, std::move(owner)),
          typeName_(made.typeName), index_(made.index) {}

    [[nodiscard]] const std::string& TypeName() const noexcept { return typeName_; }

    [[nodiscard]] bool IsSuppressed() const noexcept { return suppressed_; }
    void SetSuppressed(bool suppressed) noexcept { suppressed_ = suppressed; }

    // Null after the last one.
    [[nodiscard]] std::shared_ptr<Feature> Next() const;

    [[nodiscard]] const MemberTable<Feature>& Members() const;

private:
    std::string typeName_;
    std::size_t index_;
    bool suppressed_ = false;
};
