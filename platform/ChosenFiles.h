#pragma once

#include <string>
#include <string_view>
#include <vector>

// The files, as full names in UTF-8, that a dialog for several has left in its buffer: one full
// name, or a folder and names in it, each followed by a NUL, and one more NUL at the end.
[[nodiscard]] std::vector<std::string> ChosenFiles(std::wstring_view buffer);
