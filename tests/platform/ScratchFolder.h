#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// A new empty folder for one test, deleted with everything in it afterwards.
class ScratchFolder {
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    // UTF-8, with backslashes.
    [[nodiscard]] std::string Path() const;
    [[nodiscard]] std::string File(std::string_view name) const;

    // Not by the functions under test.
    void Write(std::string_view name, std::string_view bytes) const;
    [[nodiscard]] std::string Read(std::string_view name) const;
    void SetAttributes(std::string_view name, unsigned long attributes) const;

private:
    std::filesystem::path folder_;
};
