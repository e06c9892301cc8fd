#pragma once

#include "common/ports/Files.h"

// The Files port over the platform's Unicode file functions; paths of more than 260 characters
// work.
class Win32Files : public Files {
public:
    // FindFirstFileExW.  A path that ends in a separator, and the path of a folder, find nothing.
    [[nodiscard]] std::string FindNormalFile(const std::string& path) override;

    [[nodiscard]] bool Exists(const std::string& path) override;

    // By the numbers that volumes give to files; some give none.
    [[nodiscard]] bool AreSame(const std::string& path, const std::string& other) override;

    // A file that another program is writing, and one of more than 1 GiB, cannot be read.
    [[nodiscard]] std::optional<std::string> ReadWhole(const std::string& path) override;

    [[nodiscard]] bool IsTaken(const std::string& path) override;

    // Nobody else can open the file before it is closed.
    [[nodiscard]] std::unique_ptr<OutputFile> Create(const std::string& path) override;

    // MoveFileExW; both return when the change is on the medium.
    [[nodiscard]] bool Rename(const std::string& from, const std::string& to) override;
    [[nodiscard]] bool Replace(const std::string& from, const std::string& to) override;

    // ReplaceFileW.  Access rights that the user may not give to a file are no failure.
    [[nodiscard]] Exchanged Exchange(const std::string& from, const std::string& to,
                                     const std::string& backup) override;

    bool Remove(const std::string& path) override;

    // An empty file of the name with ".turn" behind it is there for as long.
    [[nodiscard]] std::unique_ptr<FileTurn> TakeTurn(const std::string& path) override;
};
