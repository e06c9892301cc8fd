#include "standin/com/DetailsPane.h"

#include "platform/Canvas.h"
#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "shading/SurfaceShade.h"
#include "standin/model/CallText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::array<const char*, kColorValueCount> kValueNames{
    "Red",      "Green",     "Blue",         "Ambient", "Diffuse",
    "Specular", "Shininess", "Transparency", "Emission"};

constexpr int kMargin = 14;
constexpr ColorNumber kTextColor = 0x302820;
constexpr ColorNumber kNoteColor = 0x807468;
constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;

// 0.502 (128): as the interface has it, and in the units of a color library.
std::string ValueText(double value, std::size_t index) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%.3f  (%.0f)", value,
                  value * MaximumOfColorValue(index));
    return text.data();
}

} // namespace

DetailsPane::DetailsPane(ControlHost& host, const ControlPlace& place)
    : PaintedPane(host, place), boldFont_(EnlargedFont(host.Font(), 115, true)) {}

void DetailsPane::ApplyScale() {
    PaintedPane::ApplyScale();
    boldFont_ = EnlargedFont(Host().Font(), 115, true);
}

int DetailsPane::Px(int designPixels) const {
    return Scale().FromDesign(designPixels);
}

void DetailsPane::SetDocument(const DocumentPtr& document) {
    document_ = document;
    Refresh();
}

void DetailsPane::Refresh() {
    const Shown shown = CurrentlyShown();
    std::string text = shown.title + "\r\n" + shown.source;
    if (shown.hasColor)
        text += "\r\n" + CallText(ToAutomationValue(shown.color.values));
    if (text != Text())
        SetText(text);
    Repaint();
}

DetailsPane::Shown DetailsPane::CurrentlyShown() const {
    if (!document_)
        return {};
    const auto& items = document_->CurrentSelection().Items();
    if (items.empty()) {
        const MaterialOverride& color = document_->Color();
        return {document_->Title(),
                color ? "Colour of the document" : "The document has no colour of its own",
                {color.value_or(kUnsetMaterial), ColorLevel::Part},
                color.has_value()};
    }
    const SelectedItem& item = items.back();
    const EntityKind kind = item.entity->Kind();
    if (kind == EntityKind::Edge)
        return {RowName(item), "An edge carries no colour", {}, false};
    if (!CarriesColor(kind))
        return {RowName(item),
                std::string("A ") + EntityKindName(kind) + " carries no colour",
                {},
                false};
    const DisplayColor color = DisplayColorOf(item);
    const std::string own = item.entity->Color() ? "set" : "unset";
    return {RowName(item),
            "Own colour: " + own + ".  Seen: the colour of the " + ColorLevelName(color.level),
            color, true};
}

void DetailsPane::PaintInside(const Canvas& canvas, const RECT& area) const {
    const Shown shown = CurrentlyShown();
    RECT inside = area;
    InflateRect(&inside, -Px(kMargin), -Px(10));
    RECT line{inside.left, inside.top, inside.right, inside.top + Px(24)};
    canvas.SetFont(boldFont_.Get());
    canvas.Text(shown.title, line, kTextColor, kOneLine);
    canvas.SetFont(Host().Font());
    OffsetRect(&line, 0, Px(24));
    canvas.Text(shown.source, line, kNoteColor, kOneLine);
    inside.top = line.bottom + Px(6);
    if (!shown.hasColor)
        return;
    PaintBall(canvas, inside, shown.color.values);
    inside.left += HeightOf(inside) + Px(18);
    PaintValues(canvas, inside, shown.color.values);
}

void DetailsPane::PaintBall(const Canvas& canvas, const RECT& area,
                            const MaterialValues& values) const {
    const ColorNumber window = GetSysColor(COLOR_WINDOW);
    const RedGreenBlue ground = SplitColorNumber(window);
    const auto background =
        static_cast<std::uint32_t>(ground.red << 16 | ground.green << 8 | ground.blue);
    const int size = std::max(HeightOf(area), 1);
    canvas.Pixels({area.left, area.top, area.left + size, area.top + size},
                  ShadedBall(values, size, background).data());
}

// Three columns of three.
void DetailsPane::PaintValues(const Canvas& canvas, const RECT& area,
                              const MaterialValues& values) const {
    const int width = WidthOf(area) / 3;
    const int height = HeightOf(area) / 3;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int left = area.left + static_cast<int>(i / 3) * width;
        const int top = area.top + static_cast<int>(i % 3) * height;
        const int half = height / 2;
        canvas.Text(kValueNames[i], {left, top, left + width, top + half}, kNoteColor, kOneLine);
        canvas.Text(ValueText(values[i], i), {left, top + half, left + width, top + 2 * half},
                    kTextColor, kOneLine);
    }
}
