// Rules: Library model
#include "library/ColorTable.h"

#include "common/RuntimeError.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

ColorRecord Color(const std::string& key, const std::string& group) {
    return {"name of " + key, key, group, false, {}, {}};
}

class ThreeColors : public ColorTable {
public:
    ThreeColors() {
        Append(Color("0DG1E1", "0DG1"));
        Append(Color("0DG2E1", "0DG2"));
        Append(Color("0DG1E2", "0DG1"));
    }
};

// The rules as they are said: a plain list that is scanned from its beginning.
class ScannedTable {
public:
    void Append(const ColorRecord& record) { records.push_back(record); }
    void EraseGroups(const std::vector<std::string>& groupKeys) {
        std::erase_if(records, [&](const ColorRecord& record) {
            return std::ranges::find(groupKeys, record.groupKey) != groupKeys.end();
        });
    }
    [[nodiscard]] int IndexOfKey(const std::string& key) const {
        const auto found = std::ranges::find(records, key, &ColorRecord::key);
        return found == records.end() ? 0 : static_cast<int>(found - records.begin()) + 1;
    }
    [[nodiscard]] std::vector<int> IndexesOfGroup(const std::string& groupKey) const {
        std::vector<int> indexes;
        for (std::size_t i = 0; i < records.size(); ++i)
            if (records[i].groupKey == groupKey)
                indexes.push_back(static_cast<int>(i) + 1);
        return indexes;
    }

    std::vector<ColorRecord> records;
};

// Random operations on both tables, from a small choice of keys so that they meet.
class TwoTables {
public:
    enum class Keys { Any, Unique, Growing };
    TwoTables(unsigned seed, Keys keys) : random_(seed), keys_(keys) {}

    void Step() {
        switch (Number(10)) {
        case 0:
            EraseOne();
            break;
        case 1:
            if (Number(8) == 0)
                EraseGroups();
            break;
        case 2:
            Change();
            break;
        default:
            Append();
        }
    }
    void Compare() const {
        ASSERT_EQ(table_.UpperBound(), static_cast<int>(scanned_.records.size()));
        for (int index = 1; index <= table_.UpperBound(); ++index) {
            const ColorRecord& expected = scanned_.records[static_cast<std::size_t>(index) - 1];
            ASSERT_EQ(table_.At(index), expected);
            ASSERT_EQ(table_.IndexOfKey(expected.key), scanned_.IndexOfKey(expected.key));
            ASSERT_EQ(table_.IndexOfId(table_.IdAt(index)), index);
            for (const char* start : {"", "0D", "0DG1", "0DG1E", "0DG1E1", "1"})
                ASSERT_EQ(table_.ViewAt(index).KeyBeginsWith(start),
                          expected.key.starts_with(start));
        }
        for (const char* group : {"0DG1", "0DG2", "0DG10", "1DG1", "x", ""})
            ASSERT_EQ(table_.IndexesOfGroup(group), scanned_.IndexesOfGroup(group)) << group;
        ASSERT_EQ(table_.IndexOfKey("nothing"), 0);
    }

private:
    int Number(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    std::string GroupKey() {
        static const std::vector<std::string> keys = {"0DG1", "0DG2", "0DG10", "1DG1", "x", ""};
        return keys[static_cast<std::size_t>(Number(6))];
    }
    void Append() {
        ColorRecord record;
        record.groupKey = GroupKey();
        static const std::vector<std::string> odd = {"", "E", "E01", "E4294967296", "e1", "E1 "};
        record.key = (Number(4) == 0 ? GroupKey() : record.groupKey) +
                     (Number(5) == 0 ? odd[static_cast<std::size_t>(Number(6))]
                                     : "E" + std::to_string(Number(60)));
        if (keys_ == Keys::Growing)
            record.key = record.groupKey + "E" + std::to_string(last_ += 1 + Number(3) / 2);
        record.name = Number(3) == 0 ? "a name that is too long to be kept in place"
                                     : "name " + std::to_string(Number(5));
        record.altName = Number(3) == 0 ? "other" : record.name;
        record.isNew = Number(2) == 0;
        record.values[3] = static_cast<std::int16_t>(Number(100));
        if (keys_ == Keys::Unique && scanned_.IndexOfKey(record.key) != 0)
            return;
        table_.Append(record);
        scanned_.Append(record);
    }
    void EraseOne() {
        if (scanned_.records.empty())
            return;
        const int index = Number(table_.UpperBound()) + 1;
        table_.Erase(index);
        scanned_.records.erase(scanned_.records.begin() + (index - 1));
    }
    void EraseGroups() {
        const std::vector<std::string> groups = {GroupKey(), "no such group"};
        table_.EraseGroups(groups);
        scanned_.EraseGroups(groups);
    }
    void Change() {
        if (scanned_.records.empty())
            return;
        const int index = Number(table_.UpperBound()) + 1;
        ColorRecord& record = scanned_.records[static_cast<std::size_t>(index) - 1];
        record.name = Number(2) == 0 ? record.altName : "changed";
        table_.SetName(index, record.name);
        if (Number(2) == 0) {
            record.altName = record.name;
            table_.SetNames(index, record.name);
        }
        record.values[8] = 77;
        table_.SetValues(index, record.values);
    }

    std::mt19937 random_;
    Keys keys_;
    int last_ = 0;
    ColorTable table_;
    ScannedTable scanned_;
};

TEST(ColorTable, StartsWithThePlaceholderAlone) {
    const ColorTable table;
    EXPECT_EQ(table.UpperBound(), 0);
    EXPECT_EQ(table.At(0), ColorRecord{});
}

TEST(ColorTable, ColorsOfAGroupAreFoundInTheOrderOfTheTable) {
    EXPECT_EQ(ThreeColors().IndexesOfGroup("0DG1"), (std::vector<int>{1, 3}));
    EXPECT_TRUE(ThreeColors().IndexesOfGroup("0dg1").empty()) << "look-ups are case-sensitive";
}

TEST(ColorTable, KeyThatIsNotThereHasIndexZero) {
    EXPECT_EQ(ThreeColors().IndexOfKey("0DG1E9"), 0);
    EXPECT_EQ(ThreeColors().IndexOfKey("0dg1e1"), 0) << "look-ups are case-sensitive";
}

TEST(ColorTable, FirstOfEqualKeysIsFound) {
    ThreeColors table;
    table.Append(Color("0DG2E1", "0DG9"));
    EXPECT_EQ(table.IndexOfKey("0DG2E1"), 2);
}

TEST(ColorTable, ErasingMovesLaterColorsDown) {
    ThreeColors table;
    EXPECT_EQ(table.IndexOfKey("0DG1E2"), 3);
    table.Erase(1);
    EXPECT_EQ(table.UpperBound(), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E2"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E1"), 0);
    EXPECT_EQ(table.IndexesOfGroup("0DG1"), std::vector<int>{2});
}

