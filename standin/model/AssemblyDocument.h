#pragma once

#include "standin/model/Configuration.h"

// An assembly: a tree of components below a root component.
class AssemblyDocument final : public Document {
public:
    [[nodiscard]] static std::shared_ptr<AssemblyDocument> Create(const SessionPtr& session,
                                                                  const std::string& title);

    // Null when there is none.
    [[nodiscard]] const std::shared_ptr<Component>& Root() const noexcept {
        return configuration_->Root();
    }
    void RemoveRoot() noexcept { configuration_->RemoveRoot(); }

protected:
    [[nodiscard]] std::optional<SelectedItem> Locate(const EntityPtr& entity) const override;
    [[nodiscard]] std::shared_ptr<Configuration> ActiveConfiguration() const override {
        return configuration_;
    }

private:
    AssemblyDocument(const SessionPtr& session, const std::string& title)
        : Document(session, DocumentType::Assembly, title) {}

    std::shared_ptr<Configuration> configuration_;
};
