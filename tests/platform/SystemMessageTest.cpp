// Rules: Toolkit
#include "platform/SystemMessage.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemMessage, GivesTheSystemsWordsAndTheNumberInOneLine) {
    const std::string message = SystemMessage(E_ACCESSDENIED);
    EXPECT_TRUE(message.ends_with(" (80070005)")) << message;
    EXPECT_GT(message.size(), 12U);
    EXPECT_EQ(message.find_first_of("\r\n"), std::string::npos);
}

TEST(SystemMessage, UnknownResultIsItsNumber) {
    EXPECT_EQ(SystemMessage(static_cast<HRESULT>(0xA1234567)), "(A1234567)");
}

void ExpectWordsAndNumber(HRESULT result) {
    const std::string message = SystemMessage(result);
    const std::string number = message.substr(message.size() - 10);
    const std::string words = SystemError(result).Description();
    EXPECT_NE(words.find(number), std::string::npos) << words;
    EXPECT_GT(words.size(), 30U) << words;
}

// They would be bare numbers where the platform has no words for them.
TEST(SystemError, ResultsOfAutomationCallsHaveWordsOnEveryPlatform) {
    for (const int facility : {FACILITY_RPC, FACILITY_DISPATCH})
        for (int code = 0; code < 0x200; ++code)
            ExpectWordsAndNumber(MAKE_HRESULT(SEVERITY_ERROR, facility, code));
    ExpectWordsAndNumber(CO_E_OBJNOTCONNECTED); // of the facility of all interfaces
}

TEST(SystemError, KeepsNumberAndMember) {
    const RuntimeError error = SystemError(DISP_E_UNKNOWNNAME, ErrorNumber::ConnectionLost, "Body");
    EXPECT_EQ(error.Number(), ErrorNumber::ConnectionLost);
    EXPECT_EQ(error.Member(), "Body");
}

} // namespace
