#pragma once

#include "common/ColorRecord.h"

#include <string>
#include <unordered_map>
#include <vector>

// `ColorValues`: every colour of every open library, in the order of creation or loading.  Element
// 0 is a placeholder that never holds a colour; colours occupy 1..UpperBound().  Look-ups by key
// and by group give what a scan from element 0 would give (exact, case-sensitive comparison), but
// through indexes.
class ColorTable {
public:
    ColorTable() { Reset(); }

    // Back to the placeholder alone.
    void Reset();

    [[nodiscard]] int UpperBound() const noexcept { return static_cast<int>(records_.size()) - 1; }

    // index: 0..UpperBound().  Throws RuntimeError SubscriptOutOfRange.
    [[nodiscard]] const ColorRecord& At(int index) const;

    void Append(ColorRecord record);

    // Both names of a colour, or its values; the keys of a record never change.
    void SetNames(int index, const std::string& name);
    void SetName(int index, const std::string& name);
    void SetValues(int index, const ColorValueArray& values);

    // Removes a colour (index from 1); later colours move down by one place.
    void Erase(int index);

    // Removes all colours of these groups, as erasing them one by one would.
    void EraseGroups(const std::vector<std::string>& groupKeys);

    // Index of the first record with the key; 0 if none.
    [[nodiscard]] int IndexOfKey(const std::string& key) const;

    // Indexes of the records of the group, ascending.
    [[nodiscard]] const std::vector<int>& IndexesOfGroup(const std::string& groupKey) const;

private:
    ColorRecord& Checked(int index);
    void IndexNewRecords() const;
    void ForgetIndexes() const;

    std::vector<ColorRecord> records_;
    // Built on demand for the records below indexedCount_.
    mutable std::size_t indexedCount_ = 0;
    mutable std::unordered_map<std::string, int> positionOfKey_;
    mutable std::unordered_map<std::string, std::vector<int>> positionsOfGroup_;
};
