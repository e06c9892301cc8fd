// Rules: Console program
#include "converter/linux/LinuxFiles.h"

#include "library/SafeFileWriter.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class LinuxFilesTest : public testing::Test {
protected:
    LinuxFilesTest() { fs::create_directories(folder); }
    ~LinuxFilesTest() override { fs::remove_all(folder); }

    [[nodiscard]] std::string Path(const std::string& name) const {
        return (folder / name).string();
    }
    std::string Make(const std::string& name, const std::string& content) const {
        std::ofstream(Path(name), std::ios::binary) << content;
        return Path(name);
    }
    [[nodiscard]] static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] static fs::perms ModeOf(const std::string& path) {
        return fs::status(path).permissions();
    }
    [[nodiscard]] std::size_t Count() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    const fs::path folder =
        fs::temp_directory_path() / ("Grüne Dateien " + std::to_string(getpid()));
    LinuxFiles files;
};

TEST_F(LinuxFilesTest, WholeContentIsRead) {
    const std::string large(3'000'000, 'x');
    EXPECT_EQ(files.ReadWhole(Make("large", large)), large);
    EXPECT_EQ(files.ReadWhole(Make("empty", "")), "");
    EXPECT_EQ(files.ReadWhole(Make("zero", std::string("a\0b", 3))), std::string("a\0b", 3));
    EXPECT_FALSE(files.ReadWhole(Path("none")).has_value());
    EXPECT_FALSE(files.ReadWhole(folder.string()).has_value());
}

TEST_F(LinuxFilesTest, MoreThanAGibibyteIsNotRead) {
    const std::string path = Make("huge", "");
    fs::resize_file(path, (std::uintmax_t{1} << 30U) + 1); // without blocks on the disk
    EXPECT_FALSE(files.ReadWhole(path).has_value());
}

TEST_F(LinuxFilesTest, OneFileIsTheSameByEachOfItsNames) {
    const std::string path = Make("a", "x");
    fs::create_symlink(path, Path("link"));
    EXPECT_TRUE(files.AreSame(path, folder.string() + "/./a"));
    EXPECT_TRUE(files.AreSame(path, Path("link")));
    EXPECT_FALSE(files.AreSame(path, Make("b", "x")));
    EXPECT_FALSE(files.AreSame(path, Path("none")));
    EXPECT_FALSE(files.AreSame(Path("none"), Path("none")));
}

TEST_F(LinuxFilesTest, PipeIsReadToItsEnd) {
    const std::string path = Path("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const int child = fork();
    if (child == 0) {
        std::ofstream(path) << "through";
        _exit(0);
    }
    EXPECT_EQ(files.ReadWhole(path), "through");
}

TEST_F(LinuxFilesTest, FolderIsNoFileButHasItsName) {
    EXPECT_FALSE(files.Exists(folder.string()));
    EXPECT_TRUE(files.IsTaken(folder.string()));
    EXPECT_FALSE(files.IsTaken(Path("none")));
    fs::create_symlink("nowhere", Path("link"));
    EXPECT_TRUE(files.IsTaken(Path("link")));
    EXPECT_FALSE(files.Exists(Path("link")));
    EXPECT_EQ(files.FindNormalFile(Make("a b", "")), "a b");
    EXPECT_EQ(files.FindNormalFile(Path("*")), "");
}

TEST_F(LinuxFilesTest, NewFileIsMadeWhereNothingIs) {
    const auto file = files.Create(Path("new"));
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(file->Write("abc") && file->Flush() && file->Close());
    EXPECT_FALSE(file->Close());
    EXPECT_EQ(Content(Path("new")), "abc");
    EXPECT_EQ(files.Create(Path("new")), nullptr);
    EXPECT_EQ(files.Create(Path("none/new")), nullptr);
}

TEST_F(LinuxFilesTest, FileThatCannotBeMadeIsReported) {
    fs::create_symlink("/dev/full", Path("full"));
    EXPECT_EQ(files.Create(Path("full")), nullptr);
    EXPECT_FALSE(SafeFileWriter(files).WriteNew("/proc/none", "abc"));
}

TEST_F(LinuxFilesTest, RenameTakesAFreeNameAlone) {
    const std::string from = Make("from", "new");
    const std::string taken = Make("taken", "old");
    EXPECT_FALSE(files.Rename(from, taken));
    EXPECT_EQ(Content(taken), "old");
    fs::create_symlink("nowhere", Path("link"));
    EXPECT_FALSE(files.Rename(from, Path("link")));
    EXPECT_TRUE(files.Rename(from, Path("free")));
    EXPECT_EQ(Content(Path("free")), "new");
    EXPECT_FALSE(files.Rename(from, Path("other")));
}

TEST_F(LinuxFilesTest, ReplaceTakesThePlaceOfAnOrdinaryFileAlone) {
    const std::string to = Make("to", "old");
    EXPECT_TRUE(files.Replace(Make("from", "new"), to));
    EXPECT_EQ(Content(to), "new");
    EXPECT_FALSE(files.Replace(Make("from", "new"), folder.string()));
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files.Replace(Path("from"), Path("pipe")));
    EXPECT_EQ(files.Exchange(Path("from"), Path("pipe"), ""), Exchanged::Unchanged);
    EXPECT_TRUE(fs::is_fifo(Path("pipe")));
}

TEST_F(LinuxFilesTest, ReadOnlyFileStays) {
    const std::string to = Make("to", "old");
    fs::permissions(to, fs::perms::owner_read);
    EXPECT_FALSE(files.Replace(Make("from", "new"), to));
    EXPECT_EQ(files.Exchange(Path("from"), to, ""), Exchanged::Unchanged);
    EXPECT_FALSE(files.Rename(to, Path("other")));
    EXPECT_EQ(Content(to), "old");
}

TEST_F(LinuxFilesTest, ExchangeTakesOverTheModeOfTheFile) {
    const std::string to = Make("to", "old");
    const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    fs::permissions(to, mode);
    EXPECT_EQ(files.Exchange(Make("from", "new"), to, ""), Exchanged::Done);
    EXPECT_EQ(Content(to), "new");
    EXPECT_EQ(ModeOf(to), mode);
    EXPECT_FALSE(fs::exists(Path("from")));
    EXPECT_EQ(files.Exchange(Make("from", "new"), Path("none"), ""), Exchanged::Unchanged);
    EXPECT_EQ(files.Exchange(Path("from"), to, Path("backup")), Exchanged::NotSupported);
}

TEST_F(LinuxFilesTest, LinkStaysAndTheFileItLeadsToIsReplaced) {
    fs::create_directory(Path("elsewhere"));
    const std::string real = Make("elsewhere/real", "old");
    fs::create_symlink("elsewhere/real", Path("link"));
    EXPECT_EQ(SafeFileWriter(files).Write(Path("link"), "new", false), Exchanged::Done);
    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_EQ(Content(real), "new");
    EXPECT_EQ(Count(), 2U);
}

TEST_F(LinuxFilesTest, SavingLeavesTheBackupAndNothingElse) {
    const std::string path = Make("a.tnt", "old");
    EXPECT_EQ(SafeFileWriter(files).Write(path, "new", true), Exchanged::Done);
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(Content(path + ".bak"), "old");
    EXPECT_EQ(Count(), 2U);
    EXPECT_FALSE(SafeFileWriter(files).WriteNew(path, "newer"));
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(Count(), 2U);
}

TEST_F(LinuxFilesTest, NobodyWaitsForATurn) {
    EXPECT_EQ(files.TakeTurn(Path("a.tnt")), nullptr);
}

} // namespace
