// The steps of the editor's job that work with the nine values and the swatches.

#include "resources/controls.h"
#include "tests/e2e/EditorJob.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteDialogs.h"

#include <algorithm>

namespace {

constexpr std::size_t kRed = 0;
constexpr std::size_t kGreen = 1;
constexpr std::size_t kBlue = 2;
constexpr std::size_t kSpecular = 5;
constexpr std::size_t kTransparency = 7;
constexpr std::size_t kEmission = 8;

} // namespace

void EditorJob::TypeAndCheck(std::size_t index, const std::string& typed,
                             const std::string& shown) {
    Main().TypeValue(index, typed);
    Report().CheckBecomes(
        "\"" + typed + "\" typed into box " + std::to_string(index),
        [&] { return Main().ValueTexts()[index]; }, shown);
    Report().CheckBecomes(
        "its slider", [&] { return Main().SliderPositions()[index]; }, shown);
}

void EditorJob::CheckWhollySelected(std::size_t index) {
    const RemoteWindow box = Main().ValueBox(index);
    Report().CheckBecomes(
        "the whole text of box " + std::to_string(index) + " is selected",
        [&] {
            const auto range = static_cast<DWORD>(SendMessageW(box.Handle(), EM_GETSEL, 0, 0));
            return LOWORD(range) == 0 && HIWORD(range) == box.Text().size();
        },
        true);
}

void EditorJob::TypeValues() {
    if (!Main().IsLargeEditorShown())
        Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor is shown", [this] { return Main().IsLargeEditorShown(); }, true);
    TypeAndCheck(kRed, "999", "255");
    CheckWhollySelected(kRed);
    TypeAndCheck(kSpecular, "150", "100");
    CheckWhollySelected(kSpecular);
    TypeAndCheck(kGreen, "1x-2", "12");
    TypeAndCheck(kBlue, "34.", "34");
    Report().CheckBecomes(
        "small swatch, without the name", [this] { return Main().SwatchCaption(); },
        std::string(" (R:255 G:12 B:34)"));
    TypeAndCheck(kEmission, "7\b", "0");
    CheckWhollySelected(kEmission);
}

void EditorJob::DragSliders() {
    const Texts before = Main().ValueTexts();
    const std::string caption = Main().SwatchCaption();
    Main().DragSlider(kTransparency, 50);
    Report().CheckBecomes(
        "the dragged slider has moved", [&] { return Main().ValueTexts() != before; }, true);
    Report().CheckBecomes(
        "the mouse is held", [this] { return Main().Window().HoldsMouse(); }, false);
    Texts expected = before;
    expected[kTransparency] = Main().SliderPositions()[kTransparency];
    CheckValues("values after dragging", expected);
    Report().CheckEqual("caption of the swatch", Main().SwatchCaption(), caption);
    Main().DragSlider(kTransparency, 2000);
    expected[kTransparency] = "100";
    CheckValues("values after dragging beyond the end", expected);
}

void EditorJob::CheckStep(std::size_t index, WORD key, int expected) {
    RealInput::PressKey(key);
    Report().CheckBecomes(
        "slider after key " + std::to_string(key), [&] { return Main().SliderPositions()[index]; },
        std::to_string(expected));
    Report().CheckBecomes(
        "its box", [&] { return Main().ValueTexts()[index]; }, std::to_string(expected));
}

void EditorJob::StepSliders() {
    TypeAndCheck(kGreen, "100", "100");
    RealInput::PressKey(VK_TAB); // to the slider
    CheckStep(kGreen, VK_RIGHT, 101);
    CheckStep(kGreen, VK_LEFT, 100);
    CheckStep(kGreen, VK_NEXT, 110);
    CheckStep(kGreen, VK_PRIOR, 100);
    CheckStep(kGreen, VK_END, 255);
    CheckStep(kGreen, VK_HOME, 0);
}

// The wheel turns what has the focus.
void EditorJob::TurnWheel() {
    TypeAndCheck(kGreen, "100", "100");
    RealInput::PressKey(VK_TAB);
    RealInput::TurnWheel(Main().Slider(kGreen).Centre(), 1);
    Report().CheckBecomes(
        "the wheel has moved the slider", [this] { return Main().SliderPositions()[kGreen]; },
        std::string("103"));
    Report().CheckBecomes(
        "its box", [this] { return Main().ValueTexts()[kGreen]; },
        Main().SliderPositions()[kGreen]);
}

