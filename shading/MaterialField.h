#pragma once

#include "common/ColorRecord.h"
#include "shading/MaterialScene.h"

#include <cstdint>
#include <vector>

// What a field shows of a color: the scene in its material, and below it a band of the plain color.
struct MaterialPicture {
    ColorValueArray values{};
    int width = 0;          // pixels
    int height = 0;         // pixels
    int dpi = 96;           // dots per inch
    std::uint32_t line = 0; // one pixel between scene and band, 0x00RRGGBB

    bool operator==(const MaterialPicture&) const = default;
};

// Whether a field is large enough for the scene; a smaller one is the plain color alone.
[[nodiscard]] bool HasRoomForScene(const MaterialPicture& picture) noexcept;

// Makes the picture that was asked for last, and keeps what the next one has in common with it.
class MaterialField {
public:
    // Pixels row after row from the top, each 0x00RRGGBB; for as long as nothing else is asked for.
    [[nodiscard]] const std::uint32_t* PixelsOf(const MaterialPicture& picture);

private:
    [[nodiscard]] std::vector<std::uint32_t> Made(const MaterialPicture& picture);

    SceneShape shape_{0, 0};
    MaterialPicture shown_;
    std::vector<std::uint32_t> pixels_;
};
