#include "tests/e2e/ViewsJob.h"

#include "resources/controls.h"
#include "tests/e2e/RealInput.h"

#include <algorithm>
#include <commctrl.h>
#include <string>

namespace {

// At 96 dots per inch.
constexpr int kWidth = 880;
constexpr int kHeight = 640;

} // namespace

void ViewsJob::Work() {
    Report().Step("start the program", [this] { Start(); });
    if (!IsMainShown())
        return;
    Report().Step("large icons", [this] { ShowMode(IDM_mnuViewColorLargeIcons, LVS_ICON); });
    Report().Step("small icons", [this] { ShowMode(IDM_mnuViewColorSmallIcons, LVS_SMALLICON); });
    Report().Step("list", [this] { ShowMode(IDM_mnuViewColorList, LVS_LIST); });
    Report().Step("details", [this] { ShowMode(IDM_mnuViewColorDetails, LVS_REPORT); });
    Report().Step("large editor", [this] { ShowEditor(true); });
    Report().Step("large editor in German", [this] { SpeakGerman(); });
    Report().Step("small swatch in German", [this] { ShowEditor(false); });
    Report().Step("colors in large icons", [this] { SwitchColorsOn(); });
    Report().Step("colors in small icons",
                  [this] { ShowColors(IDM_mnuViewColorSmallIcons, LVS_SMALLICON); });
    Report().Step("colors in the list", [this] { ShowColors(IDM_mnuViewColorList, LVS_LIST); });
    Report().Step("colors in the details",
                  [this] { ShowColors(IDM_mnuViewColorDetails, LVS_REPORT); });
    Report().Step("colors in the tip of a group", [this] { ShowTip(); });
    Report().Step("material preview", [this] { PreviewMaterial(); });
    Report().Step("transparent material", [this] { PreviewGlass(); });
    Report().Step("end the program", [this] { EndMain(); });
}

void ViewsJob::Start() {
    CopySample("materials.tnt");
    StartMain();
    const auto dpi = static_cast<int>(GetDpiForSystem());
    Main().Window().Place(0, 0, std::min(kWidth * dpi / 96, GetSystemMetrics(SM_CXSCREEN)),
                          std::min(kHeight * dpi / 96, GetSystemMetrics(SM_CYSCREEN)));
    ShowHiddenBars();
    OpenFromMenu(File("materials.tnt"));
    Main().Tree().ClickChild(0, "Metals");
    Report().CheckBecomes(
        "rows", [this] { return Main().List().RowCount(); }, 11);
    Main().List().ClickRow("Gold");
    ShowEditor(false);
}

void ViewsJob::ShowMode(int command, DWORD style) {
    Main().ClickButton(command);
    Report().CheckBecomes(
        "view", [this] { return Main().List().ViewStyle(); }, style);
}

void ViewsJob::ShowEditor(bool large) {
    if (Main().IsLargeEditorShown() != large)
        Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor is shown", [this] { return Main().IsLargeEditorShown(); }, large);
    RestPointer();
}

void ViewsJob::SpeakGerman() {
    PostMessageW(Main().Window().Handle(), WM_COMMAND, IDM_mnuOptionsLngGerman, 0);
    Report().CheckBecomes(
        "caption of the editor", [this] { return Main().Window().Child(IDC_fraShowColor).Text(); },
        std::string("Aktive Farbe"));
}

// Where no tip belongs to anything; the one that is there goes.
void ViewsJob::RestPointer() {
    RealInput::MoveTo(Main().Tree().PointBelowTheNodes());
    Report().CheckBecomes(
        "tip", [this] { return FirstColorOfTip(); }, CLR_INVALID);
}

// The ball of large icons is lit, so that its middle has no known color.
void ViewsJob::SwitchColorsOn() {
    const RemoteList list = Main().List();
    const RemoteList::Row row = list.ReadRow(list.FindRow("Gold"));
    gold_ = RGB(std::stoi(row.at(1)), std::stoi(row.at(2)), std::stoi(row.at(3)));
    ShowMode(IDM_mnuViewColorLargeIcons, LVS_ICON);
    const COLORREF common = list.PictureColor("Gold");
    PostMessageW(Main().Window().Handle(), WM_COMMAND, IDM_mnuViewColorsInList, 0);
    Report().CheckBecomes(
        "another picture than the common one", [&] { return list.PictureColor("Gold") != common; },
        true);
}

// A field has the plain color of its row.
void ViewsJob::ShowColors(int command, DWORD style) {
    ShowMode(command, style);
    Report().CheckBecomes(
        "color on the screen", [this] { return Main().List().PictureColor("Gold"); }, gold_);
}

// The color that the screen shows where the tip of a group has its first one; none: no tip is
// there.
COLORREF ViewsJob::FirstColorOfTip() const {
    HWND tip = nullptr;
    while ((tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr)
        if (IsWindowVisible(tip) != FALSE)
            return RemoteWindow(tip).ColorAt({12, 11});
    return CLR_INVALID;
}

void ViewsJob::ShowTip() {
    const RemoteList::Row first = Main().List().ReadRow(0);
    const COLORREF color =
        RGB(std::stoi(first.at(1)), std::stoi(first.at(2)), std::stoi(first.at(3)));
    const POINT group = Main().Tree().PointOfChild(0, "Metals");
    RealInput::Glide({group.x - 9, group.y}, group); // a tip comes when the pointer moves on a node
    Report().CheckBecomes(
        "first color of the group", [this] { return FirstColorOfTip(); }, color);
}

RemoteWindow ViewsJob::Field() const {
    return Main().Control(IDC_lblActiveColor);
}

POINT ViewsJob::PointOfBall() const {
    const RECT bounds = Field().Bounds();
    return {(bounds.right - bounds.left) / 4, (bounds.bottom - bounds.top) * 2 / 5};
}

// The ball is lit, so that its color is not known; the band below it has the plain one.
void ViewsJob::PreviewMaterial() {
    ShowEditor(true);
    Report().CheckBecomes(
        "plain color", [this] { return Field().ColorAt(PointOfBall()); }, gold_);
    PostMessageW(Main().Window().Handle(), WM_COMMAND, IDM_mnuViewMaterialPreview, 0);
    Report().CheckBecomes(
        "ball instead of the plain color",
        [this] { return Field().ColorAt(PointOfBall()) != gold_; }, true);
    const RECT bounds = Field().Bounds();
    Report().CheckBecomes(
        "plain color below",
        [&] {
            return Field().ColorAt({PointOfBall().x, bounds.bottom - bounds.top - 5});
        },
        gold_);
}

void ViewsJob::PreviewGlass() {
    constexpr std::size_t kTransparency = 7;
    const COLORREF before = Field().ColorAt(PointOfBall());
    Main().DragSlider(kTransparency, 40);
    Report().CheckBecomes(
        "board behind the ball", [&] { return Field().ColorAt(PointOfBall()) != before; }, true);
}
