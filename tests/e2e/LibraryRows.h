#pragma once

#include "tests/e2e/RemoteList.h"

#include <string>
#include <vector>

// What a library file holds, read by the job itself: for each group its name and the rows that the
// program's list must show.
struct LibraryGroup {
    std::string name;
    std::string key;
    std::vector<RemoteList::Row> rows; // name and nine values each
};

// text: UTF-8.  Throws std::runtime_error for a line that has no meaning.
[[nodiscard]] std::vector<LibraryGroup> ParseLibrary(const std::string& text);

[[nodiscard]] std::vector<std::string> GroupNames(const std::vector<LibraryGroup>& groups);

// Throws std::runtime_error when there is no such group.
[[nodiscard]] LibraryGroup& GroupNamed(std::vector<LibraryGroup>& groups, const std::string& name);
