#include "tests/fakes/Transcripts.h"

#include "tests/fakes/SourceFolder.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace {

constexpr const char* kSection = "## ";

std::string NameOf(const testing::TestInfo& test, const std::string& part) {
    return test.name() + (part.empty() ? "" : ": " + part);
}

} // namespace

TranscriptFile::TranscriptFile(std::filesystem::path path) : path_(std::move(path)) {
    std::ifstream file(path_);
    std::string* section = nullptr;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(kSection))
            section = &sections_[line.substr(std::string(kSection).size())];
        else if (section != nullptr && !line.empty())
            *section += line + "\n";
    }
}

std::filesystem::path TranscriptFile::Folder() {
    return std::filesystem::path(SourceFolder()) / "tests" / "golden" / "transcripts";
}

std::filesystem::path TranscriptFile::PathOf(const std::string& suite) {
    return Folder() / (suite.substr(suite.find('/') + 1) + ".txt");
}

std::string TranscriptFile::Section(const std::string& name) const {
    const auto found = sections_.find(name);
    return found == sections_.end() ? std::string() : found->second;
}

void TranscriptFile::Write(const std::string& name, const std::string& lines) {
    sections_[name] = lines;
    std::filesystem::create_directories(path_.parent_path());
    std::ofstream file(path_, std::ios::binary);
    for (const auto& [section, kept] : sections_)
        file << kSection << section << "\n" << kept << "\n";
}

void ExpectTranscript(const std::string& lines, const std::string& part) {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    TranscriptFile file(TranscriptFile::PathOf(test.test_suite_name()));
    const std::string name = NameOf(test, part);
    if (std::getenv("TNT_WRITE_TRANSCRIPTS") != nullptr) {
        file.Write(name, lines);
        GTEST_SKIP() << "The transcript is written anew: nothing was compared";
    }
    EXPECT_EQ(lines, file.Section(name))
        << "Where the new lines are meant: tools/make-transcripts.sh";
}
