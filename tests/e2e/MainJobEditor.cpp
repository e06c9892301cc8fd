// The steps of the main job that work with the editor of the active color.

#include "tests/e2e/MainJob.h"

#include "resources/controls.h"
#include "tests/e2e/RealInput.h"

namespace {

constexpr std::size_t kBlue = 2;
constexpr std::size_t kAmbient = 3;
constexpr std::size_t kTransparency = 7;

} // namespace

void MainJob::ShowLargeEditor() {
    const bool before = Main().IsLargeEditorShown();
    Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor has changed its state",
        [&] { return Main().IsLargeEditorShown() != before; }, true);
    if (before)
        Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor is shown", [this] { return Main().IsLargeEditorShown(); }, true);
    Report().CheckBecomes(
        "the small swatch is shown",
        [this] { return Main().Window().Child(IDC_lblActiveColorSmall).IsVisible(); }, false);
}

// One value is typed, one is dragged, one is moved by the arrow keys.
void MainJob::EditValues() {
    std::vector<std::string> expected = Main().ValueTexts();
    Main().TypeValue(kBlue, "120");
    expected[kBlue] = "120";
    Report().CheckBecomes(
        "values after typing", [this] { return Main().ValueTexts(); }, expected);
    Report().CheckBecomes(
        "small swatch", [this] { return Main().SwatchCaption(); },
        std::string(" (R:255 G:206 B:120)"));

    Main().DragSlider(kTransparency, 60);
    Report().CheckBecomes(
        "the dragged slider has moved", [&] { return Main().ValueTexts() != expected; }, true);
    Report().CheckBecomes(
        "the mouse is held", [this] { return Main().Window().HoldsMouse(); }, false);
    expected[kTransparency] = Main().SliderPositions()[kTransparency];
    Report().CheckBecomes(
        "values after dragging", [this] { return Main().ValueTexts(); }, expected);

    Main().DragSlider(kAmbient, 0); // a click: the slider takes the focus
    RealInput::PressKey(VK_RIGHT);
    RealInput::PressKey(VK_NEXT);
    expected[kAmbient] = std::to_string(std::stoi(expected[kAmbient]) + 1 + 10);
    Report().CheckBecomes(
        "values after a small and a large step", [this] { return Main().ValueTexts(); }, expected);
    Report().CheckBecomes(
        "sliders", [this] { return Main().SliderPositions(); }, expected);
    Report().CheckEqual("rows of the list, unchanged", Main().List().ReadRows(),
                        GroupNamed(library_, kGroup).rows);
}

void MainJob::UpdateColor() {
    Row edited = Main().ValueTexts();
    edited.insert(edited.begin(), kColor);
    for (Row& row : GroupNamed(library_, kGroup).rows)
        if (row.front() == kColor)
            row = edited;
    Main().ClickButton(IDM_mnuColorUpdateColor);
    Report().CheckBecomes(
        "rows of the list", [this] { return Main().List().ReadRows(); },
        GroupNamed(library_, kGroup).rows);
}
