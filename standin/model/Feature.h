#pragma once

#include "standin/model/Entity.h"
#include "standin/model/WithMembers.h"

// A feature of a part or an assembly.
class Feature final : public WithMembers<Feature, Entity> {
public:
    // index: its place among the features of the owner, from 0.
    Feature(SessionPtr session, std::string name, std::weak_ptr<Document> owner, std::size_t index)
        : WithMembers(std::move(session), EntityKind::BodyFeature, std::move(name),
                      std::move(owner)),
          index_(index) {}

    [[nodiscard]] bool IsSuppressed() const noexcept { return suppressed_; }
    void SetSuppressed(bool suppressed) noexcept { suppressed_ = suppressed; }

    // Null after the last one.
    [[nodiscard]] std::shared_ptr<Feature> Next() const;

    [[nodiscard]] const MemberTable<Feature>& Members() const;

private:
    std::size_t index_;
    bool suppressed_ = false;
};
