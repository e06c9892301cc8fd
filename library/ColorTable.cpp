#include "library/ColorTable.h"

#include "common/RuntimeError.h"
#include "library/LibraryKeys.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

// The place of a value in an ascending list, or where it would stand.
template <typename Value>
auto PlaceOf(std::vector<Value>& ascending, const Value& value) {
    return std::ranges::lower_bound(ascending, value);
}

// Nearly always that is at the end.
template <typename Value>
void AddInOrder(std::vector<Value>& ascending, const Value& value) {
    if (ascending.empty() || ascending.back() < value)
        ascending.push_back(value);
    else
        ascending.insert(PlaceOf(ascending, value), value);
}

[[noreturn]] void ThrowOutOfRange() {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NoSuchNumber);
}

// Both are ascending, and every id of going is in ids.
void EraseSorted(std::vector<ColorId>& ids, const std::vector<ColorId>& going) {
    if (going.size() == 1) {
        ids.erase(PlaceOf(ids, going.front()));
        return;
    }
    auto next = going.begin();
    std::erase_if(ids, [&](ColorId id) {
        const bool goes = next != going.end() && *next == id;
        next += goes ? 1 : 0;
        return goes;
    });
}

template <typename Value>
void MergeSorted(std::vector<Value>& ascending, const std::vector<Value>& coming) {
    if (coming.size() == 1) {
        AddInOrder(ascending, coming.front());
        return;
    }
    const auto middle = static_cast<std::ptrdiff_t>(ascending.size());
    ascending.insert(ascending.end(), coming.begin(), coming.end());
    std::inplace_merge(ascending.begin(), ascending.begin() + middle, ascending.end());
}

} // namespace

void ColorTable::Reset() {
    store_.Clear();
    order_ = {};
    groups_ = {};
    numberOfGroup_ = {};
    otherKeys_ = {};
    ++revision_;
}

ColorId ColorTable::IdAt(int index) const {
    if (index < 1 || index > UpperBound())
        ThrowOutOfRange();
    return order_[static_cast<std::size_t>(index) - 1];
}

// Ids grow by one or more from place to place: where no color has gone an id says its place, and
// where few have gone, few places are left to look at.
int ColorTable::IndexOfId(ColorId id) const {
    if (order_.empty() || id < order_.front() || id > order_.back())
        return 0;
    const std::size_t last = order_.size() - 1;
    const std::size_t latest = std::min<std::size_t>(id - order_.front(), last);
    const std::size_t earliest = last - std::min<std::size_t>(order_.back() - id, last);
    if (earliest == latest)
        return static_cast<int>(latest) + 1;
    const auto begin = order_.begin() + static_cast<std::ptrdiff_t>(earliest);
    const auto end = order_.begin() + static_cast<std::ptrdiff_t>(latest) + 1;
    const auto found = std::lower_bound(begin, end, id);
    return found != end && *found == id ? static_cast<int>(found - order_.begin()) + 1 : 0;
}

StoredColor& ColorTable::ColorAt(int index) {
    return store_.At(IdAt(index));
}

ColorView ColorTable::ViewAt(int index) const {
    const StoredColor& color = store_.At(IdAt(index));
    return {color, groups_[color.group].key};
}

ColorSnapshot ColorTable::Snapshot() const {
    std::vector<std::string> groupKeys;
    groupKeys.reserve(groups_.size());
    for (const Group& group : groups_)
        groupKeys.push_back(group.key);
    return {store_, order_, std::move(groupKeys)};
}

ColorRecord ColorTable::At(int index) const {
    if (index == 0)
        return {};
    const auto [color, groupKey] = ViewAt(index);
    return {std::string(color.name.View()),
            ColorView{color, groupKey}.Key(),
            groupKey,
            color.isNew,
            color.values,
            std::string(color.AltName())};
}

ColorTable::GroupNumber ColorTable::NumberOfGroup(const std::string& groupKey) {
    const auto [place, added] =
        numberOfGroup_.try_emplace(groupKey, static_cast<GroupNumber>(groups_.size()));
    if (added)
        groups_.emplace_back().key = groupKey;
    return place->second;
}

