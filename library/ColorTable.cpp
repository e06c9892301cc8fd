#include "library/ColorTable.h"

#include "common/RuntimeError.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

void ColorTable::Reset() {
    records_.assign(1, ColorRecord{});
    ForgetIndexes();
}

const ColorRecord& ColorTable::At(int index) const {
    if (index < 0 || index > UpperBound())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    return records_[static_cast<std::size_t>(index)];
}

ColorRecord& ColorTable::Checked(int index) {
    return const_cast<ColorRecord&>(std::as_const(*this).At(index));
}

void ColorTable::Append(ColorRecord record) {
    records_.push_back(std::move(record));
}

void ColorTable::SetNames(int index, const std::string& name) {
    ColorRecord& record = Checked(index);
    record.name = name;
    record.altName = name;
}

void ColorTable::SetName(int index, const std::string& name) {
    Checked(index).name = name;
}

void ColorTable::SetValues(int index, const ColorValueArray& values) {
    Checked(index).values = values;
}

void ColorTable::Erase(int index) {
    if (index == 0)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    static_cast<void>(At(index));
    records_.erase(records_.begin() + index);
    ForgetIndexes();
}

void ColorTable::EraseGroups(const std::vector<std::string>& groupKeys) {
    const std::unordered_set<std::string> groups(groupKeys.begin(), groupKeys.end());
    const auto belongs = [&](const ColorRecord& record) {
        return groups.contains(record.groupKey);
    };
    records_.erase(std::remove_if(records_.begin() + 1, records_.end(), belongs), records_.end());
    ForgetIndexes();
}

int ColorTable::IndexOfKey(const std::string& key) const {
    IndexNewRecords();
    const auto found = positionOfKey_.find(key);
    return found == positionOfKey_.end() ? 0 : found->second;
}

const std::vector<int>& ColorTable::IndexesOfGroup(const std::string& groupKey) const {
    static const std::vector<int> none;
    IndexNewRecords();
    const auto found = positionsOfGroup_.find(groupKey);
    return found == positionsOfGroup_.end() ? none : found->second;
}

void ColorTable::IndexNewRecords() const {
    for (; indexedCount_ < records_.size(); ++indexedCount_) {
        const int position = static_cast<int>(indexedCount_);
        const ColorRecord& record = records_[indexedCount_];
        positionOfKey_.emplace(record.key, position); // the first of equal keys stays
        positionsOfGroup_[record.groupKey].push_back(position);
    }
}

void ColorTable::ForgetIndexes() const {
    indexedCount_ = 0;
    positionOfKey_.clear();
    positionsOfGroup_.clear();
}
