#include "platform/SystemMessage.h"

#include <gtest/gtest.h>

TEST(SystemMessage, GivesTheSystemsWordsAndTheNumberInOneLine) {
    const std::string message = SystemMessage(E_ACCESSDENIED);
    EXPECT_TRUE(message.ends_with(" (80070005)")) << message;
    EXPECT_GT(message.size(), 12U);
    EXPECT_EQ(message.find_first_of("\r\n"), std::string::npos);
}

TEST(SystemMessage, UnknownResultIsItsNumber) {
    EXPECT_EQ(SystemMessage(static_cast<HRESULT>(0xA1234567)), "(A1234567)");
}
