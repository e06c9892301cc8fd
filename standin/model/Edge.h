#pragma once

#include "standin/model/Entity.h"
#include "standin/model/WithMembers.h"

// An edge or a vertex: can be selected, carries no color.
class Edge final : public WithMembers<Edge, Entity> {
public:
    Edge(SessionPtr session, EntityKind kind, std::string name, std::weak_ptr<Document> owner)
        : WithMembers(std::move(session), kind, std::move(name), std::move(owner)) {}

    [[nodiscard]] const MemberTable<Edge>& Members() const;
};
