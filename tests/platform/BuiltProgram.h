#pragma once

#include "platform/Utf16.h"

#include <cstdlib>
#include <filesystem>
#include <string>

// A program of the build that the tests belong to: where the build puts it, or in TNT_PROGRAMS
// where programs and tests were taken elsewhere.
[[nodiscard]] inline std::filesystem::path BuiltProgram(const std::string& name = "tnt4swx.exe") {
    const char* elsewhere = std::getenv("TNT_PROGRAMS");
    const std::string folder = elsewhere != nullptr ? elsewhere : TNT_PROGRAM_FOLDER;
    return std::filesystem::path(ToUtf16(folder + "/" + name)).make_preferred();
}
