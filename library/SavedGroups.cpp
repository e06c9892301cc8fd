#include "library/SavedGroups.h"

namespace {

// One with too many digits is some number.
std::size_t NumberAtEnd(std::string_view key) {
    std::size_t number = 0;
    for (std::size_t unit = 1; !key.empty() && key.back() >= '0' && key.back() <= '9'; unit *= 10) {
        number += unit * static_cast<std::size_t>(key.back() - '0');
        key.remove_suffix(1);
    }
    return number;
}

} // namespace

void SavedGroups::Add(std::string_view key, ColorTable::GroupNumber number) {
    if (places_.try_emplace(std::string(key), groups_.size()).second)
        groups_.push_back({std::string(key), number});
}

// Where no group was ever deleted, the number in a key tells which group of the file it is.
std::optional<ColorTable::GroupNumber> SavedGroups::Find(std::string_view key) const {
    const std::size_t guess = NumberAtEnd(key) - 1;
    if (guess < groups_.size() && groups_[guess].key == key)
        return groups_[guess].number;
    const auto found = places_.find(key);
    return found == places_.end() ? std::nullopt : std::optional(groups_[found->second].number);
}
