#include "tests/e2e/EditorJob.h"

namespace {

constexpr int kMargin = 10; // around the window, pixels

} // namespace

void EditorJob::Work() {
    Report().Step("start the program", [this] { Start(); });
    if (!IsMainShown())
        return;
    Report().Step("choose a color", [this] { ChooseColor(); });
    Report().Step("type values", [this] { TypeValues(); });
    Report().Step("drag sliders", [this] { DragSliders(); });
    Report().Step("step sliders by keys", [this] { StepSliders(); });
    Report().Step("turn the wheel", [this] { TurnWheel(); });
    Report().Step("tab through the boxes", [this] { TabThroughBoxes(); });
    Report().Step("choose on the large swatch", [this] { ChooseOnLargeSwatch(); });
    Report().Step("choose on the small swatch", [this] { ChooseOnSmallSwatch(); });
    Report().Step("toggle the swatches", [this] { ToggleSwatches(); });
    Report().Step("update the color", [this] { UpdateColor(); });
    Report().Step("rename colors", [this] { RenameColors(); });
    Report().Step("rename a group", [this] { RenameGroup(); });
    Report().Step("sort by a header", [this] { SortByHeader(); });
    Report().Step("show the four modes", [this] { ShowModes(); });
    Report().Step("end the program", [this] { EndMain(); });
}

void EditorJob::Start() {
    CopySample("materials.tnt");
    StartMain();
    Main().Window().Place(kMargin, kMargin, GetSystemMetrics(SM_CXSCREEN) - 2 * kMargin,
                          GetSystemMetrics(SM_CYSCREEN) - 2 * kMargin);
    ShowHiddenBars();
    OpenFromMenu(File("materials.tnt"));
}

void EditorJob::ChooseColor() {
    Main().Tree().ClickChild(0, "Metals");
    Report().CheckBecomes(
        "rows", [this] { return Main().List().RowCount(); }, 11);
    Main().List().ClickRow("Gold");
    CheckValues("values of the editor", {"255", "206", "77", "25", "75", "63", "40", "0", "0"});
    Report().CheckBecomes(
        "small swatch", [this] { return Main().SwatchCaption(); },
        std::string("Gold (R:255 G:206 B:77)"));
}

void EditorJob::CheckValues(const char* what, const Texts& expected) {
    Report().CheckBecomes(
        what, [this] { return Main().ValueTexts(); }, expected);
    Report().CheckBecomes(
        "sliders", [this] { return Main().SliderPositions(); }, expected);
}

EditorJob::Texts EditorJob::Names() const {
    Texts names;
    for (const Row& row : Main().List().ReadRows())
        names.push_back(row.front());
    return names;
}
