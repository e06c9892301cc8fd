#include "platform/DpiScale.h"

#include "platform/UserFunction.h"

#include <cmath>

namespace {

constexpr double kTwipsPerInch = 1440;

} // namespace

int DpiScale::FromDesign(int designPixels) const noexcept {
    return MulDiv(designPixels, dpi_, kDesignDpi);
}

float DpiScale::ToTwips(int pixels) const noexcept {
    return static_cast<float>(pixels * kTwipsPerInch / dpi_);
}

int DpiScale::ToPixels(float twips) const noexcept {
    return static_cast<int>(std::lround(static_cast<double>(twips) * dpi_ / kTwipsPerInch));
}

TwipsRect DpiScale::ToTwips(const RECT& pixels) const noexcept {
    return {ToTwips(static_cast<int>(pixels.left)), ToTwips(static_cast<int>(pixels.top)),
            ToTwips(WidthOf(pixels)), ToTwips(HeightOf(pixels))};
}

RECT DpiScale::ToPixels(const TwipsRect& twips) const noexcept {
    const int left = ToPixels(twips.left);
    const int top = ToPixels(twips.top);
    return {left, top, left + ToPixels(twips.width), top + ToPixels(twips.height)};
}

unsigned DpiOfWindow(HWND window) noexcept {
    using Function = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = UserFunction<Function>("GetDpiForWindow");
    const unsigned dpi = getDpiForWindow != nullptr ? getDpiForWindow(window) : 0;
    return dpi != 0 ? dpi : DpiOfScreen();
}

unsigned DpiOfScreen() noexcept {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<unsigned>(dpi) : kDesignDpi;
}
