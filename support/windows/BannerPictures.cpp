#include "support/windows/BannerPictures.h"

#include "common/FileNames.h"
#include "platform/FileSearch.h"
#include "platform/PlatformPath.h"
#include "platform/Utf16.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace {

struct BitmapFile {
    int number; // 0: none
    std::wstring name;
};

bool ComesBefore(const BitmapFile& one, const BitmapFile& other) {
    const auto rank = [](const BitmapFile& file) {
        return file.number != 0 ? file.number : std::numeric_limits<int>::max();
    };
    return std::pair(rank(one), one.name) < std::pair(rank(other), other.name);
}

std::vector<BitmapFile> BitmapFiles(const std::string& folder) {
    std::vector<BitmapFile> files;
    ForEachFound(folder + "\\*.bmp", [&](const WIN32_FIND_DATAW& found) {
        // The search also finds longer extensions by their short names.
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (!isFolder && HasExtension(ToUtf8(found.cFileName), ".bmp"))
            files.push_back({NumberOfFile(ToUtf8(found.cFileName)), found.cFileName});
        return true;
    });
    std::ranges::sort(files, ComesBefore);
    return files;
}

BitmapHandle LoadBitmapFile(const std::wstring& path) {
    return BitmapHandle(static_cast<HBITMAP>(LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0,
                                                        LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
}

// The system loads pictures from paths of the usual length only: for a moment a longer one has a
// copy that it can load.
BitmapHandle LoadPicture(const std::wstring& path) {
    if (path.size() < MAX_PATH)
        return LoadBitmapFile(path);
    std::array<wchar_t, MAX_PATH> folder{};
    std::array<wchar_t, MAX_PATH> copy{};
    if (GetTempPathW(MAX_PATH, folder.data()) == 0 ||
        GetTempFileNameW(folder.data(), L"tnt", 0, copy.data()) == 0)
        return {};
    BitmapHandle picture;
    if (CopyFileW(path.c_str(), copy.data(), FALSE) != FALSE)
        picture = LoadBitmapFile(copy.data());
    DeleteFileW(copy.data());
    return picture;
}

} // namespace

BannerPictures::BannerPictures(const std::string& folder) {
    for (const BitmapFile& bitmap : BitmapFiles(folder)) {
        numbers_.push_back(bitmap.number);
        paths_.push_back(ToPlatformPath(folder + "\\" + ToUtf8(bitmap.name)));
    }
    pictures_.resize(paths_.size());
}

// One that cannot be loaded keeps its place, so that the others keep their addresses.
HBITMAP BannerPictures::Picture(int index) const {
    if (index < 1 || index > Count())
        return nullptr;
    const auto place = static_cast<std::size_t>(index) - 1;
    if (!pictures_[place])
        pictures_[place] = LoadPicture(paths_[place]);
    return pictures_[place]->Get();
}

bool BannerPictures::IsLink(int index) const noexcept {
    return index < 1 || index > static_cast<int>(links_.size()) ||
           links_[static_cast<std::size_t>(index) - 1];
}
