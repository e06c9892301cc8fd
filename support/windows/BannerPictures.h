#pragma once

#include "platform/Handles.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

// The banner pictures beside the program: the bitmap files of a folder in the order of the numbers
// at the end of their names, then those without a number in the order of their names.
class BannerPictures {
public:
    BannerPictures() = default;                         // none
    explicit BannerPictures(const std::string& folder); // UTF-8

    [[nodiscard]] int Count() const noexcept { return static_cast<int>(numbers_.size()); }

    // The number of each picture in its order; 0: it has none.
    [[nodiscard]] const std::vector<int>& Numbers() const noexcept { return numbers_; }

    // Loaded when it is asked for the first time.  index: from 1; null for any other number, and
    // for a file that holds no picture.
    [[nodiscard]] HBITMAP Picture(int index) const;

    // Which pictures can be clicked, in their order; until it is told, all of them.
    void SetLinks(std::vector<bool> links) { links_ = std::move(links); }
    [[nodiscard]] bool IsLink(int index) const noexcept; // from 1

private:
    std::vector<int> numbers_;
    std::vector<bool> links_;
    std::vector<std::wstring> paths_;
    mutable std::vector<std::optional<BitmapHandle>> pictures_; // nothing: not asked for yet
};
