#include "mainwindow/panes/MainEditor.h"

#include "platform/Fonts.h"
#include "platform/Form.h"
#include "resources/controls.h"

#include <algorithm>

namespace {

struct ValueDesign {
    const char* labelName;
    int labelId;
    const char* caption; // built in, German
};

constexpr std::array<ValueDesign, kColorValueCount> kValues = {{
    {"lblRed", IDC_lblRed, "Rot"},
    {"lblGreen", IDC_lblGreen, "Grün"},
    {"lblBlue", IDC_lblBlue, "Blau"},
    {"lblAmbient", IDC_lblAmbient, "Umgebung"},
    {"lblDiffuse", IDC_lblDiffuse, "Diffus"},
    {"lblSpecular", IDC_lblSpecular, "Spiegelung"},
    {"lblShininess", IDC_lblShininess, "Glanz"},
    {"lblTransparency", IDC_lblTransparency, "Transparenz"},
    {"lblEmission", IDC_lblEmission, "Emission"},
}};

// Design pixels.
constexpr int kMargin = 12;
constexpr int kSwatchWidth = 150;
constexpr int kGap = 6;
constexpr int kColumnGap = 20;
constexpr int kBoxWidth = 42;
constexpr int kSmallestSlider = 80;
constexpr int kWidestCell = 340;
constexpr int kWidestLabel = 150; // beside it box and slider find their place
constexpr int kFirstLine = 22;    // below the frame's caption
constexpr int kBoxPadding = 4;    // of a text box, above and below its line together

constexpr int kMostColumns = 2; // more would leave the large swatch no height
constexpr int kValueCount = static_cast<int>(kColorValueCount);

} // namespace

MainEditor::MainEditor(Form& form)
    : form_(form),
      frame_(&form.Add<Frame>(ControlPlace{"fraShowColor", IDC_fraShowColor, form.Handle()})),
      colorName_(&form.Add<NameLabel>(
          ControlPlace{"lblActiveColorName", IDC_lblActiveColorName, frame_->Handle()})),
      largeSwatch_(
          &form.Add<Swatch>(ControlPlace{"lblActiveColor", IDC_lblActiveColor, frame_->Handle()})) {
    frame_->SetText("Aktive Farbe");
    for (std::size_t index = 0; index < kColorValueCount; ++index)
        AddRow(index);
    smallSwatch_ = &form.Add<Swatch>(
        ControlPlace{"lblActiveColorSmall", IDC_lblActiveColorSmall, form.Handle()});
}

// The label stands directly before its text box: it names the box for screen readers, and its tool
// tip, which tells the range, the slider.
void MainEditor::AddRow(std::size_t index) {
    const ValueDesign& design = kValues.at(index);
    const HWND parent = frame_->Handle();
    const int offset = static_cast<int>(index);
    Row& row = rows_.at(index);
    row.label = &form_.Add<Label>(ControlPlace{design.labelName, design.labelId, parent});
    row.box = &form_.Add<TextBox>(
        ControlPlace{"txtActiveColor", IDC_txtActiveColor + offset, parent}, DWORD{ES_RIGHT});
    row.slider =
        &form_.Add<Slider>(ControlPlace{"sldActiveColor", IDC_sldActiveColor + offset, parent},
                           MaximumOfColorValue(index));
    row.label->SetText(design.caption);
    row.slider->SetText(design.caption);
    row.label->Announces(*row.slider);
    row.box->SetText("0");
}

void MainEditor::Attach(EditorEvents& events) {
    for (std::size_t index = 0; index < kColorValueCount; ++index) {
        const Row& row = rows_.at(index);
        row.box->onChange = [&events, index](const std::string& text) {
            events.ValueTextChanged(index, text);
        };
        row.box->mayType = [&events](char32_t character) {
            return events.IsValueCharacter(character);
        };
        row.box->onFocus = [&events, index] { events.ValueFocused(index); };
        row.slider->onMove = [&events, index](int position) {
            events.SliderMoved(index, position);
        };
    }
}

void MainEditor::OnSwatchDoubleClick(const std::function<void()>& action) {
    largeSwatch_->onDoubleClick = action;
    smallSwatch_->onDoubleClick = action;
}

void MainEditor::SetColorName(const std::string& name) {
    colorName_->SetText(name);
}

void MainEditor::SetValueText(std::size_t index, const std::string& text) {
    rows_.at(index).box->SetText(text);
}

void MainEditor::SelectWholeValueText(std::size_t index) {
    rows_.at(index).box->SelectAll();
}

