#pragma once

#include "common/ports/CalendarClock.h"
#include "common/ports/Files.h"
#include "common/ports/Folders.h"
#include "common/ports/RunningCopies.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What is told about a kept library.
struct RecoveryInfo {
    std::string libraryName{};
    std::string filePath{}; // of the library's own file; empty: it was never saved
    std::string time{};     // "YYYY-MM-DD hh:mm:ss" of the local clock
    int colorCount = 0;
};

// A library that is kept.
struct RecoveryEntry {
    std::string id{}; // its files' name without extension
    RecoveryInfo info{};
};

// The folder in which libraries are kept that differ from their files.  Each is a library file,
// "COPY-NUMBER.tnt" of the copy of the program that keeps it, with a text of the same name beside
// it. Whatever happens while one is written, the old or the new content is there whole.
class RecoveryFolder {
public:
    static constexpr int kMostLibraries = 20;
    static constexpr int kMostDays = 30;

    struct Ports {
        Files& files;
        Folders& folders;
        const RunningCopies& copies;
        const CalendarClock& clock;
    };

    // path: without a backslash at its end; empty: nothing can be kept.
    RecoveryFolder(const Ports& ports, std::string path);

    [[nodiscard]] bool IsUsable() const noexcept { return !path_.empty(); }

    // A name for another library of this copy of the program.
    [[nodiscard]] std::string NewId();

    // Writes a library, or writes it anew.  The info's time is set here.  False: it could not be
    // written; what was kept under the id stays.  May be called by another thread, one at a time.
    [[nodiscard]] bool Write(const std::string& id, RecoveryInfo info, std::string_view content);

    void Remove(const std::string& id);

    // What there is to recover, the latest first: all but those of other copies that run.
    [[nodiscard]] std::vector<RecoveryEntry> Entries();

    // Of an entry.
    [[nodiscard]] std::string LibraryPath(const std::string& id) const;

    // Removes remains, what is too old and, the oldest first, what is too much; never what another
    // copy that runs has kept, nor what is named here, which takes no room from the others.
    void Tidy(const std::vector<std::string>& staying);

private:
    [[nodiscard]] bool Put(const std::string& path, std::string_view content);
    void RemoveRemains();
    [[nodiscard]] std::string InfoPath(const std::string& id) const;
    [[nodiscard]] std::vector<RecoveryEntry> All();
    [[nodiscard]] RecoveryInfo ReadInfo(const std::string& id);
    [[nodiscard]] bool IsOfAnotherRunningCopy(const std::string& id) const;
    [[nodiscard]] bool IsTooOld(const RecoveryInfo& info) const;

    Ports ports_;
    std::string path_;
    int lastNumber_ = 0;
};