TEST(ColorTable, ErasingAGroupIsErasingItsColorsOneByOne) {
    ThreeColors table;
    table.EraseGroups({"0DG1"});
    EXPECT_EQ(table.UpperBound(), 1);
    EXPECT_EQ(table.At(1).key, "0DG2E1");
    EXPECT_EQ(table.IndexOfKey("0DG2E1"), 1);
}

TEST(ColorTable, PlaceholderAndIndexesPastTheEndAreNoColors) {
    ThreeColors table;
    EXPECT_THROW(table.Erase(0), RuntimeError);
    EXPECT_THROW(table.Erase(4), RuntimeError);
    EXPECT_THROW(static_cast<void>(table.At(4)), RuntimeError);
    EXPECT_THROW(static_cast<void>(table.At(-1)), RuntimeError);
    EXPECT_EQ(table.UpperBound(), 3);
}

TEST(ColorTable, NumberedColorsAreThoseWithTheSameKeysWrittenOut) {
    ColorTable table;
    const auto group = table.NumberOfGroup("0DG1");
    table.Append(group, 12, "a", "a", {1, 2, 3, 4, 5, 6, 7, 8, 9});
    table.Append(group, 13, "b", "second", {});
    EXPECT_EQ(table.At(1),
              (ColorRecord{"a", "0DG1E12", "0DG1", false, {1, 2, 3, 4, 5, 6, 7, 8, 9}, "a"}));
    EXPECT_EQ(table.At(2), (ColorRecord{"b", "0DG1E13", "0DG1", false, {}, "second"}));
    EXPECT_EQ(table.IndexOfKey("0DG1E13"), 2);
}

