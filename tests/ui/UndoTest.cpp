// Rules: Undo and redo
// On the real window: what the menu shows, and that the tree and the list show the steps.

#include "platform/Utf16.h"
#include "support/language/Languages.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"

#include <array>
#include <commctrl.h>
#include <memory>

namespace {

// The program in English with a library of two groups, one color in the first.
class UndoOnTheWindow : public testing::Test {
protected:
    UndoOnTheWindow() {
        Win32Files files;
        for (const Language& language : kLanguages) {
            const std::string name = std::string("tntlng_") + language.code + ".ini";
            folder.Write(name, *files.ReadWhole(SourceFile("resources/language/" + name)));
        }
        program = std::make_unique<RealProgram>(registry, folder.Path(), codePage);
        program->application.Start();
        program->Run(IDM_mnuOptionsLngEnglish);
        program->prompts.typed = {"Paints", "Reds", "Signal"};
        program->Run(IDM_mnuColorNewMainNode);
        program->prompts.typed = {"Blues", ""};
        program->Run(IDM_mnuColorNewGroup);
    }

    [[nodiscard]] HWND Child(int id) const { return FindChild(program->main.Handle(), id); }
    [[nodiscard]] std::string Caption(int command) const {
        const std::string text = MenuText(GetMenu(program->main.Handle()), command);
        return text.substr(0, text.find('\t'));
    }
    [[nodiscard]] bool IsGrey(int command) const {
        return (GetMenuState(GetMenu(program->main.Handle()), static_cast<UINT>(command),
                             MF_BYCOMMAND) &
                MF_GRAYED) != 0;
    }
    // Names of the tree's nodes from top to bottom, those of groups behind a dash.
    [[nodiscard]] std::vector<std::string> Tree() const {
        std::vector<std::string> names;
        const HWND tree = Child(IDC_tvColor);
        for (HTREEITEM root = TreeView_GetRoot(tree); root != nullptr;
             root = TreeView_GetNextSibling(tree, root)) {
            names.push_back(NameOf(root));
            for (HTREEITEM group = TreeView_GetChild(tree, root); group != nullptr;
                 group = TreeView_GetNextSibling(tree, group))
                names.push_back("-" + NameOf(group));
        }
        return names;
    }

    ScratchRegistry registry;
    ScratchFolder folder;
    Win32AnsiCodePage codePage{1252};
    std::unique_ptr<RealProgram> program;

private:
    [[nodiscard]] std::string NameOf(HTREEITEM item) const {
        std::array<wchar_t, 64> text{};
        TVITEMW wanted{};
        wanted.mask = TVIF_TEXT;
        wanted.hItem = item;
        wanted.pszText = text.data();
        wanted.cchTextMax = static_cast<int>(text.size());
        SendMessageW(Child(IDC_tvColor), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&wanted));
        return ToUtf8(text.data());
    }
};

using Names = std::vector<std::string>;

TEST_F(UndoOnTheWindow, EntriesNameTheStepInTheActiveLanguageAndAreGreyWithoutOne) {
    EXPECT_EQ(Caption(IDM_mnuEditUndo), "&Undo New group");
    EXPECT_FALSE(IsGrey(IDM_mnuEditUndo));
    EXPECT_EQ(Caption(IDM_mnuEditRedo), "&Redo");
    EXPECT_TRUE(IsGrey(IDM_mnuEditRedo));
    program->Run(IDM_mnuEditUndo);
    EXPECT_EQ(Caption(IDM_mnuEditRedo), "&Redo New group");
    program->Run(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(Caption(IDM_mnuEditUndo), "&Rückgängig: Neue Bibliothek");
    EXPECT_EQ(Caption(IDM_mnuEditRedo), "&Wiederholen: Neue Gruppe");
    program->Run(IDM_mnuEditUndo);
    EXPECT_EQ(Caption(IDM_mnuEditUndo), "&Rückgängig");
    EXPECT_TRUE(IsGrey(IDM_mnuEditUndo));
}

TEST_F(UndoOnTheWindow, NodesComeBackInTheirPlaces) {
    ASSERT_EQ(Tree(), (Names{"Paints", "-Reds", "-Blues"}));
    program->prompts.typed = {"Other", ""};
    program->Run(IDM_mnuColorNewMainNode);
    const HWND tree = Child(IDC_tvColor);
    TreeView_SelectItem(tree, TreeView_GetChild(tree, TreeView_GetRoot(tree)));
    program->prompts.answers = {Answer::Ok};
    program->Run(IDM_mnuColorDelGroup);
    program->prompts.answers = {Answer::Ok};
    program->Run(IDM_mnuColorDelMainNode);
    ASSERT_EQ(Tree(), (Names{"Other"}));
    program->Run(IDM_mnuEditUndo);
    EXPECT_EQ(Tree(), (Names{"Paints", "-Blues", "Other"}));
    program->Run(IDM_mnuEditUndo);
    EXPECT_EQ(Tree(), (Names{"Paints", "-Reds", "-Blues", "Other"}));
    EXPECT_EQ(ListView_GetItemCount(Child(IDC_lvColor)), 1);
    EXPECT_EQ(ListView_GetNextItem(Child(IDC_lvColor), -1, LVNI_SELECTED), 0);
}

TEST_F(UndoOnTheWindow, RowsInSightAreTheSameAgain) {
    program->main.Move({0, 0, 12000, 9000});
    const HWND tree = Child(IDC_tvColor);
    TreeView_SelectItem(tree, TreeView_GetChild(tree, TreeView_GetRoot(tree)));
    for (int color = 0; color < 80; ++color) {
        program->prompts.typed = {"color " + std::to_string(color)};
        program->Run(IDM_mnuColorNewColor);
    }
    const HWND list = Child(IDC_lvColor);
    ListView_EnsureVisible(list, 0, FALSE);
    ListView_EnsureVisible(list, 40, FALSE);
    const int first = ListView_GetTopIndex(list);
    ASSERT_GT(first, 0);
    program->prompts.answers = {Answer::Ok};
    program->Run(IDM_mnuColorDelColor);
    program->Run(IDM_mnuEditUndo);
    EXPECT_EQ(ListView_GetTopIndex(list), first);
    EXPECT_EQ(ListView_GetItemCount(list), 81);
}

TEST_F(UndoOnTheWindow, KeyIsTheTextBoxesOwnWhileTextIsTyped) {
    const auto press = [&](int id) {
        std::array<BYTE, 256> keys{};
        GetKeyboardState(keys.data());
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys.data());
        MSG key{Child(id), WM_KEYDOWN, 'Z', 0, 0, {}};
        static_cast<void>(program->main.TranslateKeys(key));
        keys[VK_CONTROL] = 0;
        SetKeyboardState(keys.data());
    };
    press(IDC_txtActiveColor);
    EXPECT_EQ(Tree(), (Names{"Paints", "-Reds", "-Blues"}));
    press(IDC_tvColor);
    EXPECT_EQ(Tree(), (Names{"Paints", "-Reds"}));
}

} // namespace
