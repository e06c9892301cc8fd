#pragma once

#include "standin/model/Document.h"

// A component: an occurrence of a model in an assembly, or the root that holds the occurrences.
class Component final : public WithMembers<Component, Entity> {
public:
    // model: null for a lightweight component; assembly: the top-level document.
    Component(SessionPtr session, std::string name, std::weak_ptr<Document> assembly,
              const DocumentPtr& model)
        : WithMembers(std::move(session), EntityKind::Component, std::move(name),
                      std::move(assembly)),
          model_(model), hasModel_(model != nullptr) {}

    // Appends a child and returns it.
    std::shared_ptr<Component> Add(const std::string& name, const DocumentPtr& model);
    [[nodiscard]] const std::vector<std::shared_ptr<Component>>& Children() const noexcept {
        return children_;
    }

    // The color that decides for all that is seen through it: the outermost one set among the
    // components around it and its own.
    [[nodiscard]] MaterialOverride EffectiveColor() const;

    // Null for a lightweight component.  Throws RuntimeError Automation when the model is closed.
    [[nodiscard]] DocumentPtr Model() const;

    [[nodiscard]] const MemberTable<Component>& Members() const;

private:
    std::weak_ptr<Document> model_; // documents are owned by the stand-in
    bool hasModel_;
    std::weak_ptr<Component> parent_;
    std::vector<std::shared_ptr<Component>> children_;
};
