#include "tests/e2e/CallLog.h"

#include "common/Text.h"
#include "platform/Utf16.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

std::vector<std::string> CallLog::Lines() const {
    std::ifstream file{std::filesystem::path(ToUtf16(path_))};
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> CallLog::NewLines() const {
    std::vector<std::string> lines = Lines();
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(marked_));
    return lines;
}

std::vector<std::string> CallLog::NewLinesWith(const std::string& text) const {
    std::vector<std::string> lines = NewLines();
    std::erase_if(lines,
                  [&](const std::string& line) { return line.find(text) == std::string::npos; });
    return lines;
}

std::vector<double> NumbersOf(const std::string& line) {
    std::vector<double> numbers;
    const std::size_t start = line.find('[');
    const std::size_t end = line.find(']');
    if (start == std::string::npos || end == std::string::npos)
        return numbers;
    for (const std::string& field : SplitFields(line.substr(start + 1, end - start - 1), ", "))
        numbers.push_back(std::strtod(field.c_str(), nullptr));
    return numbers;
}
