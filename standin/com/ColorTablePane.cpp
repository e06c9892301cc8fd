#include "standin/com/ColorTablePane.h"

#include "platform/Canvas.h"
#include "platform/DpiScale.h"

namespace {

constexpr int kColumns = 2;
constexpr int kMargin = 12;
constexpr int kTitleHeight = 24;
constexpr ColorNumber kTextColor = 0x302820;
constexpr ColorNumber kNoteColor = 0x807468;
constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;

std::string TextOf(const NamedColor& entry) {
    const RedGreenBlue color = SplitColorNumber(entry.color);
    return entry.name + ": " + std::to_string(color.red) + ", " + std::to_string(color.green) +
           ", " + std::to_string(color.blue);
}

} // namespace

void ColorTablePane::SetDocument(const DocumentPtr& document) {
    document_ = document;
    Refresh();
}

void ColorTablePane::Refresh() {
    std::string text;
    if (document_)
        for (const NamedColor& entry : document_->Colors().Colors())
            text += TextOf(entry) + "\r\n";
    if (text != Text())
        SetText(text);
    Repaint();
}

RECT ColorTablePane::CellOf(const RECT& area, int index, int count) const {
    const int rows = (count + kColumns - 1) / kColumns;
    const int width = WidthOf(area) / kColumns;
    const int height = HeightOf(area) / rows;
    const int left = area.left + index / rows * width;
    const int top = area.top + index % rows * height;
    return {left, top, left + width, top + height};
}

void ColorTablePane::PaintInside(const Canvas& canvas, const RECT& area) const {
    RECT inside = area;
    InflateRect(&inside, -Scale().FromDesign(kMargin), -Scale().FromDesign(8));
    RECT title = inside;
    title.bottom = title.top + Scale().FromDesign(kTitleHeight);
    canvas.Text("Standard colours", title, kNoteColor, kOneLine);
    if (!document_)
        return;
    inside.top = title.bottom;
    const auto& colors = document_->Colors().Colors();
    for (std::size_t i = 0; i < colors.size(); ++i)
        PaintEntry(canvas, CellOf(inside, static_cast<int>(i), static_cast<int>(colors.size())),
                   colors[i]);
}

void ColorTablePane::PaintEntry(const Canvas& canvas, const RECT& cell,
                                const NamedColor& entry) const {
    const int gap = Scale().FromDesign(3);
    const RECT chip{cell.left, cell.top + gap, cell.left + Scale().FromDesign(30),
                    cell.bottom - gap};
    canvas.Fill(chip, entry.color);
    canvas.Frame(chip, kNoteColor, 1);
    RECT text = cell;
    text.left = chip.right + Scale().FromDesign(8);
    canvas.Text(entry.name, text, kTextColor, kOneLine);
}