void ColorTable::Append(ColorRecord record) {
    const GroupNumber group = NumberOfGroup(record.groupKey);
    const auto [id, color] = store_.Add();
    color.group = group;
    const std::optional<LibraryKeys::ColorKey> parts = LibraryKeys::PartsOfColor(record.key);
    if (parts && parts->group == record.groupKey)
        color.number = parts->number;
    else
        color.SetOtherKey(std::move(record.key));
    color.name = CompactText(record.name);
    color.SetAltName(record.altName);
    color.values = record.values;
    color.isNew = record.isNew;
    Insert(id, color);
}

void ColorTable::Append(GroupNumber group, std::uint32_t number, std::string_view name,
                        std::string_view altName, const ColorValueArray& values) {
    const auto [id, color] = store_.Add();
    color.group = group;
    color.number = number;
    color.name = CompactText(name);
    color.SetAltName(altName);
    color.values = values;
    Insert(id, color);
}

void ColorTable::Insert(ColorId id, const StoredColor& color) {
    Group& group = groups_[color.group];
    const Numbered numbered{color.number, id};
    NoteChange(group);
    group.TakeStepOfFirst(numbered);
    order_.push_back(id);
    group.ids.push_back(id);
    if (const std::string* const otherKey = color.OtherKey())
        otherKeys_[*otherKey].push_back(id);
    else if (!group.IsInStep(numbered))
        AddInOrder(group.outOfStep, numbered);
    if (journal_)
        journal_->ColorAdded(id, group.key);
}

void ColorTable::BeginChange(ColorId id) {
    const StoredColor& color = std::as_const(store_).At(id);
    NoteChange(groups_[color.group]);
    if (journal_)
        journal_->ColorChanging(id, StoredColor(color));
}

void ColorTable::Exchange(ColorId id, StoredColor& other) {
    StoredColor& color = store_.At(id);
    NoteChange(groups_[color.group]);
    const std::string altName(color.AltName());
    const std::string otherAltName(other.AltName());
    std::swap(color.name, other.name);
    color.SetAltName(otherAltName);
    other.SetAltName(altName);
    std::swap(color.values, other.values);
}

void ColorTable::SetNames(int index, const std::string& name) {
    StoredColor& color = ColorAt(index);
    if (color.name.View() == name && color.AltName() == name)
        return;
    BeginChange(IdAt(index));
    color.name = CompactText(name);
    color.SetAltName(name);
}

void ColorTable::SetName(int index, const std::string& name) {
    StoredColor& color = ColorAt(index);
    if (color.name.View() == name)
        return;
    BeginChange(IdAt(index));
    const std::string altName(color.AltName());
    color.name = CompactText(name);
    color.SetAltName(altName);
}

void ColorTable::SetValues(int index, const ColorValueArray& values) {
    StoredColor& color = ColorAt(index);
    if (color.values == values)
        return;
    BeginChange(IdAt(index));
    color.values = values;
}

void ColorTable::Erase(int index) {
    const ColorId id = IdAt(index);
    std::vector<RemovedColors> removed = TakeOut({{id}});
    if (journal_)
        journal_->ColorsRemoved(std::move(removed));
}

std::vector<RemovedColors>
ColorTable::TakeOut(const std::vector<std::vector<ColorId>>& idsOfGroups) {
    std::vector<ColorId> leaving;
    for (const std::vector<ColorId>& ids : idsOfGroups)
        leaving.insert(leaving.end(), ids.begin(), ids.end());
    LeaveOrder(std::move(leaving));
    std::vector<RemovedColors> removed;
    removed.reserve(idsOfGroups.size());
    for (const std::vector<ColorId>& ids : idsOfGroups) {
        Group& group = groups_[store_.At(ids.front()).group];
        removed.push_back({group.key, LeaveGroup(group, ids)});
    }
    return removed;
}

// One pass over the table for all groups.
void ColorTable::LeaveOrder(std::vector<ColorId> ids) {
    std::ranges::sort(ids);
    EraseSorted(order_, ids);
}

std::vector<RemovedColor> ColorTable::LeaveGroup(Group& group, const std::vector<ColorId>& ids) {
    NoteChange(group);
    EraseSorted(group.ids, ids);
    ForgetKeys(group, ids);
    std::vector<RemovedColor> removed;
    removed.reserve(ids.size());
    for (const ColorId id : ids) {
        removed.push_back({id, std::move(store_.At(id))});
        store_.Remove(id);
    }
    return removed;
}

