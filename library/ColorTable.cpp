#include "library/ColorTable.h"

#include "common/RuntimeError.h"
#include "library/LibraryKeys.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace {

struct KeyParts {
    std::string_view group;
    std::uint32_t number = 0;
};

// The parts of a key that is just "group key, E, number"; nothing for any other text.
std::optional<KeyParts> PartsOf(std::string_view key) {
    const std::size_t letter = key.rfind(LibraryKeys::kColorLetter);
    if (letter == std::string_view::npos)
        return {};
    const std::string_view digits = key.substr(letter + 1);
    const char* const end = digits.data() + digits.size();
    KeyParts parts{key.substr(0, letter)};
    const auto [stop, error] = std::from_chars(digits.data(), end, parts.number);
    const bool isAsWritten = digits == "0" || !digits.starts_with('0');
    return error == std::errc() && stop == end && isAsWritten ? std::optional(parts) : std::nullopt;
}

std::size_t HashOfText(std::string_view text) {
    return std::hash<std::string_view>()(text);
}

ColorKeyIndex::Hash HashOfParts(std::size_t groupHash, std::uint32_t number) {
    std::uint64_t mixed = groupHash + number * 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ mixed >> 32U) * 0xD6E8FEB86659FD93U;
    return static_cast<ColorKeyIndex::Hash>(mixed >> 32U);
}

// Equal for equal keys, whichever way they are kept.
ColorKeyIndex::Hash HashOfKey(std::string_view key) {
    const std::optional<KeyParts> parts = PartsOf(key);
    return parts ? HashOfParts(HashOfText(parts->group), parts->number)
                 : static_cast<ColorKeyIndex::Hash>(HashOfText(key));
}

[[noreturn]] void ThrowOutOfRange() {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NoSuchNumber);
}

// Both ascending; what goes is there.
void EraseSorted(std::vector<ColorId>& ids, const std::vector<ColorId>& going) {
    if (going.size() == 1) {
        ids.erase(std::ranges::lower_bound(ids, going.front()));
        return;
    }
    auto next = going.begin();
    std::erase_if(ids, [&](ColorId id) {
        const bool goes = next != going.end() && *next == id;
        next += goes ? 1 : 0;
        return goes;
    });
}

void MergeSorted(std::vector<ColorId>& ids, const std::vector<ColorId>& coming) {
    if (coming.size() == 1) {
        ids.insert(std::ranges::lower_bound(ids, coming.front()), coming.front());
        return;
    }
    const auto middle = static_cast<std::ptrdiff_t>(ids.size());
    ids.insert(ids.end(), coming.begin(), coming.end());
    std::inplace_merge(ids.begin(), ids.begin() + middle, ids.end());
}

} // namespace

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
    return {color.name,  KeyOf(id),    groups_[color.group].key,
            color.isNew, color.values, color.AltName()};
}

std::string ColorTable::KeyOf(ColorId id) const {
    const StoredColor& color = store_.At(id);
    if (color.otherKey)
        return *color.otherKey;
    return LibraryKeys::OfColor(groups_[color.group].key, color.number);
}

ColorKeyIndex::Hash ColorTable::HashOf(ColorId id) const {
    const StoredColor& color = store_.At(id);
    return color.otherKey ? HashOfKey(*color.otherKey)
                          : HashOfParts(groups_[color.group].hash, color.number);
}

bool ColorTable::HaveSameKey(ColorId left, ColorId right) const {
    const StoredColor& one = store_.At(left);
    const StoredColor& other = store_.At(right);
    if (one.otherKey || other.otherKey)
        return KeyOf(left) == KeyOf(right);
    return one.number == other.number && one.group == other.group;
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
        groups_.push_back({groupKey, HashOfText(groupKey), {}});
    return place->second;
}

