#pragma once

#include "common/ColorRecord.h"
#include "library/ColorKeyIndex.h"
#include "library/ColorStore.h"
#include "library/LibraryJournal.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// `ColorValues`: every colour of every open library, in the order of creation or loading.  Element
// 0 is a placeholder that never holds a colour; colours occupy 1..UpperBound().  Look-ups by key
// and by group give what a scan from element 0 would give (exact, case-sensitive comparison), but
// through indexes.
class ColorTable {
public:
    ColorTable() = default;
    ColorTable(const ColorTable&) = delete;
    ColorTable& operator=(const ColorTable&) = delete;

    // At most one journal, which hears of every change but Reset; null: none.
    void SetJournal(ColorJournal* journal) noexcept { journal_ = journal; }

    // Takes colors out, by their ids in the order of the table, and puts them back in their places,
    // as colors of a group.  Neither is told to the journal.
    [[nodiscard]] std::vector<RemovedColor> TakeOut(const std::vector<ColorId>& ids);
    void PutBack(const std::string& groupKey, std::vector<RemovedColor> colors);

    // Names and values of a color that is there and those given change places; not told to the
    // journal.
    void Exchange(ColorId id, StoredColor& other);

    // Back to the placeholder alone.
    void Reset();

    [[nodiscard]] int UpperBound() const noexcept { return static_cast<int>(order_.size()); }

    // index: 0..UpperBound().  Throws RuntimeError SubscriptOutOfRange.
    [[nodiscard]] ColorRecord At(int index) const;

    // The colour with its key as "group key, E, number", as At gives it, but not copied together;
    // valid until the table changes.  index: 1..UpperBound(), as above.
    struct View {
        const StoredColor& color;
        const std::string& groupKey;
    };
    [[nodiscard]] View ViewAt(int index) const;
    [[nodiscard]] bool KeyBeginsWith(int index, std::string_view start) const;

    void Append(ColorRecord record);

    // The same for many colours of one group: the group's number is looked up once, and the key is
    // "group key, E, number".
    using GroupNumber = std::uint32_t;
    [[nodiscard]] GroupNumber NumberOfGroup(const std::string& groupKey);
    void Append(GroupNumber group, std::uint32_t number, std::string name, std::string_view altName,
                const ColorValueArray& values);

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
    [[nodiscard]] std::vector<int> IndexesOfGroup(const std::string& groupKey) const;
    [[nodiscard]] int CountOfGroup(const std::string& groupKey) const;

    // The same colours by what stays the same while colours before them come and go.
    [[nodiscard]] const std::vector<ColorId>& IdsOfGroup(const std::string& groupKey) const;
    [[nodiscard]] ColorId IdAt(int index) const;   // index: 1..UpperBound(), as above
    [[nodiscard]] int IndexOfId(ColorId id) const; // 0: the colour is not there any more

private:
    struct Group {
        std::string key;
        std::size_t hash = 0;     // of the key
        std::vector<ColorId> ids; // ascending
    };

    [[nodiscard]] StoredColor& ColorAt(int index);
    void Insert(StoredColor&& color);
    void LeaveOrder(const std::vector<ColorId>& ids); // and the index of keys
    [[nodiscard]] RemovedColor MoveOut(ColorId id);   // of the store alone
    void TellChange(ColorId id) const;
    [[nodiscard]] const Group* FindGroup(const std::string& groupKey) const;
    [[nodiscard]] std::string KeyOf(ColorId id) const;
    [[nodiscard]] ColorKeyIndex::Hash HashOf(ColorId id) const;
    [[nodiscard]] bool HaveSameKey(ColorId left, ColorId right) const;
    void IndexKeys() const;
    bool IndexKey(ColorId id) const; // false: there was a colour with its key

    ColorStore store_;
    std::vector<ColorId> order_; // ascending
    std::vector<Group> groups_;  // also those whose colours have gone
    std::unordered_map<std::string, GroupNumber> numberOfGroup_;

    // Made when a key is first looked up.
    mutable ColorKeyIndex keys_;
    mutable bool keysIndexed_ = false;
    mutable bool keysAreUnique_ = true;

    ColorJournal* journal_ = nullptr;
};
