#pragma once

#include "convert/LibraryPalette.h"
#include "converter/ExitCode.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

// What the program is asked for.  All texts are UTF-8.
struct ConverterArguments {
    enum class Task { Convert, List, Check };

    Task task = Task::Convert;
    std::string in;                        // path
    std::string out;                       // path; empty: the task writes no file
    std::optional<std::string> name;       // of the library or palette
    ColorMaterial values = kUsualMaterial; // of colors that have none
    std::optional<unsigned> codePage;      // nothing: the usual one
    bool force = false;                    // an existing file is replaced
};

// What is answered without looking at any file: help, version, what is wrong with the arguments.
struct ConverterReply {
    ExitCode exitCode = ExitCode::Done;
    std::string text; // whole lines
};

// arguments: without the program's own name.
[[nodiscard]] std::variant<ConverterArguments, ConverterReply>
ParseConverterArguments(const std::vector<std::string>& arguments, const std::string& version);
