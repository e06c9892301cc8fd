#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "common/ports/ProgressView.h"

#include <memory>

// What the measured library stands on: the real ports on Windows, elsewhere files of the C++
// library and the Western code page.
class BenchPlatform {
public:
    BenchPlatform();
    ~BenchPlatform();
    BenchPlatform(const BenchPlatform&) = delete;
    BenchPlatform& operator=(const BenchPlatform&) = delete;

    [[nodiscard]] Files& FileSystem();
    [[nodiscard]] const AnsiCodePage& CodePage() const; // Western

    // The program's progress window; null where there is none.
    [[nodiscard]] ProgressView* ProgressWindow();

    // A folder for the measured files, with a separator at its end.
    [[nodiscard]] std::string Folder() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};
