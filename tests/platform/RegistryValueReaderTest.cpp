// Rules: Window positions
#include "platform/RegistryValueReader.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

// A value that has another content at each query.
class ChangingValue {
public:
    explicit ChangingValue(std::vector<std::string> contents) : contents_(std::move(contents)) {}

    LSTATUS operator()(DWORD* type, BYTE* content, DWORD* size) {
        const std::string& now = contents_.at(std::min(queries++, contents_.size() - 1));
        const bool fits = content != nullptr && *size >= now.size();
        const bool wanted = content != nullptr;
        *type = REG_BINARY;
        *size = static_cast<DWORD>(now.size());
        if (fits)
            std::copy(now.begin(), now.end(), content);
        return fits || !wanted ? ERROR_SUCCESS : ERROR_MORE_DATA;
    }

    std::size_t queries = 0;

private:
    std::vector<std::string> contents_;
};

} // namespace

TEST(RegistryValueReader, AsksForTheSizeAndThenForTheContent) {
    ChangingValue value({"abc"});
    const auto read = ReadRegistryValue(std::ref(value));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->bytes, "abc");
    EXPECT_EQ(read->type, RegistryType::Binary);
    EXPECT_EQ(value.queries, 2U);
}

TEST(RegistryValueReader, ValueThatGrowsBetweenTheQueriesIsReadWhole) {
    ChangingValue value({"abc", "abcdef", "abcdef"});
    EXPECT_EQ(ReadRegistryValue(std::ref(value))->bytes, "abcdef");
}

TEST(RegistryValueReader, ValueThatShrinksBetweenTheQueriesHasNoTail) {
    ChangingValue value({"abcdef", "abc"});
    EXPECT_EQ(ReadRegistryValue(std::ref(value))->bytes, "abc");
}

TEST(RegistryValueReader, ValueThatKeepsGrowingIsGivenUp) {
    std::vector<std::string> contents;
    for (std::size_t size = 1; size < 100; ++size)
        contents.emplace_back(size, 'x');
    ChangingValue value(contents);
    EXPECT_FALSE(ReadRegistryValue(std::ref(value)));
}

TEST(RegistryValueReader, AbsurdSizeIsRefusedWithoutAsking) {
    int queries = 0;
    const auto read = ReadRegistryValue([&](DWORD* type, BYTE*, DWORD* size) {
        ++queries;
        *type = REG_SZ;
        *size = 0xFFFFFFF0U;
        return ERROR_SUCCESS;
    });
    EXPECT_FALSE(read);
    EXPECT_EQ(queries, 1);
}

TEST(RegistryValueReader, ErrorGivesNothing) {
    EXPECT_FALSE(ReadRegistryValue([](DWORD*, BYTE*, DWORD*) { return ERROR_ACCESS_DENIED; }));
}

TEST(RegistryValueReader, ErrorOfTheSecondQueryGivesNothing) {
    EXPECT_FALSE(ReadRegistryValue([](DWORD*, BYTE* content, DWORD* size) {
        *size = 3;
        return content == nullptr ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
    }));
}
