// Rules: Color from and to the selection
#include "solidworks/ColorArray.h"

#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorValueArray kRead{255, 0, 128, 10, 20, 30, 40, 50, 60};

// As an array of doubles and as an array of variants.
std::vector<AutomationValue> BothKinds(const std::vector<double>& numbers) {
    return {numbers, AutomationArray(numbers.begin(), numbers.end())};
}

TEST(ColorArray, EmptyArrayIsNotUsableAndAnErrorToRead) {
    for (const AutomationValue& array : BothKinds({})) {
        EXPECT_FALSE(ColorArray::IsUsable(array));
        EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(ColorArray::ToValues(array)); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(ColorArray, OneNumberIsUsableButNotEnoughToRead) {
    for (const AutomationValue& array : BothKinds({0.5})) {
        EXPECT_TRUE(ColorArray::IsUsable(array));
        EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(ColorArray::ToValues(array)); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(ColorArray, NumbersBehindTheNinthAreLeftAlone) {
    for (const AutomationValue& array :
         BothKinds({1, 0, 128 / 255.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7})) {
        EXPECT_TRUE(ColorArray::IsUsable(array));
        EXPECT_EQ(ColorArray::ToValues(array), kRead);
    }
}

TEST(ColorArray, NumbersInVariantsMayBeOfAnyKind) {
    const AutomationArray array{true, std::int32_t{0}, "0.5", 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
    EXPECT_EQ(ColorArray::ToValues(array), (ColorValueArray{-255, 0, 128, 10, 20, 30, 40, 50, 60}));
}

} // namespace
