#include "standin/com/MemberIds.h"

DISPID MemberIds::IdOf(const std::string& name) {
    const auto [entry, isNew] = ids_.emplace(name, static_cast<DISPID>(names_.size() + 1));
    if (isNew)
        names_.push_back(name);
    return entry->second;
}

const std::string* MemberIds::NameOf(DISPID id) const noexcept {
    if (id < 1 || static_cast<std::size_t>(id) > names_.size())
        return nullptr;
    return &names_[static_cast<std::size_t>(id - 1)];
}
