#pragma once

#include "common/ports/Files.h"

// The Files port over the calls of Linux.  A path is the bytes that it is given as.
class LinuxFiles : public Files {
public:
    // Wildcards are characters like others.
    [[nodiscard]] std::string FindNormalFile(const std::string& path) override;

    [[nodiscard]] bool Exists(const std::string& path) override;

    // By device and number; a link is the file that it leads to.
    [[nodiscard]] bool AreSame(const std::string& path, const std::string& other) override;

    // A pipe is read to its end.  What has more than 1 GiB cannot be read.
    [[nodiscard]] std::optional<std::string> ReadWhole(const std::string& path) override;

    // True for a link that leads nowhere, too.
    [[nodiscard]] bool IsTaken(const std::string& path) override;

    [[nodiscard]] std::unique_ptr<OutputFile> Create(const std::string& path) override;

    // Both return when the change is on the medium.  Only an ordinary file is replaced, never a
    // device.
    [[nodiscard]] bool Rename(const std::string& from, const std::string& to) override;
    [[nodiscard]] bool Replace(const std::string& from, const std::string& to) override;

    // Takes over mode and, where that is allowed, owner.  Of a link it is the file it leads to that
    // is replaced.  With a backup NotSupported.
    [[nodiscard]] Exchanged Exchange(const std::string& from, const std::string& to,
                                     const std::string& backup) override;

    bool Remove(const std::string& path) override;

    // Always null: those that ask for turns run on Windows.
    [[nodiscard]] std::unique_ptr<FileTurn> TakeTurn(const std::string& path) override;
};