// From box to slider to the next box; each box that is reached is wholly selected.
void EditorJob::TabThroughBoxes() {
    Main().ValueBox(0).Click();
    for (std::size_t index = 0; index < RemoteMain::kValues; ++index) {
        Report().CheckBecomes(
            "box " + std::to_string(index) + " has the focus",
            [&] { return Main().Window().FocusedChild() == Main().ValueBox(index).Handle(); },
            true);
        CheckWhollySelected(index);
        RealInput::PressKey(VK_TAB);
        Report().CheckBecomes(
            "its slider has it then",
            [&] { return Main().Window().FocusedChild() == Main().Slider(index).Handle(); }, true);
        RealInput::PressKey(VK_TAB);
    }
}

void EditorJob::ChooseOnSwatch(const char* swatch) {
    Report().Note(swatch);
    const Texts before = Main().ValueTexts();
    RealInput::DoubleClick(Main().Swatch().Centre());
    Report().CheckEqual("title of the color dialog",
                        RemoteDialogs::AnswerColorDialog(Main().Window(), {}),
                        std::string("Color"));
    CheckValues("values after Cancel", before);
    RealInput::DoubleClick(Main().Swatch().Centre());
    static_cast<void>(
        RemoteDialogs::AnswerColorDialog(Main().Window(), RemoteDialogs::RedGreenBlue{10, 20, 30}));
    Texts expected = before;
    expected[kRed] = "10";
    expected[kGreen] = "20";
    expected[kBlue] = "30";
    CheckValues("values after OK: the other six are kept", expected);
    Report().CheckBecomes(
        "small swatch", [this] { return Main().SwatchCaption(); },
        std::string(" (R:10 G:20 B:30)"));
}

void EditorJob::ChooseOnLargeSwatch() {
    ChooseOnSwatch("large");
}

void EditorJob::ChooseOnSmallSwatch() {
    TypeAndCheck(kRed, "200", "200");
    Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor is shown", [this] { return Main().IsLargeEditorShown(); }, false);
    ChooseOnSwatch("small");
}

// Where tree, list, frame and small swatch stand.
std::vector<RECT> EditorJob::Places() const {
    std::vector<RECT> places;
    for (const int id : {IDC_tvColor, IDC_lvColor, IDC_fraShowColor, IDC_lblActiveColorSmall}) {
        RECT place{};
        GetWindowRect(Main().Window().Child(id).Handle(), &place);
        places.push_back(place);
    }
    return places;
}

void EditorJob::ToggleSwatches() {
    const auto isSame = [](const RECT& left, const RECT& right) {
        return EqualRect(&left, &right) != FALSE;
    };
    const std::vector<RECT> before = Places();
    Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor is shown", [this] { return Main().IsLargeEditorShown(); }, true);
    Report().CheckBecomes(
        "the layout has changed", [&] { return !std::ranges::equal(Places(), before, isSame); },
        true);
    Main().ClickButton(IDM_mnuViewHugeColorDialog);
    Report().CheckBecomes(
        "the large editor is shown", [this] { return Main().IsLargeEditorShown(); }, false);
    Report().CheckBecomes(
        "the second toggle restores the first layout",
        [&] { return std::ranges::equal(Places(), before, isSame); }, true);
}

void EditorJob::UpdateColor() {
    const RemoteList list = Main().List();
    const int row = list.FindRow("Gold");
    Report().CheckEqual("red of the row, before the command", list.ReadRow(row)[1],
                        std::string("255"));
    Row expected = Main().ValueTexts();
    expected.insert(expected.begin(), "Gold");
    Main().ClickButton(IDM_mnuColorUpdateColor);
    Report().CheckBecomes(
        "row after the command", [&] { return list.ReadRow(row); }, expected);
    Report().CheckBecomes(
        "small swatch, with the name again", [this] { return Main().SwatchCaption(); },
        std::string("Gold (R:10 G:20 B:30)"));
}
