#include "library/RecoveryFolder.h"

#include "common/CalendarText.h"
#include "common/FileNames.h"
#include "common/Text.h"
#include "library/WriteNewFile.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <tuple>
#include <utility>

namespace {

constexpr std::string_view kLibraryExtension = ".tnt";
constexpr std::string_view kInfoExtension = ".txt";
constexpr std::string_view kCrashPrefix = "crash"; // what CrashReports keeps here
constexpr std::size_t kLongestInfo = 100'000;      // bytes

// 0: there is no number.
int NumberIn(std::string_view text) {
    int number = 0;
    static_cast<void>(std::from_chars(text.data(), text.data() + text.size(), number));
    return number;
}

std::chrono::sys_days DayOf(int year, int month, int day) {
    return std::chrono::year(year) / month / day;
}

// Nothing: it is no time.
std::optional<std::chrono::sys_days> DayOf(const std::string& time) {
    if (time.size() < 10)
        return {};
    return DayOf(NumberIn(time.substr(0, 4)), NumberIn(time.substr(5, 2)),
                 NumberIn(time.substr(8, 2)));
}

// One line each, UTF-8.
std::string TextOf(const RecoveryInfo& info) {
    std::string text;
    for (const std::string& line :
         {info.libraryName, info.filePath, info.time, std::to_string(info.colorCount)})
        text += InOneLine(line) + kLineBreak;
    return text;
}

RecoveryInfo InfoOf(const std::string& text) {
    std::vector<std::string> lines = SplitFields(text, kLineBreak);
    lines.resize(4);
    return {lines[0], lines[1], lines[2], NumberIn(lines[3])};
}

std::string CopyOf(const std::string& id) {
    return id.substr(0, id.rfind('-'));
}

} // namespace

RecoveryFolder::RecoveryFolder(const Ports& ports, std::string path)
    : ports_(ports), path_(std::move(path)) {}

std::string RecoveryFolder::NewId() {
    return ports_.copies.Own() + "-" + std::to_string(++lastNumber_);
}

std::string RecoveryFolder::LibraryPath(const std::string& id) const {
    return path_ + "\\" + id + std::string(kLibraryExtension);
}

std::string RecoveryFolder::InfoPath(const std::string& id) const {
    return path_ + "\\" + id + std::string(kInfoExtension);
}

// The info first: without a library it is nothing, and a library without it would have no name.
bool RecoveryFolder::Write(const std::string& id, RecoveryInfo info, std::string_view content) {
    info.time = CalendarText(ports_.clock.Now());
    return ports_.folders.Make(path_) && Put(InfoPath(id), TextOf(info)) &&
           Put(LibraryPath(id), content);
}

// In one step: nothing of the old file, as its rights, is worth more than that there always is one.
bool RecoveryFolder::Put(const std::string& path, std::string_view content) {
    const std::optional<std::string> beside = WriteNewFile(
        ports_.files,
        [&](int number) { return PathWithSuffix(path, ".saving" + std::to_string(number)); },
        content);
    if (!beside || ports_.files.Replace(*beside, path))
        return beside.has_value();
    ports_.files.Remove(*beside);
    return false;
}

void RecoveryFolder::Remove(const std::string& id) {
    ports_.files.Remove(LibraryPath(id));
    ports_.files.Remove(InfoPath(id));
}

std::vector<RecoveryEntry> RecoveryFolder::Entries() {
    std::vector<RecoveryEntry> entries = All();
    std::erase_if(entries,
                  [&](const RecoveryEntry& entry) { return IsOfAnotherRunningCopy(entry.id); });
    return entries;
}

std::vector<RecoveryEntry> RecoveryFolder::All() {
    std::vector<RecoveryEntry> entries;
    if (!IsUsable())
        return entries;
    for (const std::string& name : ports_.folders.FileNamesIn(path_))
        if (HasExtension(name, kLibraryExtension)) {
            const std::string id = name.substr(0, name.size() - kLibraryExtension.size());
            entries.push_back({id, ReadInfo(id)});
        }
    std::ranges::sort(entries, [](const RecoveryEntry& one, const RecoveryEntry& other) {
        return std::tie(other.info.time, other.id) < std::tie(one.info.time, one.id);
    });
    return entries;
}

RecoveryInfo RecoveryFolder::ReadInfo(const std::string& id) {
    const std::optional<std::string> text = ports_.files.ReadWhole(InfoPath(id));
    return text && text->size() <= kLongestInfo ? InfoOf(*text) : RecoveryInfo{};
}

bool RecoveryFolder::IsOfAnotherRunningCopy(const std::string& id) const {
    const std::string copy = CopyOf(id);
    return copy != ports_.copies.Own() && ports_.copies.IsRunning(copy);
}

// A library without a time is as old as can be told: it is kept while there is room for it.
bool RecoveryFolder::IsTooOld(const RecoveryInfo& info) const {
    const std::optional<std::chrono::sys_days> day = DayOf(info.time);
    const CalendarTime now = ports_.clock.Now();
    return day && DayOf(now.year, now.month, now.day) - *day > std::chrono::days(kMostDays);
}

// What a copy that was killed has left of its work.
void RecoveryFolder::RemoveRemains() {
    for (const std::string& name : ports_.folders.FileNamesIn(path_)) {
        if (name.starts_with(kCrashPrefix))
            continue;
        const std::string id = name.substr(0, name.find('.'));
        const bool isWhole =
            HasExtension(name, kLibraryExtension) ||
            (HasExtension(name, kInfoExtension) && ports_.files.Exists(LibraryPath(id)));
        if (!isWhole && !ports_.copies.IsRunning(CopyOf(id)))
            ports_.files.Remove(path_ + "\\" + name);
    }
}

void RecoveryFolder::Tidy(const std::vector<std::string>& staying) {
    if (!IsUsable())
        return;
    RemoveRemains();
    int count = 0;
    for (const RecoveryEntry& entry : All()) {
        if (std::ranges::find(staying, entry.id) != staying.end())
            continue;
        ++count;
        if (!IsOfAnotherRunningCopy(entry.id) && (count > kMostLibraries || IsTooOld(entry.info)))
            Remove(entry.id);
    }
}
