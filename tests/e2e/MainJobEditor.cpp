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
    const bool before = main_->IsLargeEditorShown();
    main_->ClickButton(IDM_mnuViewHugeColorDialog);
    report_.CheckBecomes(
        "the large editor has changed its state",
        [&] { return main_->IsLargeEditorShown() != before; }, true);
    if (before)
        main_->ClickButton(IDM_mnuViewHugeColorDialog);
    report_.CheckBecomes(
        "the large editor is shown", [this] { return main_->IsLargeEditorShown(); }, true);
    report_.CheckBecomes(
        "the small swatch is shown",
        [this] { return main_->Window().Child(IDC_lblActiveColorSmall).IsVisible(); }, false);
}

// One value is typed, one is dragged, one is moved by the arrow keys.
void MainJob::EditValues() {
    std::vector<std::string> expected = main_->ValueTexts();
    main_->TypeValue(kBlue, "120");
    expected[kBlue] = "120";
    report_.CheckBecomes(
        "values after typing", [this] { return main_->ValueTexts(); }, expected);
    report_.CheckBecomes(
        "small swatch", [this] { return main_->SwatchCaption(); },
        std::string(" (R:255 G:206 B:120)"));

    main_->DragSlider(kTransparency, 60);
    report_.CheckBecomes(
        "the dragged slider has moved", [&] { return main_->ValueTexts() != expected; }, true);
    report_.CheckBecomes(
        "the mouse is held", [this] { return main_->Window().HoldsMouse(); }, false);
    expected[kTransparency] = main_->SliderPositions()[kTransparency];
    report_.CheckBecomes(
        "values after dragging", [this] { return main_->ValueTexts(); }, expected);

    main_->DragSlider(kAmbient, 0); // a click: the slider takes the focus
    RealInput::PressKey(VK_RIGHT);
    RealInput::PressKey(VK_NEXT);
    expected[kAmbient] = std::to_string(std::stoi(expected[kAmbient]) + 1 + 10);
    report_.CheckBecomes(
        "values after a small and a large step", [this] { return main_->ValueTexts(); }, expected);
    report_.CheckBecomes(
        "sliders", [this] { return main_->SliderPositions(); }, expected);
    report_.CheckEqual("rows of the list, unchanged", main_->List().ReadRows(),
                       GroupNamed(library_, kGroup).rows);
}

void MainJob::UpdateColor() {
    Row edited = main_->ValueTexts();
    edited.insert(edited.begin(), kColor);
    for (Row& row : GroupNamed(library_, kGroup).rows)
        if (row.front() == kColor)
            row = edited;
    main_->ClickButton(IDM_mnuColorUpdateColor);
    report_.CheckBecomes(
        "rows of the list", [this] { return main_->List().ReadRows(); },
        GroupNamed(library_, kGroup).rows);
}
