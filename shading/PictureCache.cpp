#include "shading/PictureCache.h"

#include <algorithm>

namespace {

constexpr int kSizeOfOne = 16; // pixels of a field with a border of one pixel

} // namespace

std::vector<std::uint32_t> PictureCache::Made(const ColorPicture& picture) {
    if (picture.isBall) {
        if (ball_.Size() != picture.size)
            ball_ = BallShape(picture.size, Lighting::TwoLamps);
        return BallPicture(picture.values, ball_);
    }
    const int one = std::max(picture.size / kSizeOfOne, 1);
    return FieldPicture(
        picture.values,
        {.size = picture.size, .margin = one, .border = one, .color = picture.border});
}

// What is full starts anew: the rows in sight are there again after one page.
const std::uint32_t* PictureCache::PixelsOf(const ColorPicture& picture) {
    const auto found = pictures_.find(picture);
    if (found != pictures_.end())
        return found->second.data();
    if (pictures_.size() == kMost)
        pictures_.clear();
    return pictures_.emplace(picture, Made(picture)).first->second.data();
}
