#pragma once

#include "standin/model/Selection.h"
#include "standin/model/WithMembers.h"

// Tells what is selected in a document.  Indexes start at 1; an index outside the selection gives
// no object and the type 0.
class SelectionManager final : public WithMembers<SelectionManager, StandInObject> {
public:
    explicit SelectionManager(std::weak_ptr<Document> owner) : owner_(std::move(owner)) {}

    [[nodiscard]] std::string Label() const override { return "selection manager"; }
    [[nodiscard]] const MemberTable<SelectionManager>& Members() const;

private:
    [[nodiscard]] SelectedItem ItemAt(const AutomationValue& index) const;

    std::weak_ptr<Document> owner_;
};
