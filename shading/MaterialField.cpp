#include "shading/MaterialField.h"

#include <algorithm>

namespace {

constexpr int kDesignDpi = 96;
constexpr int kLine = 1;         // pixel
constexpr int kLeastSide = 72;   // of a field with a scene, at that resolution
constexpr int kLeastBand = 14;   // at that resolution
constexpr int kFieldsOfBand = 6; // the field is that many times as high as the band

int FromDesign(int pixels, const MaterialPicture& picture) noexcept {
    return pixels * picture.dpi / kDesignDpi;
}

int HeightOfBand(const MaterialPicture& picture) noexcept {
    return std::max(picture.height / kFieldsOfBand, FromDesign(kLeastBand, picture));
}

std::size_t PixelsOfRows(int rows, const MaterialPicture& picture) noexcept {
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(picture.width);
}

} // namespace

bool HasRoomForScene(const MaterialPicture& picture) noexcept {
    return std::min(picture.width, picture.height) >= FromDesign(kLeastSide, picture);
}

const std::uint32_t* MaterialField::PixelsOf(const MaterialPicture& picture) {
    if (pixels_.empty() || shown_ != picture) {
        pixels_ = Made(picture);
        shown_ = picture;
    }
    return pixels_.data();
}

std::vector<std::uint32_t> MaterialField::Made(const MaterialPicture& picture) {
    std::vector<std::uint32_t> pixels;
    if (HasRoomForScene(picture)) {
        const int height = picture.height - HeightOfBand(picture) - kLine;
        if (shape_.Width() != picture.width || shape_.Height() != height)
            shape_ = SceneShape(picture.width, height);
        pixels = ScenePicture(picture.values, shape_);
        pixels.resize(pixels.size() + PixelsOfRows(kLine, picture), picture.line);
    }
    const RedGreenBlue plain = PlainColor(SharesOf(picture.values));
    pixels.resize(PixelsOfRows(picture.height, picture),
                  static_cast<std::uint32_t>(plain.red << 16 | plain.green << 8 | plain.blue));
    return pixels;
}