TEST(ColorTable, IdStaysWhileColorsBeforeItGo) {
    ThreeColors table;
    const ColorId last = table.IdAt(3);
    const ColorId first = table.IdAt(1);
    table.Erase(1);
    EXPECT_EQ(table.IndexOfId(last), 2);
    EXPECT_EQ(table.IndexOfId(first), 0);
    EXPECT_EQ(table.IndexOfId(0), 0);
    EXPECT_EQ(table.IdsOfGroup("0DG1"), std::vector<ColorId>{last});
    EXPECT_THROW(static_cast<void>(table.IdAt(0)), RuntimeError);
}

void CompareAfterRandomOperations(TwoTables::Keys keys) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TwoTables tables(seed, keys);
        for (int step = 0; step < 600; ++step) {
            tables.Step();
            if (step % 30 != 0)
                continue;
            ASSERT_NO_FATAL_FAILURE(tables.Compare()) << "step " << step;
        }
    }
}

TEST(ColorTable, RandomOperationsGiveWhatAScannedListGives) {
    CompareAfterRandomOperations(TwoTables::Keys::Any);
}

TEST(ColorTable, RandomOperationsOnUniqueKeysGiveWhatAScannedListGives) {
    CompareAfterRandomOperations(TwoTables::Keys::Unique);
}

TEST(ColorTable, RandomOperationsOnGrowingKeysGiveWhatAScannedListGives) {
    CompareAfterRandomOperations(TwoTables::Keys::Growing);
}

TEST(ColorTable, KeyOfAColorThatHasGoneIsNotFound) {
    ColorTable table;
    const auto group = table.NumberOfGroup("0DG1");
    for (const std::uint32_t number : {5U, 6U, 7U, 8U})
        table.Append(group, number, "a", "a", {});
    table.Erase(2);
    EXPECT_EQ(table.IndexOfKey("0DG1E5"), 1);
    EXPECT_EQ(table.IndexOfKey("0DG1E6"), 0);
    EXPECT_EQ(table.IndexOfKey("0DG1E7"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E9"), 0);
    EXPECT_EQ(table.IndexOfKey("0DG1E4"), 0);
}

// Where colors are numbered as they come, the number leads to a color; it may be another one.
TEST(ColorTable, ColorOfAnotherGroupIsNotTakenForOneWithTheNumber) {
    ColorTable table;
    table.Append(table.NumberOfGroup("0DG1"), 1, "a", "a", {});
    table.Append(table.NumberOfGroup("0DG2"), 2, "b", "b", {});
    EXPECT_EQ(table.IndexOfKey("0DG1E2"), 0);
    EXPECT_EQ(table.IndexOfKey("0DG2E2"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG2E1"), 0);
}

TEST(ColorTable, ColorsWithNumbersInNoOrderAreFoundByThem) {
    ColorTable table;
    const auto group = table.NumberOfGroup("0DG1");
    for (const std::uint32_t number : {1U, 9U, 3U, 4294967295U, 0U})
        table.Append(group, number, "a", "a", {});
    EXPECT_EQ(table.IndexOfKey("0DG1E2"), 0);
    EXPECT_EQ(table.IndexOfKey("0DG1E9"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E3"), 3);
    EXPECT_EQ(table.IndexOfKey("0DG1E4294967295"), 4);
    EXPECT_EQ(table.IndexOfKey("0DG1E0"), 5);
    table.Erase(2);
    EXPECT_EQ(table.IndexOfKey("0DG1E9"), 0);
    EXPECT_EQ(table.IndexOfKey("0DG1E3"), 2);
}

TEST(ColorTable, FirstOfEqualNumbersIsFound) {
    ColorTable table;
    const auto group = table.NumberOfGroup("0DG1");
    for (const std::uint32_t number : {1U, 3U, 3U, 4U, 4U})
        table.Append(group, number, "a", "a", {});
    EXPECT_EQ(table.IndexOfKey("0DG1E3"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E4"), 4);
    table.Erase(2);
    EXPECT_EQ(table.IndexOfKey("0DG1E3"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E4"), 3);
}

TEST(ColorTable, ColorWithAKeyOfItsOwnHasNoNumber) {
    ColorTable table;
    table.Append(Color("a key", "0DG1"));
    table.Append(Color("0DG1E1", "0DG1"));
    EXPECT_EQ(table.IndexOfKey("0DG1E0"), 0);
    EXPECT_EQ(table.IndexOfKey("0DG1E1"), 2);
    EXPECT_EQ(table.IndexOfKey("a key"), 1);
}

} // namespace
