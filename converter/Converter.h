#pragma once

#include "common/ports/Files.h"
#include "converter/ConverterArguments.h"
#include "converter/Console.h"
#include "converter/ReadColors.h"
#include "converter/WrittenColors.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

// What the program asks its system for.
struct ConverterPlatform {
    Files& files;
    Console& console;
    // By number, the usual one for none; null: there is no such code page here.
    std::function<std::unique_ptr<AnsiCodePage>(std::optional<unsigned>)> codePageOf;
};

// Does what a command line asks for: one file is read, and written, listed or told about.
class Converter {
public:
    Converter(ConverterPlatform platform, ConverterArguments asked)
        : platform_(std::move(platform)), asked_(std::move(asked)) {}

    // Tells on standard error what was left out or changed, and why it was not done.
    [[nodiscard]] ExitCode Run();

private:
    [[nodiscard]] ExitCode Convert();
    [[nodiscard]] ExitCode Describe();
    [[nodiscard]] std::optional<ReadColors> Read();
    [[nodiscard]] std::optional<ReadColors> Understand(const std::string& bytes);
    [[nodiscard]] WrittenColors Compose(ReadColors& colors, const FileKind& kind);
    [[nodiscard]] ExitCode Write(const WrittenColors& written);
    [[nodiscard]] Exchanged WriteNew(const std::string& bytes);
    [[nodiscard]] Exchanged Replace(const std::string& bytes);
    [[nodiscard]] ExitCode Refuse(ExitCode exitCode, const std::string& about,
                                  const std::string& why);
    void Tell(const std::string& path, const Notes& notes);
    [[nodiscard]] ExitCode Verdict() const noexcept {
        return isLossy_ ? ExitCode::Lossy : ExitCode::Done;
    }

    ConverterPlatform platform_;
    ConverterArguments asked_;
    std::unique_ptr<AnsiCodePage> codePage_;
    bool isLossy_ = false;
};

// The whole program.  arguments: UTF-8, without the program's own name.
[[nodiscard]] ExitCode RunConverter(const std::vector<std::string>& arguments,
                                    const std::string& version, const ConverterPlatform& platform);