void ColorTable::Append(ColorRecord record) {
    StoredColor color;
    color.group = NumberOfGroup(record.groupKey);
    const std::optional<KeyParts> parts = PartsOf(record.key);
    if (parts && parts->group == record.groupKey)
        color.number = parts->number;
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

void ColorTable::Insert(StoredColor&& color) {
    const GroupNumber group = color.group;
    const ColorId id = store_.Add(std::move(color));
    order_.push_back(id);
    groups_[group].ids.push_back(id);
    if (keysIndexed_ && !IndexKey(id))
        keysAreUnique_ = false;
    if (journal_)
        journal_->ColorAdded(id, groups_[group].key);
}

void ColorTable::TellChange(ColorId id) const {
    if (!journal_)
        return;
    const StoredColor& color = store_.At(id);
    StoredColor before;
    before.name = color.name;
    if (color.altName)
        before.altName = std::make_unique<std::string>(*color.altName);
    before.values = color.values;
    journal_->ColorChanges(id, std::move(before));
}

void ColorTable::Exchange(ColorId id, StoredColor& other) {
    StoredColor& color = store_.At(id);
    std::swap(color.name, other.name);
    std::swap(color.altName, other.altName);
    std::swap(color.values, other.values);
}

void ColorTable::SetNames(int index, const std::string& name) {
    TellChange(IdAt(index));
    StoredColor& color = ColorAt(index);
    color.name = name;
    color.altName.reset();
}

void ColorTable::SetName(int index, const std::string& name) {
    TellChange(IdAt(index));
    StoredColor& color = ColorAt(index);
    const std::string altName = color.AltName();
    color.altName = altName != name ? std::make_unique<std::string>(altName) : nullptr;
    color.name = name;
}

void ColorTable::SetValues(int index, const ColorValueArray& values) {
    TellChange(IdAt(index));
    ColorAt(index).values = values;
}

void ColorTable::Erase(int index) {
    const ColorId id = IdAt(index);
    const std::string groupKey = groups_[store_.At(id).group].key;
    std::vector<RemovedColor> removed = TakeOut({id});
    if (journal_)
        journal_->ColorsRemoved(groupKey, std::move(removed));
}

std::vector<RemovedColor> ColorTable::TakeOut(const std::vector<ColorId>& ids) {
    LeaveOrder(ids);
    std::vector<RemovedColor> removed;
    removed.reserve(ids.size());
    if (!ids.empty())
        EraseSorted(groups_[store_.At(ids.front()).group].ids, ids);
    for (const ColorId id : ids)
        removed.push_back(MoveOut(id));
    return removed;
}

RemovedColor ColorTable::MoveOut(ColorId id) {
    RemovedColor removed{id, std::move(store_.At(id))};
    store_.Remove(id);
    return removed;
}

void ColorTable::LeaveOrder(const std::vector<ColorId>& ids) {
    // Where much goes, the index is made anew when it is needed; also where keys are not unique,
    // for the next one with a key is the first then.
    const bool isLittle = ids.size() <= 1 || ids.size() < order_.size() / 4;
    keysIndexed_ = keysIndexed_ && keysAreUnique_ && isLittle;
    if (keysIndexed_)
        for (const ColorId id : ids)
            keys_.Remove(id, HashOf(id));
    else
        keys_.Clear();
    EraseSorted(order_, ids);
}

void ColorTable::PutBack(const std::string& groupKey, std::vector<RemovedColor> colors) {
    const GroupNumber group = NumberOfGroup(groupKey);
    std::vector<ColorId> ids;
    ids.reserve(colors.size());
    for (RemovedColor& removed : colors) {
        removed.color.group = group;
        ids.push_back(removed.id);
        store_.PutBack(removed.id, std::move(removed.color));
    }
    MergeSorted(order_, ids);
    MergeSorted(groups_[group].ids, ids);
    keysIndexed_ = keysIndexed_ && keysAreUnique_;
    for (const ColorId id : ids)
        keysIndexed_ = keysIndexed_ && IndexKey(id);
}

void ColorTable::EraseGroups(const std::vector<std::string>& groupKeys) {
    std::vector<ColorId> leaving;
    for (const std::string& key : groupKeys) {
        const std::vector<ColorId>& ids = IdsOfGroup(key);
        leaving.insert(leaving.end(), ids.begin(), ids.end());
    }
    std::ranges::sort(leaving);
    LeaveOrder(leaving);
    for (const std::string& key : groupKeys) {
        std::vector<RemovedColor> removed;
        for (const ColorId id : std::exchange(groups_[NumberOfGroup(key)].ids, {}))
            removed.push_back(MoveOut(id));
        if (journal_ && !removed.empty())
            journal_->ColorsRemoved(key, std::move(removed));
    }
}

void ColorTable::IndexKeys() const {
    keys_.Clear();
    keys_.Reserve(order_.size());
    keysIndexed_ = true;
    keysAreUnique_ = true;
    for (const ColorId id : order_)
        if (!IndexKey(id))
            keysAreUnique_ = false;
}

bool ColorTable::IndexKey(ColorId id) const {
    return keys_.Add(id, HashOf(id), [this, id](ColorId other) { return HaveSameKey(id, other); });
}

int ColorTable::IndexOfKey(const std::string& key) const {
    if (!keysIndexed_)
        IndexKeys();
    const std::optional<KeyParts> parts = PartsOf(key);
    const ColorId id = keys_.Find(HashOfKey(key), [&](ColorId other) {
        const StoredColor& color = store_.At(other);
        if (color.otherKey)
            return *color.otherKey == key;
        return parts && color.number == parts->number && groups_[color.group].key == parts->group;
    });
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
