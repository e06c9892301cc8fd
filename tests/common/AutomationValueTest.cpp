// Rules: Clearing colors
#include "common/AutomationValue.h"

#include "common/RuntimeError.h"

#include <gtest/gtest.h>

namespace {

TEST(AutomationValue, EveryNumberButZeroIsTrue) {
    for (const std::int32_t number : {1, 2, -1})
        EXPECT_TRUE(AutomationValue(number).AsBoolean()) << number;
    EXPECT_TRUE(AutomationValue(0.5).AsBoolean());
    EXPECT_TRUE(AutomationValue(true).AsBoolean());
    EXPECT_FALSE(AutomationValue(std::int32_t{0}).AsBoolean());
    EXPECT_FALSE(AutomationValue(0.0).AsBoolean());
    EXPECT_FALSE(AutomationValue(false).AsBoolean());
}

TEST(AutomationValue, WhatIsNoNumberIsNoBoolean) {
    EXPECT_THROW(static_cast<void>(AutomationValue().AsBoolean()), RuntimeError);
    EXPECT_THROW(static_cast<void>(AutomationValue(AutomationObjectPtr()).AsBoolean()),
                 RuntimeError);
    EXPECT_THROW(static_cast<void>(AutomationValue("yes").AsBoolean()), RuntimeError);
}

} // namespace
