#include "standin/com/PlateColors.h"

ColorNumber ReadableOn(ColorNumber background) noexcept {
    const RedGreenBlue color = SplitColorNumber(background);
    const int brightness = color.red * 299 + color.green * 587 + color.blue * 114;
    return brightness > 140'000 ? 0x202020 : 0xFFFFFF;
}

ColorNumber Darker(ColorNumber color, int percent) noexcept {
    const RedGreenBlue parts = SplitColorNumber(color);
    return MakeColorNumber(parts.red * percent / 100, parts.green * percent / 100,
                           parts.blue * percent / 100);
}
