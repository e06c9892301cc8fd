#include "tests/e2e/LibraryRows.h"

#include "common/Text.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr const char* kValueSeparator = "\xC3\xB7"; // the division sign

// "E#Gold=0DG1:Gold" and nine values.
void AddColor(std::vector<LibraryGroup>& groups, const std::string& record) {
    const std::size_t equals = record.find('=');
    const std::size_t colon = record.find(':', equals);
    const std::string key = record.substr(equals + 1, colon - equals - 1);
    RemoteList::Row row = SplitFields(record.substr(colon + 1), kValueSeparator);
    row.front() = record.substr(2, equals - 2); // the second name is not shown
    const auto group = std::find_if(groups.begin(), groups.end(),
                                    [&](const LibraryGroup& each) { return each.key == key; });
    if (group == groups.end())
        throw std::runtime_error("Color without a group: " + record);
    group->rows.push_back(std::move(row));
}

void AddRecord(std::vector<LibraryGroup>& groups, const std::string& record) {
    const std::size_t equals = record.find('=');
    if (record.starts_with("G#"))
        groups.push_back({record.substr(2, equals - 2), record.substr(equals + 1), {}});
    else if (record.starts_with("E#"))
        AddColor(groups, record);
    else if (!record.starts_with("D#"))
        throw std::runtime_error("Unknown record: " + record);
}

} // namespace

std::vector<LibraryGroup> ParseLibrary(const std::string& text) {
    std::vector<LibraryGroup> groups;
    for (const std::string& line : SplitFields(text, "\r\n"))
        if (line.size() > 2)
            AddRecord(groups, line.substr(1, line.size() - 2)); // without its quotes
    return groups;
}

std::vector<std::string> GroupNames(const std::vector<LibraryGroup>& groups) {
    std::vector<std::string> names;
    for (const LibraryGroup& group : groups)
        names.push_back(group.name);
    return names;
}

LibraryGroup& GroupNamed(std::vector<LibraryGroup>& groups, const std::string& name) {
    for (LibraryGroup& group : groups)
        if (group.name == name)
            return group;
    throw std::runtime_error("No group " + name);
}
