// Rules: SolidWorks session
#include "tests/fakes/Transcripts.h"

#include <gtest/gtest.h>
#include <set>

namespace {

// All tests of the program, as the files and sections that may hold their transcripts.
std::set<std::pair<std::filesystem::path, std::string>> AllTests() {
    std::set<std::pair<std::filesystem::path, std::string>> tests;
    const testing::UnitTest& program = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < program.total_test_suite_count(); ++suite) {
        const testing::TestSuite& tested = *program.GetTestSuite(suite);
        for (int index = 0; index < tested.total_test_count(); ++index)
            tests.emplace(TranscriptFile::PathOf(tested.name()), tested.GetTestInfo(index)->name());
    }
    return tests;
}

TEST(Transcripts, EachBelongsToATestAndIsNotEmpty) {
    const auto tests = AllTests();
    std::size_t found = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TranscriptFile::Folder())) {
        const TranscriptFile file(entry.path());
        for (const auto& [section, lines] : file.Sections()) {
            const std::string test = section.substr(0, section.find(": "));
            EXPECT_TRUE(tests.contains({entry.path(), test})) << entry.path() << " " << section;
            EXPECT_NE(lines, "") << entry.path() << " " << section;
            ++found;
        }
    }
    EXPECT_GT(found, 0U);
}

} // namespace
