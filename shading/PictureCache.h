#pragma once

#include "common/ColorRecord.h"
#include "shading/SurfaceShade.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

// A picture of a color: a lit ball, or a field with a margin and a border that fit its size.
struct ColorPicture {
    ColorValueArray values{};
    int size = 0; // pixels
    bool isBall = false;
    std::uint32_t border = 0; // of a field, 0x00RRGGBB

    auto operator<=>(const ColorPicture&) const = default;
};

// The pictures that were asked for last, as many as a screen may show at once.
class PictureCache {
public:
    static constexpr std::size_t kMost = 512;

    // size * size pixels from the top, each 0xAARRGGBB with the alpha multiplied in; for as long as
    // nothing else is asked for.
    [[nodiscard]] const std::uint32_t* PixelsOf(const ColorPicture& picture);

    [[nodiscard]] std::size_t Count() const noexcept { return pictures_.size(); }

private:
    [[nodiscard]] std::vector<std::uint32_t> Made(const ColorPicture& picture);

    BallShape ball_{0, Lighting::TwoLamps}; // of the size that was asked for last
    std::map<ColorPicture, std::vector<std::uint32_t>> pictures_;
};
