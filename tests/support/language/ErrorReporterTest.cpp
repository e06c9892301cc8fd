// Rules: Language files and control texts
#include "support/language/ErrorReporter.h"

#include "support/language/clsMultiLanguage.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeProfile.h"
#include "tests/fakes/FakePrompts.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kFile = "C:\\prog\\tntlng_de.ini";

class ErrorReporterTest : public testing::Test {
protected:
    ErrorReporterTest() { files.contents[kFile] = ""; }

    void SetText(int number, const std::string& text) {
        profile.values[{kFile, "Info", "Text." + std::to_string(number)}] = text;
    }
    std::string PromptOf(const RuntimeError& error) {
        errors.ReportError(error);
        return prompts.messages.empty() ? "nothing" : prompts.messages.back().prompt;
    }

    FakeFiles files;
    FakeProfile profile;
    FakePrompts prompts;
    FakeCodePage codePage = FakeCodePage::Western();
    clsMultiLanguage language{profile, files, codePage};
    ErrorReporter errors{prompts, language};
    const RuntimeError overflow{
        ErrorNumber::Overflow, ErrorTexts::NumberOutOfRange, {"99999", "0", "255"}, "Values"};
};

TEST_F(ErrorReporterTest, DescriptionsComeFromTheLanguageFile) {
    language.SetIniFile(kFile);
    SetText(InfoTextNumber::ErrorOccurred, "Ein Fehler ist aufgetreten:");
    SetText(InfoTextNumber::Attention, "Achtung");
    SetText(InfoTextNumber::NumberOutOfRange, "Die Zahl %1 liegt nicht zwischen %2 und %3.");
    errors.ReportError(overflow);
    ASSERT_EQ(prompts.messages.size(), 1U);
    EXPECT_EQ(prompts.messages[0],
              (FakePrompts::Message{"Ein Fehler ist aufgetreten:\r\n"
                                    "Die Zahl 99999 liegt nicht zwischen 0 und 255. (Values)",
                                    48, "Achtung"}));
}

// A language file of an earlier version, or one that somebody else has written.
TEST_F(ErrorReporterTest, DescriptionThatTheLanguageFileLacksIsEnglish) {
    language.SetIniFile(kFile);
    SetText(InfoTextNumber::ErrorOccurred, "Fehler:");
    EXPECT_EQ(PromptOf(overflow),
              "Fehler:\r\nThis number is not between 0 and 255: 99999 (Values)");
}

TEST_F(ErrorReporterTest, DescriptionWithoutALanguageIsEnglish) {
    EXPECT_EQ(PromptOf(overflow), "INI file doesn't exists \r\n"
                                  "This number is not between 0 and 255: 99999 (Values)");
}

} // namespace
