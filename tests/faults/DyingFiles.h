#pragma once

#include "platform/Win32Files.h"

#include <memory>
#include <string>

// The real file system for a process that is killed before its n-th step; a write is killed in its
// middle, and so is an exchange of files that leaves a backup.
class DyingFiles : public Files {
public:
    static constexpr unsigned kExitCode = 99; // of the killed process

    explicit DyingFiles(int lastStep) : stepsLeft_(lastStep) {}

    std::string FindNormalFile(const std::string& path) override {
        return files_.FindNormalFile(path);
    }
    bool Exists(const std::string& path) override { return files_.Exists(path); }
    bool AreSame(const std::string& path, const std::string& other) override {
        return files_.AreSame(path, other);
    }
    std::optional<std::string> ReadWhole(const std::string& path) override {
        return files_.ReadWhole(path);
    }
    bool IsTaken(const std::string& path) override { return files_.IsTaken(path); }
    std::unique_ptr<OutputFile> Create(const std::string& path) override;
    bool Rename(const std::string& from, const std::string& to) override;
    Exchanged Exchange(const std::string& from, const std::string& to,
                       const std::string& backup) override;
    bool Replace(const std::string& from, const std::string& to) override;
    bool Remove(const std::string& path) override;
    std::unique_ptr<FileTurn> TakeTurn(const std::string& path) override {
        return files_.TakeTurn(path);
    }

    // True: the process is to be killed now.
    [[nodiscard]] bool IsLastStep() noexcept { return stepsLeft_-- == 1; }
    [[noreturn]] static void Die();

private:
    Win32Files files_;
    int stepsLeft_;
};