void ColorTable::PutBack(std::vector<RemovedColors>&& coming) {
    std::vector<ColorId> ids;
    for (const RemovedColors& group : coming)
        for (const RemovedColor& removed : group.colors)
            ids.push_back(removed.id);
    std::ranges::sort(ids);
    for (auto& [groupKey, colors] : coming)
        PutIntoGroup(groupKey, std::move(colors));
    MergeSorted(order_, ids);
}

void ColorTable::PutIntoGroup(const std::string& groupKey, std::vector<RemovedColor>&& colors) {
    const GroupNumber number = NumberOfGroup(groupKey);
    Group& group = groups_[number];
    NoteChange(group);
    std::vector<ColorId> ids;
    std::vector<Numbered> outOfStep;
    for (auto& [id, color] : colors) {
        const Numbered numbered{color.number, id};
        if (ids.empty())
            group.TakeStepOfFirst(numbered);
        color.group = number;
        ids.push_back(id);
        if (const std::string* const otherKey = color.OtherKey())
            AddInOrder(otherKeys_[*otherKey], id);
        else if (!group.IsInStep(numbered))
            outOfStep.push_back(numbered);
        store_.PutBack(id, std::move(color));
    }
    std::ranges::sort(outOfStep);
    MergeSorted(group.ids, ids);
    MergeSorted(group.outOfStep, outOfStep);
}

void ColorTable::ForgetKeys(Group& group, const std::vector<ColorId>& ids) {
    for (const ColorId id : ids)
        if (const std::string* const otherKey = store_.At(id).OtherKey())
            ForgetOtherKey(id, *otherKey);
    std::erase_if(group.outOfStep,
                  [&](const Numbered& color) { return std::ranges::binary_search(ids, color.id); });
}

void ColorTable::ForgetOtherKey(ColorId id, const std::string& key) {
    const auto sameKey = otherKeys_.find(key);
    std::erase(sameKey->second, id);
    if (sameKey->second.empty())
        otherKeys_.erase(sameKey);
}

void ColorTable::EraseGroups(const std::vector<std::string>& groupKeys) {
    std::vector<std::vector<ColorId>> leaving;
    for (const std::string& key : groupKeys)
        if (const std::vector<ColorId>& ids = IdsOfGroup(key); !ids.empty())
            leaving.push_back(ids);
    std::vector<RemovedColors> removed = TakeOut(leaving);
    if (journal_ && !removed.empty())
        journal_->ColorsRemoved(std::move(removed));
}

int ColorTable::IndexOfKey(const std::string& key) const {
    const ColorId numbered = FirstOfNumber(key);
    const ColorId other = FirstOfOtherKey(key);
    if (numbered == 0 || other == 0)
        return IndexOfId(std::max(numbered, other));
    return IndexOfId(std::min(numbered, other));
}

ColorId ColorTable::FirstOfNumber(const std::string& key) const {
    const std::optional<LibraryKeys::ColorKey> parts = LibraryKeys::PartsOfColor(key);
    const Group* const group = parts ? FindGroup(std::string(parts->group)) : nullptr;
    if (group == nullptr)
        return 0;
    const Numbered inStep{parts->number, parts->number + group->step};
    const auto found =
        std::ranges::lower_bound(group->outOfStep, parts->number, {}, &Numbered::number);
    const bool isFound = found != group->outOfStep.end() && found->number == parts->number;
    if (!HasColor(*group, inStep))
        return isFound ? found->id : 0;
    return isFound ? std::min(found->id, inStep.id) : inStep.id;
}

bool ColorTable::HasColor(const Group& group, const Numbered& color) const {
    const StoredColor* const found = store_.Find(color.id);
    return found != nullptr && &groups_[found->group] == &group && found->number == color.number &&
           found->OtherKey() == nullptr;
}

ColorId ColorTable::FirstOfOtherKey(const std::string& key) const {
    const auto found = otherKeys_.find(key);
    return found == otherKeys_.end() ? 0 : found->second.front();
}

const ColorTable::Group* ColorTable::FindGroup(const std::string& groupKey) const {
    const auto found = numberOfGroup_.find(groupKey);
    return found == numberOfGroup_.end() ? nullptr : &groups_[found->second];
}

std::uint64_t ColorTable::RevisionOfGroup(const std::string& groupKey) const {
    const Group* group = FindGroup(groupKey);
    return group != nullptr ? group->revision : 0;
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
