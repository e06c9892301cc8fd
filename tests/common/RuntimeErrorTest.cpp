// Rules: Language files and control texts
#include "common/RuntimeError.h"

#include "tests/fakes/FakeTexts.h"

#include <gtest/gtest.h>

namespace {

constexpr ErrorText kText{InfoTextNumber::NotANumber, "No number: %1"};
constexpr ErrorText kPlace{InfoTextNumber::FileAndLine, "in %1"};

// A language that has one text.
class OneText : public InfoTexts {
public:
    std::string GetInfoText(std::int32_t) override { return "unknown infotext"; }
    std::string GetInfoTextOr(std::int32_t number, const std::string& builtIn) override {
        return number == kText.number ? "Keine Zahl: %1" : builtIn;
    }
};

TEST(RuntimeErrorTest, SpeaksTheActiveLanguageAndTheBuiltInWordsWithoutOne) {
    OneText german;
    const RuntimeError error(ErrorNumber::TypeMismatch, kText, {"abc"});
    EXPECT_EQ(error.Description(german), "Keine Zahl: abc");
    EXPECT_EQ(error.Description(), "No number: abc");
    EXPECT_STREQ(error.what(), "No number: abc");
}

TEST(RuntimeErrorTest, WordsFromElsewhereStayAsTheyAre) {
    FakeTexts texts;
    const RuntimeError error(ErrorNumber::Automation, "The part is 100 %1", "EditRebuild");
    EXPECT_EQ(error.Description(texts), "The part is 100 %1");
    EXPECT_EQ(error.Description(), "The part is 100 %1");
    EXPECT_EQ(error.Member(), "EditRebuild");
}

TEST(RuntimeErrorTest, SaysWhereItHappenedOnALineOfItsOwn) {
    OneText german;
    const auto place = [] { return ErrorSentence{kPlace, {"a.tnt"}}; };
    try {
        NamingPlace(place, [] { throw RuntimeError(13, kText, {"x"}); });
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 13);
        EXPECT_EQ(error.Description(german), "Keine Zahl: x\r\nin a.tnt");
        EXPECT_EQ(error.Description(), "No number: x\r\nin a.tnt");
    }
}

TEST(RuntimeErrorTest, MemberIsNamedOnceByTheOneThatIsNearest) {
    const auto memberOf = [](const std::string& own) {
        try {
            NamingMember("outer", [&] { throw RuntimeError(13, kText, {"x"}, own); });
        } catch (const RuntimeError& error) {
            return error.Member() + ": " + error.Description();
        }
        return std::string();
    };
    EXPECT_EQ(memberOf(""), "outer: No number: x");
    EXPECT_EQ(memberOf("inner"), "inner: No number: x");
}

} // namespace
