// Rules: Language files and control texts
// A walk that reads a section once gives what the platform gives text by text, whatever the file.
#include "platform/Utf16.h"
#include "platform/Win32PrivateProfile.h"
#include "tests/fakes/Dose.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/SourceFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t kBufferSize = 256; // as the language files are read

struct Question {
    std::string section;
    std::string key;
    std::string fallback;
};

class ProfileWalkTest : public testing::Test {
protected:
    // As one text after the other, and as in a walk.
    void ExpectSame(const std::string& file, const std::vector<Question>& questions) {
        std::vector<std::string> single;
        for (const Question& asked : questions)
            single.push_back(Ask(asked, file));
        const ProfileWalk walk(profile);
        for (std::size_t index = 0; index < questions.size(); ++index) {
            const Question& asked = questions[index];
            ASSERT_EQ(Ask(asked, file), single[index])
                << "[" << asked.section << "] " << asked.key << " or \"" << asked.fallback << "\"";
            ++compared;
        }
    }
    std::string Ask(const Question& asked, const std::string& file) {
        return profile.GetString(asked.section, asked.key, asked.fallback, file, kBufferSize);
    }

    ScratchFolder folder;
    Win32PrivateProfile profile;
    int compared = 0;
};

std::string BytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Every key of the file, in its own section and in the two others.
std::vector<Question> QuestionsAbout(const std::string& content) {
    std::vector<Question> questions;
    for (std::size_t start = 0; start < content.size();) {
        const std::size_t end = std::min(content.find('\n', start), content.size());
        const std::string line = content.substr(start, end - start);
        if (const std::size_t equals = line.find('='); equals != std::string::npos)
            for (const char* section : {"frmMain", "frmAbout", "Info"})
                questions.push_back({section, line.substr(0, equals), "otherwise"});
        start = end + 1;
    }
    return questions;
}

// Of a file of any bytes: keys as they stand before its signs of equality, and none.
std::vector<Question> QuestionsAboutAny(const std::string& content) {
    std::vector<Question> questions = QuestionsAbout(content);
    std::erase_if(questions, [](const Question& asked) { // no program asks so
        return std::ranges::any_of(asked.key, [](unsigned char sign) { return sign < ' '; });
    });
    for (const char* section : {"frmMain", "Info", "Position", "none", ""})
        for (const char* key : {"x", "Text.1", "t.New.Caption", "none", ""})
            questions.push_back({section, key, "otherwise"});
    return questions;
}

// What files of odd parts are made of, beside two long ones.
constexpr std::array kOddParts = {"[frmMain]",
                                  "[FRMMAIN]",
                                  "[ frmMain ]",
                                  "[frmMain",
                                  "frmMain]",
                                  "[Info]",
                                  "[]",
                                  "[frmMain] ; x",
                                  "\r\n",
                                  "\r\n",
                                  "\r\n",
                                  "\r\n",
                                  "\n",
                                  "\r",
                                  "\t",
                                  " ",
                                  "a",
                                  "b",
                                  "A",
                                  "a.Caption",
                                  "=",
                                  "=",
                                  "=",
                                  "==",
                                  ";",
                                  "#",
                                  "\"",
                                  "'",
                                  "\"x\"",
                                  "'x'",
                                  " x ",
                                  "&Datei ...",
                                  "Gr\xFCn",
                                  "\xDF",
                                  "\x80",
                                  "%s",
                                  "\\",
                                  "0",
                                  "-1",
                                  "\x1A",
                                  "a=1\r\n",
                                  "b=2\r\n",
                                  "a=\"1\r\n",
                                  "a= 3 \r\n",
                                  "a =4\r\n",
                                  ";a=5\r\n",
                                  "a b=6\r\n",
                                  "a b",
                                  "a B.c=\"7\r\n",
                                  "[frmMain]\r\na=1\r\n",
                                  "[Info]\r\nb=2\r\n"};

std::string OddPart(std::size_t number) {
    if (number < kOddParts.size())
        return kOddParts.at(number);
    return number == kOddParts.size() ? std::string(254, 'y') : std::string(256, 'z');
}

std::string OddContent(std::mt19937& random) {
    std::string content;
    for (std::size_t count = random() % 40; count > 0; --count)
        content += OddPart(random() % (kOddParts.size() + 2));
    return content;
}

std::vector<Question> OddQuestions() {
    std::vector<Question> questions;
    for (const char* section : {"frmMain", "Info", "none", ""})
        for (const char* key : {"a", "b", "A", "a.Caption", "a b", "a  b", "A b.c", "a ", " a",
                                "none", ";a", "x", "0", "="})
            for (const char* fallback : {"", "otherwise", "blank at the end ", "\"quoted\""})
                questions.push_back({section, key, fallback});
    return questions;
}

TEST_F(ProfileWalkTest, WalkGivesWhatSingleReadsGiveOfTheShippedLanguageFiles) {
    for (const char* code : {"de", "us"}) {
        const std::string path =
            SourceFile(std::string("resources/language/tntlng_") + code + ".ini");
        ExpectSame(path, QuestionsAbout(BytesOf(path)));
    }
    EXPECT_GT(compared, 1000);
}

TEST_F(ProfileWalkTest, WalkGivesWhatSingleReadsGiveOfEveryFileThatFuzzingKept) {
    int files = 0;
    const std::filesystem::path corpora = ToUtf16(SourceFile("tests/fuzz/corpus"));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(corpora)) {
        if (!entry.is_regular_file())
            continue;
        const std::string path = ToUtf8(entry.path().native());
        SCOPED_TRACE(path);
        ExpectSame(path, QuestionsAboutAny(BytesOf(path)));
        ++files;
    }
    EXPECT_GT(files, 15);
}

// Quotes, blanks, comments, keys and sections that are there twice, lines without an end, bytes
// beyond ASCII, long values, in any order.
TEST_F(ProfileWalkTest, WalkGivesWhatSingleReadsGiveOfFilesOfOddParts) {
    const std::vector<Question> questions = OddQuestions();
    std::mt19937 random(20'261'122);
    const int files = Dose("TNT_FILES", 50);
    for (int number = 0; number < files; ++number) {
        const std::string content = OddContent(random);
        const std::string name = std::to_string(number) + ".ini";
        folder.Write(name, content);
        SCOPED_TRACE(testing::Message() << "file: " << testing::PrintToString(content));
        ExpectSame(folder.File(name), questions);
        if (HasFatalFailure())
            return;
    }
    EXPECT_EQ(compared, files * static_cast<int>(questions.size()));
}

TEST_F(ProfileWalkTest, SectionThatIsTooLongForOneReadingIsReadTextByText) {
    std::string content = "[frmMain]\r\n";
    for (int key = 0; key < 4000; ++key)
        content += "key" + std::to_string(key) + "=value " + std::to_string(key) + "\r\n";
    folder.Write("long.ini", content);
    ExpectSame(folder.File("long.ini"), {{"frmMain", "key0", ""}, {"frmMain", "key3999", ""}});
    EXPECT_EQ(compared, 2);
}

TEST_F(ProfileWalkTest, EditedFileHoldsAtTheNextWalk) {
    folder.Write("a.ini", "[frmMain]\r\na=1\r\n");
    const Question asked{"frmMain", "a", ""};
    const auto walked = [&] {
        const ProfileWalk walk(profile);
        return Ask(asked, folder.File("a.ini"));
    };
    EXPECT_EQ(walked(), "1");
    folder.Write("a.ini", "[frmMain]\r\na=other\r\n");
    EXPECT_EQ(walked(), "other");
}

} // namespace
