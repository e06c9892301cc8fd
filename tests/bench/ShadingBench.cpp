#include "shading/MaterialField.h"
#include "tests/bench/library/Timing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

// Measures the preview of a material while one of its values moves, beside filling the same pixels
// with one color, in the same run and in turn:
//
//     shading_bench [FRAMES]
namespace {

struct Size {
    int width;
    int height;
    int dpi;
};

constexpr Size kSizes[] = {{200, 200, 96}, {148, 102, 96}, {298, 206, 192}};

// Each value in turn goes through its range.
MaterialPicture PictureOf(int frame, const Size& size) {
    MaterialPicture picture{.values = {200, 150, 60, 60, 80, 60, 40, 30, 5},
                            .width = size.width,
                            .height = size.height,
                            .dpi = size.dpi};
    const auto value = static_cast<std::size_t>(frame / 101) % kColorValueCount;
    picture.values.at(value) = static_cast<std::int16_t>(frame % 101);
    return picture;
}

void Measure(const Size& size, int frames) {
    MaterialField field;
    std::vector<std::uint32_t> plain(static_cast<std::size_t>(size.width * size.height));
    Times first(WallMilliseconds);
    Times fill(WallMilliseconds);
    Times shade(WallMilliseconds);
    std::uint64_t seen = 0;
    first.Measure([&] { seen += *field.PixelsOf(PictureOf(frames, size)); });
    for (int frame = 0; frame < frames; ++frame) {
        const MaterialPicture picture = PictureOf(frame, size);
        fill.Measure([&] { std::ranges::fill(plain, static_cast<std::uint32_t>(frame)); });
        shade.Measure([&] { seen += *field.PixelsOf(picture); });
        seen += plain.back();
    }
    if (seen == 0)
        throw std::runtime_error("Nothing was painted");
    std::printf("| %d x %d | %.3f | %.2f | %.2f | %.0f | %.1f |\n", size.width, size.height,
                fill.Median(), shade.Median(), shade.Longest(), shade.Median() / fill.Median(),
                first.Median());
}

} // namespace

int main(int count, char** arguments) {
    const int frames = count > 1 ? std::atoi(arguments[1]) : 1818;
    if (frames < 1) {
        std::printf("usage: shading_bench [FRAMES]\n");
        return 2;
    }
    std::printf("| a frame of | filled, ms | shaded, ms | longest, ms | ratio | first, ms |\n"
                "| --- | --- | --- | --- | --- | --- |\n");
    try {
        for (const Size& size : kSizes)
            Measure(size, frames);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
