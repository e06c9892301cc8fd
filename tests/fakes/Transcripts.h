#pragma once

#include <filesystem>
#include <map>
#include <string>

// Compares what was done, one call or one step a line, with what tests/golden/transcripts keeps for
// the running test: a file for each test suite, in it a section for each test.  part: tells several
// transcripts of one test apart.
//
// With TNT_WRITE_TRANSCRIPTS set, the lines are kept instead and the test counts as skipped; that
// is what tools/make-transcripts.sh does.
void ExpectTranscript(const std::string& lines, const std::string& part = {});

// What the transcripts of one test suite must be, by section.
class TranscriptFile {
public:
    explicit TranscriptFile(std::filesystem::path path);

    // Where all of them stand.
    [[nodiscard]] static std::filesystem::path Folder();
    // The file of a suite; suites that run with several parameters share it.
    [[nodiscard]] static std::filesystem::path PathOf(const std::string& suite);

    // By test and part: "Test", "Test: part".
    [[nodiscard]] const std::map<std::string, std::string>& Sections() const { return sections_; }
    // Empty when there is none.
    [[nodiscard]] std::string Section(const std::string& name) const;
    // Keeps it in the file.
    void Write(const std::string& name, const std::string& lines);

private:
    std::filesystem::path path_;
    std::map<std::string, std::string> sections_;
};
