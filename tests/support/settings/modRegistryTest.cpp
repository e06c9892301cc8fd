// Rules: Window positions
#include "support/settings/modRegistry.h"

#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeRegistry.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

class modRegistryTest : public testing::Test {
protected:
    RegistryVariant Get() {
        return access.RegistryGetKeyValue(RegistryRoot::CurrentUser, "K", "V");
    }
    void Set(const RegistryVariant& value, std::uint32_t type) {
        access.RegistrySetKeyValue(RegistryRoot::CurrentUser, "K", "V", value, type);
    }

    FakeRegistry registry;
    FakeCodePage codePage = FakeCodePage::Western();
    modRegistry access{registry, codePage};
};

TEST_F(modRegistryTest, MissingValueIsEmpty) {
    EXPECT_EQ(Get(), RegistryVariant{});
    EXPECT_EQ(registry.rightsAsked.back(), 0x20019U);
}

TEST_F(modRegistryTest, StringEndsAtItsFirstNul) {
    registry.values["K|V"] = {RegistryType::String, std::string("Gr\xFC\xDF"
                                                                "e\0rest\0",
                                                                11)};
    EXPECT_EQ(Get(), RegistryVariant("Grüße"));
}

TEST_F(modRegistryTest, StringWithoutANulIsTakenWhole) {
    registry.values["K|V"] = {RegistryType::String, "abc"};
    EXPECT_EQ(Get(), RegistryVariant("abc"));
}

TEST_F(modRegistryTest, BytesAndNumbersAreTakenAsTheyAre) {
    registry.values["K|V"] = {RegistryType::Binary, std::string("\x01\x00\xFF", 3)};
    EXPECT_EQ(Get(), RegistryVariant(Bytes{1, 0, 255}));
    registry.values["K|V"] = {RegistryType::DWord, std::string("\x04\x03\x02\xFF", 4)};
    EXPECT_EQ(Get(), RegistryVariant(static_cast<std::int32_t>(0xFF020304)));
}

TEST_F(modRegistryTest, OtherTypesAndBrokenNumbersAreEmpty) {
    registry.values["K|V"] = {2, "expand"};
    EXPECT_EQ(Get(), RegistryVariant{});
    registry.values["K|V"] = {RegistryType::DWord, "xyz"};
    EXPECT_EQ(Get(), RegistryVariant{});
    registry.values["K|V"] = {RegistryType::Binary, ""};
    EXPECT_EQ(Get(), RegistryVariant{});
}

TEST_F(modRegistryTest, WrittenValuesReadBack) {
    Set("Größe", RegistryType::String);
    EXPECT_EQ(registry.values.at("K|V").bytes, std::string("Gr\xF6\xDF"
                                                           "e\0",
                                                           6));
    EXPECT_EQ(registry.rightsAsked.back(), 0x2001FU);
    EXPECT_EQ(Get(), RegistryVariant("Größe"));
    Set(Bytes{0, 1}, RegistryType::Binary);
    EXPECT_EQ(Get(), RegistryVariant(Bytes{0, 1}));
    Set(std::int32_t{-2}, RegistryType::DWord);
    EXPECT_EQ(Get(), RegistryVariant(std::int32_t{-2}));
}

TEST_F(modRegistryTest, NumberIsWrittenAsItsTextUnderTheTypeOfStrings) {
    Set(std::int32_t{-12}, RegistryType::String);
    EXPECT_EQ(registry.values.at("K|V").type, RegistryType::String);
    EXPECT_EQ(registry.values.at("K|V").bytes, std::string("-12\0", 4));
}

TEST_F(modRegistryTest, ValueThatDoesNotConvertIsNotWritten) {
    Set("text", RegistryType::DWord);
    Set("text", RegistryType::Binary);
    Set(Bytes{1}, RegistryType::String);
    Set(std::int32_t{1}, RegistryType::Binary);
    Set(RegistryVariant{}, RegistryType::String);
    Set("text", 2);
    EXPECT_TRUE(registry.written.empty());
}

TEST_F(modRegistryTest, ErrorsAreNotReported) {
    registry.isReadOnly = true;
    EXPECT_NO_THROW(Set("x", RegistryType::String));
}

} // namespace
