// The steps of the editor's job that work with tree and list.

#include "platform/Utf16.h"
#include "resources/controls.h"
#include "tests/e2e/EditorJob.h"
#include "tests/e2e/RealInput.h"

#include <algorithm>
#include <commctrl.h>
#include <stdexcept>

namespace {

constexpr int kRedColumn = 1;

struct Mode {
    const char* entry;
    int command;
    DWORD style;
};

constexpr Mode kModes[] = {
    {"mnuViewColorLargeIcons", IDM_mnuViewColorLargeIcons, LVS_ICON},
    {"mnuViewColorSmallIcons", IDM_mnuViewColorSmallIcons, LVS_SMALLICON},
    {"mnuViewColorList", IDM_mnuViewColorList, LVS_LIST},
    {"mnuViewColorDetails", IDM_mnuViewColorDetails, LVS_REPORT},
};

} // namespace

// F2, a text over the old one, and the key that ends the edit.
template <typename Pane>
void EditorJob::EditLabel(const Pane& pane, const std::wstring& text, WORD lastKey) {
    RealInput::PressKey(VK_F2);
    RemoteWindow edit;
    if (!PollUntil([&] { return (edit = pane.LabelEdit()).Handle() != nullptr; }))
        throw std::runtime_error("F2 starts no edit");
    RealInput::TypeText(text);
    Report().CheckBecomes(
        "text while it is edited", [&] { return edit.Text(); }, ToUtf8(text));
    RealInput::PressKey(lastKey);
    Report().CheckBecomes(
        "the edit goes on", [&] { return pane.LabelEdit().Handle() != nullptr; }, false);
}

void EditorJob::RenameColors() {
    const RemoteList list = Main().List();
    Texts expected = Names();
    list.ClickRow("Gold");
    EditLabel(list, L"Grüngold", VK_RETURN);
    std::ranges::replace(expected, "Gold", "Grüngold");
    Report().CheckBecomes(
        "names after Enter", [this] { return Names(); }, expected);
    Report().CheckBecomes(
        "name in the editor", [this] { return Main().ColorName(); }, std::string("Grüngold"));
    EditLabel(list, L"other", VK_ESCAPE);
    Report().CheckBecomes(
        "names after Escape", [this] { return Names(); }, expected);
    RealInput::PressKey(VK_F2);
    static_cast<void>(PollUntil([&] { return list.LabelEdit().Handle() != nullptr; }));
    RealInput::PressKey(VK_BACK);
    RealInput::PressKey(VK_RETURN);
    std::ranges::replace(expected, "Grüngold", "");
    Report().CheckBecomes(
        "an empty name is taken", [this] { return Names(); }, expected);
    EditLabel(list, L"Gold", VK_RETURN);
    std::ranges::replace(expected, "", "Gold");
    Report().CheckBecomes(
        "names at the end", [this] { return Names(); }, expected);
}

void EditorJob::RenameGroup() {
    const RemoteTree tree = Main().Tree();
    tree.ClickChild(0, "Gems");
    EditLabel(tree, L"Edelsteine", VK_RETURN);
    Report().CheckBecomes(
        "groups after Enter", [&] { return tree.Children(0); },
        Texts{"Metals", "Plastics", "Rubber", "Edelsteine"});
    EditLabel(tree, L"other", VK_ESCAPE);
    Report().CheckBecomes(
        "selected node after Escape", [&] { return tree.SelectedPath(); },
        std::string("0/Materials/Edelsteine"));
    tree.ClickChild(0, "Metals");
    Report().CheckBecomes(
        "rows", [this] { return Main().List().RowCount(); }, 11);
}

// As text, so 128 comes before 26; rows with equal texts keep their order.
void EditorJob::SortByHeader() {
    const RemoteList list = Main().List();
    std::vector<Row> expected = list.ReadRows();
    std::ranges::stable_sort(expected, {}, [](const Row& row) { return row[kRedColumn]; });
    list.ClickColumn(kRedColumn);
    Report().CheckBecomes(
        "rows, ascending", [&] { return list.ReadRows(); }, expected);
    std::ranges::stable_sort(expected, std::ranges::greater(),
                             [](const Row& row) { return row[kRedColumn]; });
    list.ClickColumn(kRedColumn);
    Report().CheckBecomes(
        "rows, descending", [&] { return list.ReadRows(); }, expected);
}

void EditorJob::CheckMode(DWORD style, int pressedButton) {
    Report().CheckBecomes(
        "view", [this] { return Main().List().ViewStyle(); }, style);
    const RemoteToolbar toolbar(Main().Window().Child(IDC_tlbarMain));
    for (const Mode& mode : kModes)
        Report().CheckBecomes(
            std::string("button of ") + mode.entry + " is pressed",
            [&] { return toolbar.IsPressed(mode.command); }, mode.command == pressedButton);
    Report().CheckEqual("selected colors", Main().List().SelectedNames(), Texts{"Silver"});
}

void EditorJob::ShowModes() {
    Main().List().ClickRow("Silver");
    for (const Mode& mode : kModes) {
        Main().ClickButton(mode.command);
        CheckMode(mode.style, mode.command);
    }
    for (const Mode& mode : kModes) {
        Main().ChooseFromMenu("mnuView", mode.entry);
        CheckMode(mode.style, mode.command);
    }
}
