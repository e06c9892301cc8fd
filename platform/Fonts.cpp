#include "platform/Fonts.h"

#include "platform/DpiScale.h"
#include "platform/UserFunction.h"

namespace {

// The metrics of the screen's own resolution, scaled by hand: for systems that cannot be asked for
// another one.
LOGFONTW ScaledMessageFont(unsigned dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = MulDiv(font.lfHeight, static_cast<int>(dpi), static_cast<int>(DpiOfScreen()));
    return font;
}

LOGFONTW DescribeFont(HFONT font) {
    LOGFONTW description{};
    GetObjectW(font, sizeof description, &description);
    return description;
}

// A device like the screen with a font selected into it.  One device serves all: a layout pass
// measures many texts, and to get a new device each time takes longer than to measure.
class FontDevice {
public:
    explicit FontDevice(HFONT font) noexcept : before_(SelectObject(Device(), font)) {}
    FontDevice(const FontDevice&) = delete;
    FontDevice& operator=(const FontDevice&) = delete;
    ~FontDevice() { SelectObject(Device(), before_); }
    [[nodiscard]] static HDC Device() noexcept {
        static const MemoryDevice device(CreateCompatibleDC(nullptr));
        return device.Get();
    }

private:
    HGDIOBJ before_;
};

} // namespace

FontHandle MessageFont(unsigned dpi) {
    using Function = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
    static const auto infoForDpi = UserFunction<Function>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    LOGFONTW font{};
    if (infoForDpi != nullptr &&
        infoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi) != FALSE)
        font = metrics.lfMessageFont;
    else
        font = ScaledMessageFont(dpi);
    return FontHandle(CreateFontIndirectW(&font));
}

FontHandle EnlargedFont(HFONT font, int percent, bool bold) {
    LOGFONTW description = DescribeFont(font);
    description.lfHeight = MulDiv(description.lfHeight, percent, 100);
    description.lfWeight = bold ? FW_BOLD : description.lfWeight;
    return FontHandle(CreateFontIndirectW(&description));
}

FontHandle UnderlinedFont(HFONT font) {
    LOGFONTW description = DescribeFont(font);
    description.lfUnderline = TRUE;
    return FontHandle(CreateFontIndirectW(&description));
}

SIZE MeasureText(HFONT font, std::wstring_view text, int maximumWidth, LongWords longWords) {
    const FontDevice selected(font);
    RECT box{0, 0, maximumWidth, 0};
    const UINT wrapped = longWords == LongWords::Break ? DT_WORDBREAK | DT_EDITCONTROL
                                                       : DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS;
    const UINT format = DT_CALCRECT | (maximumWidth > 0 ? wrapped : 0U);
    DrawTextW(FontDevice::Device(), text.data(), static_cast<int>(text.size()), &box, format);
    return {WidthOf(box), HeightOf(box)};
}

int AverageCharacterWidth(HFONT font) {
    constexpr std::wstring_view kLetters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const auto count = static_cast<LONG>(kLetters.size());
    return static_cast<int>((MeasureText(font, kLetters).cx + count / 2) / count);
}

int LineHeight(HFONT font) {
    const FontDevice selected(font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(FontDevice::Device(), &metrics);
    return metrics.tmHeight;
}
