#pragma once

#include "standin/model/Component.h"

// A configuration of a part or an assembly: knows the root component, which parts do not have.
class Configuration final : public WithMembers<Configuration, StandInObject> {
public:
    explicit Configuration(std::shared_ptr<Component> root) : root_(std::move(root)) {}

    // Null when the configuration has none.
    [[nodiscard]] const std::shared_ptr<Component>& Root() const noexcept { return root_; }
    void RemoveRoot() noexcept { root_.reset(); }

    [[nodiscard]] std::string Label() const override { return "configuration"; }
    [[nodiscard]] const MemberTable<Configuration>& Members() const;

private:
    std::shared_ptr<Component> root_;
};
