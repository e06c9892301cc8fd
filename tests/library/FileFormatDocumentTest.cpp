// Rules: Library files
#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fakes/SourceFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

constexpr const char* kFile = "C:\\example.tnt";

// The worked example of docs/file-format.md, as the file that it describes.
std::string ExampleBytes(const FakeCodePage& codePage) {
    std::ifstream document(SourceFolder() + "/docs/file-format.md");
    std::string example;
    bool inside = false;
    for (std::string line; std::getline(document, line);) {
        if (inside && line == "```")
            break;
        if (inside)
            example += line + "\r\n";
        inside = inside || line == "```tnt";
    }
    return codePage.Encode(example).bytes;
}

class FileFormatDocument : public testing::Test {
protected:
    FileFormatDocument() {
        with.files.contents[kFile] = ExampleBytes(with.codePage);
        loaded = with.libraryFiles.FileReadColorValues(kFile);
    }
    [[nodiscard]] ColorRecord Color(int index) const { return with.library.Colors().At(index); }

    LibraryOnFakes with;
    bool loaded = false;
};

TEST_F(FileFormatDocument, ExampleIsTheLibraryThatTheTextDescribes) {
    ASSERT_TRUE(loaded);
    EXPECT_EQ(with.library.Tree().At("0D").text, "Werkstatt");
    ASSERT_EQ(with.library.GetGroupInMainnode("0D").size(), 3U);
    EXPECT_EQ(with.library.Tree().At("0DG2").text, "Grüntöne");
    EXPECT_EQ(with.library.GetColorCountInGroup("0DG1"), 2);
    EXPECT_EQ(with.library.GetColorCountInGroup("0DG2"), 1);
    EXPECT_EQ(with.library.GetColorCountInGroup("0DG3"), 0);
    EXPECT_EQ(Color(2).name, "RAL 6018 \"Gelbgrün\"");
    EXPECT_EQ(Color(2).altName, "RAL 6018");
    EXPECT_EQ(Color(3).values, (ColorValueArray{120, 122, 124, 30, 70, 10, 5, 0, 0}));
}

TEST_F(FileFormatDocument, ExampleIsWrittenBackByteForByte) {
    ASSERT_TRUE(loaded);
    const std::string before = with.files.contents[kFile];
    with.settings.createBackups = false;
    ASSERT_TRUE(with.libraryFiles.FileWriteColorValues(kFile, "0D").isWritten);
    EXPECT_EQ(with.files.contents[kFile], before);
}

} // namespace
