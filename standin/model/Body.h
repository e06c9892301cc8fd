#pragma once

#include "standin/model/MaterialValues.h"
#include "standin/model/Session.h"
#include "standin/model/StandInObject.h"
#include "standin/model/WithMembers.h"

class PartDocument;

// The solid of a part.  It carries a color between those of the features and that of the part.
class Body final : public WithMembers<Body, StandInObject> {
public:
    Body(SessionPtr session, std::weak_ptr<PartDocument> owner)
        : session_(std::move(session)), owner_(std::move(owner)) {}

    [[nodiscard]] const MaterialOverride& Color() const noexcept { return color_; }
    void SetColor(const MaterialOverride& color);

    [[nodiscard]] std::string Label() const override { return "body"; }
    [[nodiscard]] const MemberTable<Body>& Members() const;

private:
    SessionPtr session_;
    std::weak_ptr<PartDocument> owner_;
    MaterialOverride color_;
};
