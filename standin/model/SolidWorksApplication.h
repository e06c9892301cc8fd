#pragma once

#include "standin/model/Session.h"
#include "standin/model/StandInObject.h"
#include "standin/model/WithMembers.h"

// The application object: what a client attaches to.
class SolidWorksApplication final : public WithMembers<SolidWorksApplication, StandInObject> {
public:
    explicit SolidWorksApplication(SessionPtr session) : session_(std::move(session)) {}

    [[nodiscard]] std::string Label() const override { return "application"; }
    [[nodiscard]] const MemberTable<SolidWorksApplication>& Members() const;

private:
    SessionPtr session_;
};
