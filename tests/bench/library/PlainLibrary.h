#pragma once

#include "common/ColorRecord.h"
#include "common/ports/Files.h"

#include <cstdint>
#include <string>
#include <vector>

// A made library as nothing but arrays, and the least that any reader or writer of its file has to
// do: the floors that the library is measured against.
struct PlainColor {
    std::string name; // 16 characters, Western code page
    int group = 0;    // from 0
    ColorValueArray values{};
};

struct PlainLibrary {
    std::vector<std::string> groups; // names
    std::vector<PlainColor> colors;  // the groups' colors mixed
};

[[nodiscard]] PlainLibrary MakePlainLibrary(int colors, int groups);

// Reads the file, splits its records and converts the nine numbers of each; gives their sum.
[[nodiscard]] std::int64_t ReadPlainly(Files& files, const std::string& path);

// Formats the library and writes it with the same steps as a library file: down to the medium.
void WritePlainly(Files& files, const std::string& path, const PlainLibrary& library);
