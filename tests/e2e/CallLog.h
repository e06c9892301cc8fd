#pragma once

#include <string>
#include <vector>

// The stand-in's record of the calls that it received.
class CallLog {
public:
    // path: UTF-8.
    explicit CallLog(std::string path) : path_(std::move(path)) {}

    // What is recorded from now on is new.
    void Mark() { marked_ = Lines().size(); }
    [[nodiscard]] std::vector<std::string> NewLines() const;

    // The new lines that contain the text.
    [[nodiscard]] std::vector<std::string> NewLinesWith(const std::string& text) const;

private:
    [[nodiscard]] std::vector<std::string> Lines() const;

    std::string path_;
    std::size_t marked_ = 0;
};

// The numbers between the brackets of "... = [0.5, 1, 0.25]".
[[nodiscard]] std::vector<double> NumbersOf(const std::string& line);
