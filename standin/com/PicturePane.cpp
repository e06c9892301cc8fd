#include "standin/com/PicturePane.h"

#include "platform/Canvas.h"
#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "shading/SurfaceShade.h"
#include "standin/com/PlateColors.h"
#include "standin/model/ObjectRows.h"

#include <algorithm>
#include <array>

namespace {

constexpr PictureMetrics kDesign{82, 52, 10, 30};
constexpr int kChipSize = 16;
constexpr int kPlateDepth = 7;               // how far a plate stands out
constexpr int kPlateSlant = 12;              // how far its upper edge is moved to the right
constexpr ColorNumber kMarkColor = 0xD06010; // a strong blue
constexpr ColorNumber kCardColor = 0xF8F6F4;
constexpr ColorNumber kCardFrame = 0xD8D2CC;
constexpr ColorNumber kTextColor = 0x302820;
constexpr ColorNumber kNoteColor = 0x807468;
constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;

RECT ToRect(const PictureRect& rect) {
    return {rect.left, rect.top, rect.left + rect.width, rect.top + rect.height};
}

ColorNumber ColorOf(const SelectedItem& item) {
    const RedGreenBlue color = PlainColor(DisplayColorOf(item).values);
    return MakeColorNumber(color.red, color.green, color.blue);
}

} // namespace

PicturePane::PicturePane(ControlHost& host, const ControlPlace& place)
    : PaintedPane(host, place), boldFont_(EnlargedFont(host.Font(), 100, true)) {}

void PicturePane::ApplyScale() {
    PaintedPane::ApplyScale();
    boldFont_ = EnlargedFont(Host().Font(), 100, true);
}

void PicturePane::SetDocument(const DocumentPtr& document) {
    document_ = document;
    Repaint();
}

int PicturePane::Px(int designPixels) const {
    return Scale().FromDesign(designPixels);
}

PictureLayout PicturePane::LayOut() const {
    RECT area{};
    GetClientRect(Handle(), &area);
    return FitPicture(
        document_,
        {Px(kDesign.tileWidth), Px(kDesign.tileHeight), Px(kDesign.gap), Px(kDesign.headerHeight)},
        WidthOf(area), HeightOf(area));
}

std::optional<POINT> PicturePane::PointOf(const SelectedItem& item) {
    const PictureLayout layout = LayOut();
    const PictureRect* place = FindInPicture(layout, item);
    if (place == nullptr)
        return std::nullopt;
    return POINT{place->left + place->width / 2, place->top + place->height / 2};
}

void PicturePane::OnMousePress(POINT point, bool append) {
    Raise(onPick, HitPicture(LayOut(), point.x, point.y), append);
}

std::size_t PicturePane::PlaceInSelection(const SelectedItem& item) const {
    const auto& items = document_->CurrentSelection().Items();
    const auto found = std::find(items.begin(), items.end(), item);
    return found == items.end() ? 0 : static_cast<std::size_t>(found - items.begin()) + 1;
}

void PicturePane::PaintInside(const Canvas& canvas, const RECT& area) const {
    const PictureLayout layout = LayOut();
    for (const PictureCard& card : layout.cards)
        PaintCard(canvas, card);
    PaintNote(canvas, area, layout);
}

void PicturePane::PaintCard(const Canvas& canvas, const PictureCard& card) const {
    const RECT bounds = ToRect(card.bounds);
    canvas.Fill(bounds, kCardColor);
    canvas.Frame(bounds, kCardFrame, 1);
    RECT text = ToRect(card.headerBounds);
    InflateRect(&text, -Px(kDesign.gap), 0);
    if (card.header.entity) {
        const int size = Px(kChipSize);
        const int top = (text.top + text.bottom - size) / 2;
        const RECT chip{text.left, top, text.left + size, top + size};
        canvas.Fill(chip, ColorOf(card.header));
        canvas.Frame(chip, kNoteColor, 1);
        text.left = chip.right + Px(7);
    }
    if (card.hiddenTiles > 0) {
        canvas.Text(std::to_string(card.hiddenTiles) + " more", text, kNoteColor,
                    kOneLine | DT_RIGHT);
        text.right -= Px(74);
    }
    canvas.SetFont(boldFont_.Get());
    canvas.Text(card.title, text, kTextColor, kOneLine);
    canvas.SetFont(Host().Font());
    for (const PictureTile& tile : card.tiles)
        PaintPlate(canvas, tile);
    if (card.header.entity)
        PaintMark(canvas, ToRect(card.headerBounds), card.header);
}

// A thin plate seen from above: its top in the exact color, its front and side darker.
void PicturePane::PaintPlate(const Canvas& canvas, const PictureTile& tile) const {
    const RECT area = ToRect(tile.bounds);
    const ColorNumber color = ColorOf(tile.item);
    const int slant = Px(kPlateSlant);
    const int depth = Px(kPlateDepth);
    const LONG right = area.right;
    const LONG edge = area.bottom - depth;
    const std::array<POINT, 4> top{{{area.left + slant, area.top},
                                    {right, area.top},
                                    {right - slant, edge},
                                    {area.left, edge}}};
    const std::array<POINT, 4> front{{{area.left, edge},
                                      {right - slant, edge},
                                      {right - slant, area.bottom},
                                      {area.left, area.bottom}}};
    const std::array<POINT, 4> side{{{right, area.top},
                                     {right, area.top + depth},
                                     {right - slant, area.bottom},
                                     {right - slant, edge}}};
    canvas.FillPolygon(front.data(), 4, Darker(color, 72));
    canvas.FillPolygon(side.data(), 4, Darker(color, 55));
    canvas.FillPolygon(top.data(), 4, color);
    canvas.Text(tile.item.entity->Name(),
                {area.left + slant / 2, area.top, right - slant / 2, edge}, ReadableOn(color),
                kOneLine | DT_CENTER);
    PaintMark(canvas, area, tile.item);
}

// A frame and the place in the selection: not the color alone tells what is selected.
void PicturePane::PaintMark(const Canvas& canvas, const RECT& area,
                            const SelectedItem& item) const {
    const std::size_t place = PlaceInSelection(item);
    if (place == 0)
        return;
    RECT frame = area;
    InflateRect(&frame, Px(4), Px(4));
    canvas.Frame(frame, kMarkColor, Px(3));
    const int size = Px(18);
    const RECT badge{frame.right - size - Px(4), frame.top, frame.right, frame.top + size};
    canvas.Fill(badge, kMarkColor);
    canvas.Text(std::to_string(place), badge, 0xFFFFFF, kOneLine | DT_CENTER);
}

void PicturePane::PaintNote(const Canvas& canvas, const RECT& area,
                            const PictureLayout& layout) const {
    std::string note;
    if (!document_)
        note = "No document is open.";
    else if (document_->Type() == DocumentType::Drawing)
        note = "A drawing has no surfaces that could be coloured.";
    else if (layout.cards.empty())
        note = "There is nothing in this document.";
    if (!note.empty())
        canvas.Text(note, area, kNoteColor, kOneLine | DT_CENTER);
    if (layout.hiddenCards == 0)
        return;
    RECT corner = area;
    InflateRect(&corner, -Px(kDesign.gap), -Px(4));
    canvas.Text(std::to_string(layout.hiddenCards) + " more in the list", corner, kNoteColor,
                DT_SINGLELINE | DT_BOTTOM | DT_RIGHT);
}
