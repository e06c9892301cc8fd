// Rules: Auxiliary windows
#include "support/windows/BannerPictures.h"

#include "platform/PlatformPath.h"
#include "tests/platform/ScratchFolder.h"

#include <gtest/gtest.h>

namespace {

// A picture of one white pixel.
std::string Bitmap() {
    constexpr unsigned char kBytes[] = {'B', 'M', 58, 0, 0, 0, 0, 0, 0, 0,   54,  0,   0, 0,  40,
                                        0,   0,   0,  1, 0, 0, 0, 1, 0, 0,   0,   1,   0, 24, 0,
                                        0,   0,   0,  0, 4, 0, 0, 0, 0, 0,   0,   0,   0, 0,  0,
                                        0,   0,   0,  0, 0, 0, 0, 0, 0, 255, 255, 255, 0};
    return {std::begin(kBytes), std::end(kBytes)};
}

TEST(BannerPictures, AreTheBitmapsOfTheFolderInTheOrderOfTheirNames) {
    const ScratchFolder folder;
    for (const char* name : {"b.bmp", "a.bmp", "banners.txt"})
        folder.Write(name, Bitmap());
    const BannerPictures pictures(folder.Path());
    EXPECT_EQ(pictures.Count(), 2);
    EXPECT_NE(pictures.Picture(1), nullptr);
    EXPECT_NE(pictures.Picture(2), nullptr);
    EXPECT_EQ(pictures.Picture(0), nullptr);
    EXPECT_EQ(pictures.Picture(3), nullptr);
}

TEST(BannerPictures, FoldersAndOtherExtensionsAreNone) {
    const ScratchFolder folder;
    for (const char* name : {"1.BMP", "2.bmpx", "4.bmp"})
        folder.Write(name, Bitmap());
    ASSERT_NE(CreateDirectoryW(ToPlatformPath(folder.File("3.bmp")).c_str(), nullptr), FALSE);
    EXPECT_EQ(BannerPictures(folder.Path()).Numbers(), (std::vector<int>{1, 4}));
}

TEST(BannerPictures, NumbersCountAsNumbersAndPicturesWithoutOneComeLast) {
    const ScratchFolder folder;
    for (const char* name : {"banner10.bmp", "spring.bmp", "banner2.bmp", "banner1.bmp"})
        folder.Write(name, Bitmap());
    EXPECT_EQ(BannerPictures(folder.Path()).Numbers(), (std::vector<int>{1, 2, 10, 0}));
}

TEST(BannerPictures, OneThatCannotBeLoadedKeepsItsPlace) {
    const ScratchFolder folder;
    folder.Write("1.bmp", Bitmap());
    folder.Write("2.bmp", "no picture");
    folder.Write("3.bmp", Bitmap());
    const BannerPictures pictures(folder.Path());
    EXPECT_EQ(pictures.Count(), 3);
    EXPECT_EQ(pictures.Picture(2), nullptr);
    EXPECT_NE(pictures.Picture(3), nullptr);
}

TEST(BannerPictures, IsLoadedWhenItIsAskedForTheFirstTimeAndThenStays) {
    const ScratchFolder folder;
    folder.Write("1.bmp", "no picture yet");
    const BannerPictures pictures(folder.Path());
    folder.Write("1.bmp", Bitmap());
    const HBITMAP picture = pictures.Picture(1);
    EXPECT_NE(picture, nullptr);
    folder.Write("1.bmp", "no picture any more");
    EXPECT_EQ(pictures.Picture(1), picture);
}

TEST(BannerPictures, FolderMayHaveAPathBeyondTheUsualLimit) {
    const ScratchFolder folder;
    std::string path = folder.Path();
    for (const char letter : {'a', 'b', 'c'}) {
        path += "\\" + std::string(90, letter);
        ASSERT_NE(CreateDirectoryW(ToPlatformPath(path).c_str(), nullptr), FALSE);
    }
    folder.Write("1.bmp", Bitmap());
    ASSERT_NE(MoveFileW(ToPlatformPath(folder.File("1.bmp")).c_str(),
                        ToPlatformPath(path + "\\1.bmp").c_str()),
              FALSE);
    const BannerPictures pictures(path);
    EXPECT_EQ(pictures.Count(), 1);
    EXPECT_NE(pictures.Picture(1), nullptr);
}

TEST(BannerPictures, FolderThatIsNotThereHasNone) {
    EXPECT_EQ(BannerPictures("C:\\no\\such\\folder").Count(), 0);
}

} // namespace
