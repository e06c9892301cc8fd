#include "app/CrashReports.h"

#include "common/FileNames.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

constexpr std::string_view kPrefix = "crash ";
constexpr std::string_view kNew = ".new";
constexpr std::size_t kMostReports = 10;

std::string WithoutExtension(const std::string& name) {
    return name.substr(0, name.rfind('.'));
}

} // namespace

std::string CrashReports::TakeNew() {
    if (folder_.empty())
        return {};
    std::string latest;
    for (const std::string& name : folders_.FileNamesIn(folder_)) {
        if (!name.starts_with(kPrefix) || !HasExtension(name, kNew))
            continue;
        const std::string path = folder_ + "\\" + WithoutExtension(name) + ".txt";
        if (files_.Replace(folder_ + "\\" + name, path))
            latest = std::max(latest, path);
    }
    RemoveOldOnes();
    return latest;
}

void CrashReports::RemoveOldOnes() {
    const std::vector<std::string> names = folders_.FileNamesIn(folder_);
    std::set<std::string> crashes; // by their names without extension, which begin with the time
    for (const std::string& name : names)
        if (name.starts_with(kPrefix))
            crashes.insert(WithoutExtension(name));
    while (crashes.size() > kMostReports) {
        for (const std::string& name : names)
            if (WithoutExtension(name) == *crashes.begin())
                files_.Remove(folder_ + "\\" + name);
        crashes.erase(crashes.begin());
    }
}
