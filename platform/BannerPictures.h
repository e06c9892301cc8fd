#pragma once

#include "platform/Handles.h"

#include <string>
#include <vector>

// The banner pictures beside the program: the bitmap files of a folder in the order of their names.
class BannerPictures {
public:
    BannerPictures() = default;                         // none
    explicit BannerPictures(const std::string& folder); // UTF-8

    [[nodiscard]] int Count() const noexcept { return static_cast<int>(pictures_.size()); }

    // index: from 1; null for any other number.
    [[nodiscard]] HBITMAP Picture(int index) const noexcept;

private:
    std::vector<BitmapHandle> pictures_;
};