void MainEditor::SetSlider(std::size_t index, int position) {
    rows_.at(index).slider->SetPosition(position);
}

void MainEditor::SetLargeSwatch(ColorNumber background) {
    largeSwatch_->SetColors(background, 0);
}

void MainEditor::SetMaterial(const ColorValueArray& values) {
    if (preview_.SetValues(values) && largeSwatch_->HasPicture())
        largeSwatch_->Repaint();
}

void MainEditor::ShowMaterial(bool shown) {
    if (shown)
        largeSwatch_->PaintPicture([this](const Canvas& canvas, const RECT& area) {
            preview_.Paint(canvas, area, form_.Scale().Dpi());
        });
    else
        largeSwatch_->PaintPicture({});
}

void MainEditor::SetSmallSwatch(ColorNumber background, ColorNumber text) {
    smallSwatch_->SetColors(background, text);
}

void MainEditor::SetSmallSwatchCaption(const std::string& caption) {
    smallSwatch_->SetText(caption);
}

int MainEditor::Design(int designPixels) const {
    return form_.Scale().FromDesign(designPixels);
}

int MainEditor::BoxHeight() const {
    return LineHeight(form_.Font()) + 2 * GetSystemMetrics(SM_CYEDGE) + Design(kBoxPadding);
}

int MainEditor::LabelWidth() const {
    LONG width = 0;
    for (const Row& row : rows_)
        width = std::max(width, row.label->TextSize().cx);
    return std::min(static_cast<int>(width), Design(kWidestLabel));
}

MainEditor::Grid MainEditor::GridFor(int width) const {
    Grid grid{};
    grid.labelWidth = LabelWidth() + Design(kGap);
    grid.boxWidth = Design(kBoxWidth);
    grid.cellHeight = BoxHeight() + Design(kGap);
    grid.left = Design(kMargin + kSwatchWidth + kColumnGap);
    grid.top = Design(kFirstLine);
    const int available = width - grid.left - Design(kMargin);
    const int smallest =
        grid.labelWidth + grid.boxWidth + Design(kGap + kSmallestSlider + kColumnGap);
    grid.columns = std::clamp((available + Design(kColumnGap)) / smallest, 1, kMostColumns);
    grid.rows = (kValueCount + grid.columns - 1) / grid.columns;
    grid.cellWidth = std::min((available + Design(kColumnGap)) / grid.columns - Design(kColumnGap),
                              Design(kWidestCell));
    return grid;
}

int MainEditor::FrameHeight(int width) const {
    const Grid grid = GridFor(width);
    return grid.top + grid.rows * grid.cellHeight + Design(kGap);
}

int MainEditor::SmallSwatchHeight() const {
    return LineHeight(form_.Font()) + Design(10);
}

void MainEditor::Arrange() {
    RECT area{};
    GetClientRect(frame_->Handle(), &area);
    PlaceSwatch(area);
    const Grid grid = GridFor(WidthOf(area));
    for (int index = 0; index < kValueCount; ++index) {
        const int column = index / grid.rows;
        const int line = index % grid.rows;
        PlaceRow(rows_.at(static_cast<std::size_t>(index)), grid,
                 grid.left + column * (grid.cellWidth + Design(kColumnGap)),
                 grid.top + line * grid.cellHeight);
    }
}

void MainEditor::PlaceSwatch(const RECT& area) {
    const int left = Design(kMargin);
    const int right = left + Design(kSwatchWidth);
    const int top = Design(kFirstLine);
    const int nameBottom = top + LineHeight(form_.Font());
    colorName_->Place({left, top, right, nameBottom});
    const int swatchTop = nameBottom + Design(kGap);
    largeSwatch_->Place({left, swatchTop, right,
                         std::max(static_cast<int>(area.bottom) - Design(kMargin), swatchTop)});
}

void MainEditor::PlaceRow(const Row& row, const Grid& grid, int left, int top) const {
    const int lineHeight = LineHeight(form_.Font());
    const int boxHeight = grid.cellHeight - Design(kGap);
    const int labelTop = top + (boxHeight - lineHeight) / 2;
    row.label->Place({left, labelTop, left + grid.labelWidth, labelTop + lineHeight});
    const int boxLeft = left + grid.labelWidth;
    row.box->Place({boxLeft, top, boxLeft + grid.boxWidth, top + boxHeight});
    const int sliderLeft = boxLeft + grid.boxWidth + Design(kGap);
    row.slider->Place(
        {sliderLeft, top, std::max(left + grid.cellWidth, sliderLeft), top + boxHeight});
}
