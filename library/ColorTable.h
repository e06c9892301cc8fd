#pragma once

#include "common/ColorRecord.h"
#include "library/ColorSnapshot.h"
#include "library/ColorStore.h"
#include "library/ColorJournal.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// `ColorValues`: every color of every open library, in the order of creation or loading.  Element
// 0 is a placeholder that never holds a color; colors occupy 1..UpperBound().  Look-ups by key
// and by group give what a scan from element 0 would give (exact, case-sensitive comparison), but
// through indexes.
class ColorTable {
public:
    ColorTable() = default;
    ColorTable(const ColorTable&) = delete;
    ColorTable& operator=(const ColorTable&) = delete;

    // At most one journal, which hears of every change but Reset; null: none.
    void SetJournal(ColorJournal* journal) noexcept { journal_ = journal; }

    // Takes colors out, by their ids, ascending and one group after the other, and puts them back
    // in their places, as colors of the groups that are named.  Neither is told to the journal.
    [[nodiscard]] std::vector<RemovedColors>
    TakeOut(const std::vector<std::vector<ColorId>>& idsOfGroups);
    void PutBack(std::vector<RemovedColors>&& coming);

    // Names and values of a color that is there and those given change places; not told to the
    // journal.
    void Exchange(ColorId id, StoredColor& other);

    // Back to the placeholder alone.
    void Reset();

    [[nodiscard]] int UpperBound() const noexcept { return static_cast<int>(order_.size()); }

    // index: 0..UpperBound().  Throws RuntimeError SubscriptOutOfRange.
    [[nodiscard]] ColorRecord At(int index) const;

    // Valid until the table changes.  index: 1..UpperBound(), as above.
    [[nodiscard]] ColorView ViewAt(int index) const;

    // All colors as they are now.
    [[nodiscard]] ColorSnapshot Snapshot() const;

    // Greater after every change of any color.
    [[nodiscard]] std::uint64_t Revision() const noexcept { return revision_; }

    // Greater after every change of the group's colors; 0: it never had one.
    [[nodiscard]] std::uint64_t RevisionOfGroup(const std::string& groupKey) const;

    void Append(ColorRecord record);

    // The same for many colors of one group: the group's number is looked up once, and the key is
    // "group key, E, number".
    using GroupNumber = std::uint32_t;
    [[nodiscard]] GroupNumber NumberOfGroup(const std::string& groupKey);
    void Append(GroupNumber group, std::uint32_t number, std::string_view name,
                std::string_view altName, const ColorValueArray& values);

    // Both names of a color, or its values; the keys of a record never change.
    void SetNames(int index, const std::string& name);
    void SetName(int index, const std::string& name);
    void SetValues(int index, const ColorValueArray& values);

    // Removes a color (index from 1); later colors move down by one place.
    void Erase(int index);

    // Removes all colors of these groups, as erasing them one by one would.
    void EraseGroups(const std::vector<std::string>& groupKeys);

    // Index of the first record with the key; 0 if none.
    [[nodiscard]] int IndexOfKey(const std::string& key) const;

    // Indexes of the records of the group, ascending.
    [[nodiscard]] std::vector<int> IndexesOfGroup(const std::string& groupKey) const;
    [[nodiscard]] int CountOfGroup(const std::string& groupKey) const;

    // The same colors by what stays the same while colors before them come and go.
    [[nodiscard]] const std::vector<ColorId>& IdsOfGroup(const std::string& groupKey) const;
    [[nodiscard]] ColorId IdAt(int index) const;   // index: 1..UpperBound(), as above
    [[nodiscard]] int IndexOfId(ColorId id) const; // 0: the color is not there any more

private:
    struct Numbered {
        std::uint32_t number = 0;
        ColorId id = 0;
        auto operator<=>(const Numbered&) const = default; // NOLINT(modernize-use-nullptr): none
    };
    struct Group {
        std::string key;
        std::vector<ColorId> ids; // ascending
        // Colors that come one after the other, as from a file, are numbered as their ids are: the
        // number leads to the id, and only the others are listed by their numbers.
        ColorId step = 0;                // from number to id, may wrap around
        std::vector<Numbered> outOfStep; // ascending; with a key of group and number
        std::uint64_t revision = 0;

        [[nodiscard]] bool IsInStep(const Numbered& color) const noexcept {
            return color.number + step == color.id;
        }
        // To be called before a color comes.
        void TakeStepOfFirst(const Numbered& color) noexcept {
            if (ids.empty())
                step = color.id - color.number;
        }
    };

    [[nodiscard]] StoredColor& ColorAt(int index);
    void Insert(ColorId id, const StoredColor& color);
    void BeginChange(ColorId id);
    void NoteChange(Group& group) noexcept { group.revision = ++revision_; }
    void LeaveOrder(std::vector<ColorId> ids);
    // All of one group, ascending; they are out of the order already.
    [[nodiscard]] std::vector<RemovedColor> LeaveGroup(Group& group,
                                                       const std::vector<ColorId>& ids);
    void PutIntoGroup(const std::string& groupKey, std::vector<RemovedColor>&& colors);
    void ForgetKeys(Group& group, const std::vector<ColorId>& ids);
    void ForgetOtherKey(ColorId id, const std::string& key);
    [[nodiscard]] const Group* FindGroup(const std::string& groupKey) const;
    [[nodiscard]] ColorId FirstOfNumber(const std::string& key) const; // 0: none
    [[nodiscard]] bool HasColor(const Group& group, const Numbered& color) const;
    [[nodiscard]] ColorId FirstOfOtherKey(const std::string& key) const;

    ColorStore store_;
    std::vector<ColorId> order_; // ascending
    std::vector<Group> groups_;  // also those whose colors have gone
    std::unordered_map<std::string, GroupNumber> numberOfGroup_;
    std::map<std::string, std::vector<ColorId>> otherKeys_; // ids ascending, never empty

    std::uint64_t revision_ = 0; // of the last change
    ColorJournal* journal_ = nullptr;
};
