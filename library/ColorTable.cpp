#include "library/ColorTable.h"

#include "common/RuntimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr char kKeyLetter = 'E';

// The digits of the longest number.
constexpr std::size_t kLongestNumber = std::numeric_limits<std::uint32_t>::digits10 + 1;

void AppendKey(std::string& text, const std::string& groupKey, std::uint32_t number) {
    std::array<char, kLongestNumber> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(groupKey).append(1, kKeyLetter).append(digits.data(), end);
}

// The number of a key that is just "group key, E, number"; nothing for any other key.
std::optional<std::uint32_t> NumberInKey(const std::string& key, const std::string& groupKey) {
    if (!key.starts_with(groupKey))
        return {};
    const std::size_t digits = groupKey.size() + 1;
    std::uint32_t number = 0;
    if (digits < key.size())
        std::from_chars(key.data() + digits, key.data() + key.size(), number);
    std::string composed;
    AppendKey(composed, groupKey, number);
    return composed == key ? std::optional(number) : std::nullopt;
}

[[noreturn]] void ThrowOutOfRange() {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
}

} // namespace

ColorTable::ColorTable() : keys_([this](ColorId id) { return KeyOf(id); }) {}

void ColorTable::Reset() {
    store_.Clear();
    order_ = {};
    groups_ = {};
    numberOfGroup_ = {};
    keys_.Clear();
    keysIndexed_ = false;
}

ColorId ColorTable::IdAt(int index) const {
    if (index < 1 || index > UpperBound())
        ThrowOutOfRange();
    return order_[static_cast<std::size_t>(index) - 1];
}

int ColorTable::IndexOfId(ColorId id) const {
    const auto found = std::ranges::lower_bound(order_, id);
    return found != order_.end() && *found == id ? static_cast<int>(found - order_.begin()) + 1 : 0;
}

StoredColor& ColorTable::ColorAt(int index) {
    return store_.At(IdAt(index));
}

ColorTable::View ColorTable::ViewAt(int index) const {
    const StoredColor& color = store_.At(IdAt(index));
    return {color, groups_[color.group].key};
}

ColorRecord ColorTable::At(int index) const {
    if (index == 0)
        return {};
    const ColorId id = IdAt(index);
    const StoredColor& color = store_.At(id);
    return {color.name,  std::string(KeyOf(id)), groups_[color.group].key,
            color.isNew, color.values,           color.AltName()};
}

// The text lives until the next call.
std::string_view ColorTable::KeyOf(ColorId id) const {
    const StoredColor& color = store_.At(id);
    if (color.otherKey)
        return *color.otherKey;
    composedKey_.clear();
    AppendKey(composedKey_, groups_[color.group].key, color.number);
    return composedKey_;
}

bool ColorTable::KeyBeginsWith(int index, std::string_view start) const {
    const auto [color, groupKey] = ViewAt(index);
    if (!color.otherKey && start.size() <= groupKey.size())
        return std::string_view(groupKey).starts_with(start);
    return KeyOf(IdAt(index)).starts_with(start);
}

ColorTable::GroupNumber ColorTable::NumberOfGroup(const std::string& groupKey) {
    const auto [place, added] =
        numberOfGroup_.try_emplace(groupKey, static_cast<GroupNumber>(groups_.size()));
    if (added)
        groups_.push_back({groupKey, {}});
    return place->second;
}

void ColorTable::Append(ColorRecord record) {
    StoredColor color;
    color.group = NumberOfGroup(record.groupKey);
    if (const auto number = NumberInKey(record.key, record.groupKey))
        color.number = *number;
    else
        color.otherKey = std::make_unique<std::string>(std::move(record.key));
    if (record.altName != record.name)
        color.altName = std::make_unique<std::string>(std::move(record.altName));
    color.name = std::move(record.name);
    color.values = record.values;
    color.isNew = record.isNew;
    Insert(std::move(color));
}

void ColorTable::Append(GroupNumber group, std::uint32_t number, std::string name,
                        std::string_view altName, const ColorValueArray& values) {
    StoredColor color;
    color.group = group;
    color.number = number;
    if (altName != name)
        color.altName = std::make_unique<std::string>(altName);
    color.name = std::move(name);
    color.values = values;
    Insert(std::move(color));
}

void ColorTable::Insert(StoredColor color) {
    const GroupNumber group = color.group;
    const ColorId id = store_.Add(std::move(color));
    order_.push_back(id);
    groups_[group].ids.push_back(id);
    if (keysIndexed_ && !keys_.Add(id))
        keysAreUnique_ = false;
}

void ColorTable::SetNames(int index, const std::string& name) {
    StoredColor& color = ColorAt(index);
    color.name = name;
    color.altName.reset();
}

void ColorTable::SetName(int index, const std::string& name) {
    StoredColor& color = ColorAt(index);
    const std::string altName = color.AltName();
    color.altName = altName != name ? std::make_unique<std::string>(altName) : nullptr;
    color.name = name;
}

void ColorTable::SetValues(int index, const ColorValueArray& values) {
    ColorAt(index).values = values;
}

void ColorTable::Erase(int index) {
    const ColorId id = IdAt(index);
    if (keysIndexed_ && keysAreUnique_)
        keys_.Remove(id);
    else
        keysIndexed_ = false; // the next one with its key is the first then
    std::vector<ColorId>& ids = groups_[store_.At(id).group].ids;
    ids.erase(std::ranges::lower_bound(ids, id));
    order_.erase(order_.begin() + (index - 1));
    store_.Remove(id);
}

void ColorTable::EraseGroups(const std::vector<std::string>& groupKeys) {
    std::vector<bool> goes(groups_.size());
    for (const std::string& key : groupKeys)
        if (const Group* group = FindGroup(key))
            goes[static_cast<std::size_t>(group - groups_.data())] = true;
    std::erase_if(order_, [&](ColorId id) {
        const bool isGone = goes[store_.At(id).group];
        if (isGone)
            store_.Remove(id);
        return isGone;
    });
    for (std::size_t number = 0; number < groups_.size(); ++number)
        if (goes[number])
            groups_[number].ids = {};
    keysIndexed_ = false;
}

void ColorTable::IndexKeys() const {
    keys_.Clear();
    keys_.Reserve(order_.size());
    keysIndexed_ = true;
    keysAreUnique_ = true;
    for (const ColorId id : order_)
        if (!keys_.Add(id))
            keysAreUnique_ = false;
}

int ColorTable::IndexOfKey(const std::string& key) const {
    if (!keysIndexed_)
        IndexKeys();
    const ColorId id = keys_.Find(key);
    return id == 0 ? 0 : IndexOfId(id);
}

const ColorTable::Group* ColorTable::FindGroup(const std::string& groupKey) const {
    const auto found = numberOfGroup_.find(groupKey);
    return found == numberOfGroup_.end() ? nullptr : &groups_[found->second];
}

const std::vector<ColorId>& ColorTable::IdsOfGroup(const std::string& groupKey) const {
    static const std::vector<ColorId> none;
    const Group* group = FindGroup(groupKey);
    return group != nullptr ? group->ids : none;
}

std::vector<int> ColorTable::IndexesOfGroup(const std::string& groupKey) const {
    const std::vector<ColorId>& ids = IdsOfGroup(groupKey);
    std::vector<int> indexes(ids.size());
    std::ranges::transform(ids, indexes.begin(), [this](ColorId id) { return IndexOfId(id); });
    return indexes;
}

int ColorTable::CountOfGroup(const std::string& groupKey) const {
    return static_cast<int>(IdsOfGroup(groupKey).size());
}
