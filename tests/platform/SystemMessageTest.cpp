// Rules: Toolkit
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

// Each of these was a bare number where the platform has no words for it.
TEST(SystemError, ResultsOfAutomationCallsHaveWordsOnEveryPlatform) {
    for (const HRESULT result :
         {RPC_E_CALL_REJECTED, RPC_E_DISCONNECTED, DISP_E_TYPEMISMATCH, DISP_E_UNKNOWNNAME,
          DISP_E_BADPARAMCOUNT, CO_E_OBJNOTCONNECTED, RPC_E_SERVERCALL_RETRYLATER,
          RPC_E_SERVER_DIED, RPC_E_SERVERFAULT, DISP_E_EXCEPTION, DISP_E_PARAMNOTOPTIONAL}) {
        const std::string number = SystemMessage(result).substr(SystemMessage(result).size() - 10);
        const std::string words = SystemError(result).Description();
        EXPECT_NE(words.find(number), std::string::npos) << words;
        EXPECT_GT(words.size(), 30U) << words;
    }
}

TEST(SystemError, KeepsNumberAndMember) {
    const RuntimeError error = SystemError(DISP_E_UNKNOWNNAME, ErrorNumber::ConnectionLost, "Body");
    EXPECT_EQ(error.Number(), ErrorNumber::ConnectionLost);
    EXPECT_EQ(error.Member(), "Body");
}
