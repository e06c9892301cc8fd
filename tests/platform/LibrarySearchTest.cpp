// Rules: Toolkit
#include "platform/LibrarySearch.h"

#include "platform/Handles.h"
#include "platform/Utf16.h"
#include "tests/platform/ScratchFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

class CurrentFolder {
public:
    explicit CurrentFolder(const fs::path& folder) : before_(fs::current_path()) {
        fs::current_path(folder);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { fs::current_path(before_); }

private:
    fs::path before_;
};

TEST(LibrarySearch, FindsNoLibraryInTheCurrentFolder) {
    const ScratchFolder folder;
    folder.Write("planted.dll", "not a library");
    const CurrentFolder current(ToUtf16(folder.Path()));
    SearchSystemLibrariesOnly();
    const ModuleHandle planted(LoadLibraryW(L"planted.dll"));
    // A file that is found and is no library fails with ERROR_BAD_EXE_FORMAT.
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(LibrarySearch, FindsTheLibrariesOfTheSystem) {
    SearchSystemLibrariesOnly();
    EXPECT_TRUE(ModuleHandle(LoadLibraryW(L"version.dll")));
}

} // namespace
