#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

// A file that is being written.  Destroying it without Close discards nothing by itself.
class OutputFile {
public:
    virtual ~OutputFile() = default;

    // Each returns false when the platform reports a failure (disk full, lost connection, ...).
    [[nodiscard]] virtual bool Write(std::string_view bytes) = 0;
    [[nodiscard]] virtual bool Flush() = 0; // down to the medium
    [[nodiscard]] virtual bool Close() = 0;
};

// The file system.  Paths are UTF-8; contents are bytes.  Every failure is a result, never an
// exception.
class Files {
public:
    virtual ~Files() = default;

    // The name of the first normal file (no directory, not hidden, not system) that matches the
    // path; its last component may hold wildcards.  Empty when there is none or on any error.
    [[nodiscard]] virtual std::string FindNormalFile(const std::string& path) = 0;

    // True for a file of any attributes under exactly this name; false for a directory.
    [[nodiscard]] virtual bool Exists(const std::string& path) = 0;

    // The whole content; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> ReadWhole(const std::string& path) = 0;

    // A new empty file; an existing one is emptied.  Null when it cannot be made.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> Create(const std::string& path) = 0;

    // Gives the file another name in one step; a file that has that name already is replaced. False
    // also when either is marked read-only.
    [[nodiscard]] virtual bool Replace(const std::string& from, const std::string& to) = 0;

    virtual bool Remove(const std::string& path) = 0;
};
