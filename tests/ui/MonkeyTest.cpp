// Rules: The program as a whole
#include "common/ProgramNames.h"
#include "mainwindow/CommandTable.h"
#include "platform/Utf16.h"
#include "resources/controls.h"
#include "standin/model/ObjectRows.h"
#include "tests/fakes/Dose.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/platform/SourceFile.h"
#include "tests/ui/GuiObjects.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/OtherWindows.h"
#include "tests/ui/RealProgram.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <psapi.h>
#include <random>
#include <sstream>

namespace {

using Texts = std::vector<std::string>;

constexpr unsigned kUsualSeed = 20;
// Undo may keep so much that a short run already fills it.
constexpr std::size_t kHistoryBytes = 64U * 1024U;
constexpr int kStepsBetweenChecks = 1000;
constexpr int kFewestSteps = 20 * kStepsBetweenChecks;

// What is done: TNT_MONKEY_SEED, else the same in every run of the tests.
unsigned Seed() {
    const char* number = std::getenv("TNT_MONKEY_SEED");
    return number != nullptr ? static_cast<unsigned>(std::atoi(number)) : kUsualSeed;
}

// What is made when it is first wanted is there then.
int WarmUp(int steps) {
    return steps / 2 / kStepsBetweenChecks * kStepsBetweenChecks;
}

constexpr const char* kDivisionSign = "\xC3\xB7";

// The values of a color's line, each behind its sign.
std::string LineEndOf(const std::string& line, std::size_t colon) {
    const std::size_t values = line.find(kDivisionSign, colon);
    return line.substr(values, line.rfind('"') - values);
}

// What the process holds of the system.
struct Holdings {
    GuiObjects objects;
    DWORD handles = 0;
    std::size_t bytes = 0;

    static Holdings Count() {
        Holdings held;
        held.objects = CountGuiObjects();
        GetProcessHandleCount(GetCurrentProcess(), &held.handles);
        PROCESS_MEMORY_COUNTERS counters{};
        GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
        held.bytes = counters.PagefileUsage;
        return held;
    }
};

std::ostream& operator<<(std::ostream& out, const Holdings& held) {
    return out << "graphics objects " << held.objects.gdi << ", window objects "
               << held.objects.user << ", handles " << held.handles << ", memory "
               << held.bytes / 1024 << " KiB";
}

// Somebody who presses, types, clicks, turns and commands without a plan in the real windows, and
// selects anything in the stand-in.  Questions are answered at once, with any answer.
class Monkey : public testing::Test {
protected:
    // A library as its file has it; each color is its name and its nine values, in the order of
    // texts.
    struct SavedGroup {
        std::string name;
        Texts colors;
    };
    struct Saved {
        std::string name;
        std::vector<SavedGroup> groups;
    };

    Monkey() {
        for (const char* name : {"tntlng_de.ini", "tntlng_us.ini"})
            folder.Write(name,
                         *files.ReadWhole(SourceFile(std::string("resources/language/") + name)));
        folder.Write("a.tnt", *files.ReadWhole(SourceFile("resources/samples/materials.tnt")));
        std::filesystem::create_directory(folder.File("samples"));
        folder.Write("samples\\materials.tnt", folder.Read("a.tnt"));
        folder.Write("palette.gpl", "GIMP Palette\n255 204 77 Sun\nrubbish\n0 0 0\n");
        registry.PutText(std::string(ProgramNames::RegistryPath), "DefaultColorFile",
                         folder.File("a.tnt"));
        program = std::make_unique<RealProgram>(registry, folder.Path(), codePage, nullptr, "",
                                                kHistoryBytes);
        program->application.Start();
        PumpMessages();
        others = std::make_unique<OtherWindows>(program->main.Handle(), Seed());
    }

    // All but the end of the program.
    static bool IsForMonkeys(const MenuRow& row) {
        return (row.place == MenuKind::Entry || row.place == MenuKind::SubmenuEntry) &&
               row.command != IDM_mnuQuit;
    }

    [[nodiscard]] HWND Child(int id) const { return FindChild(program->main.Handle(), id); }
    [[nodiscard]] HWND Tree() const { return Child(IDC_tvColor); }
    [[nodiscard]] HWND List() const { return Child(IDC_lvColor); }
    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    template <typename Value, std::size_t count>
    Value OneOf(const Value (&values)[count]) {
        return values[static_cast<std::size_t>(Below(count))];
    }

    HWND AnyPane();
    HWND AnyTarget();
    static HWND WindowAt(HWND window, POINT& at);
    POINT AnyPointIn(HWND window);

    void Step();
    void TypeCharacter();
    void PressKey();
    void MoveMouse();
    void TurnWheel();
    void ClickSomewhere();
    void PressRightButton();
    void DragSomething();
    void ClickHeader();
    void ClickToolbar();
    [[nodiscard]] int NextCommand();
    void RunCommand();
    void SelectInSolidWorks();
    void Resize();
    void Repaint();
    void PrepareAnswers();
    void KeepSmall();

    void ComeToRest();
    void ExpectAgreement();
    void ExpectAgreementOf(HTREEITEM root);
    void ExpectListBelongsToTheSelectedNode();
    void ExpectListShows(const Texts& colors);
    [[nodiscard]] HTREEITEM Next(WPARAM relation, HTREEITEM item = nullptr) const;
    [[nodiscard]] std::string TextOfNode(HTREEITEM node) const;
    void Select(HTREEITEM node);
    [[nodiscard]] std::string CellText(int row, int subItem) const;
    [[nodiscard]] Saved SaveSelected();

    std::mt19937 random{Seed()};
    Win32Files files;
    ScratchFolder folder;
    ScratchRegistry registry;
    Win32AnsiCodePage codePage{1252};
    std::unique_ptr<RealProgram> program;
    std::unique_ptr<OtherWindows> others;
    std::vector<int> commands; // those that are due before any comes again
    int rowsCompared = 0;
};

HWND Monkey::AnyPane() {
    return Child(OneOf({IDC_tvColor, IDC_lvColor, IDC_lvColor}));
}

// Where keys go: mostly to what has the focus, as a label that is edited has it.
HWND Monkey::AnyTarget() {
    const HWND focus = GetFocus();
    if (focus != nullptr && Below(2) == 0)
        return focus;
    switch (Below(3)) {
    case 0:
        return AnyPane();
    case 1:
        return Child(IDC_txtActiveColor + Below(9));
    default:
        return Child(IDC_sldActiveColor + Below(9));
    }
}

// What stands at a point of a window, such as a link in the empty list, and the point in it.
HWND Monkey::WindowAt(HWND window, POINT& at) {
    const HWND child = RealChildWindowFromPoint(window, at);
    if (child != nullptr)
        MapWindowPoints(window, child, &at, 1);
    return child != nullptr ? child : window;
}

POINT Monkey::AnyPointIn(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {Below(std::max(1, WidthOf(area))), Below(std::max(1, HeightOf(area)))};
}

void Monkey::TypeCharacter() {
    constexpr wchar_t kCharacters[] = {L'0', L'1', L'2', L'5', L'9', L'.', L'-',
                                       L'a', L'b', L'G', L'ü', L' ', L'\b'};
    SendMessageW(AnyTarget(), WM_CHAR, OneOf(kCharacters), 1);
}

void Monkey::PressKey() {
    constexpr WORD kKeys[] = {VK_UP,   VK_DOWN, VK_LEFT,   VK_RIGHT,  VK_HOME,   VK_END,  VK_PRIOR,
                              VK_NEXT, VK_F2,   VK_RETURN, VK_ESCAPE, VK_DELETE, VK_SPACE};
    const HWND target = AnyTarget();
    const WORD key = OneOf(kKeys);
    SendMessageW(target, WM_KEYDOWN, key, 1);
    if (IsWindow(target) != FALSE)
        SendMessageW(target, WM_KEYUP, key, 1);
}

void Monkey::MoveMouse() {
    const HWND target = AnyTarget();
    const POINT to = AnyPointIn(target);
    SendMessageW(target, WM_MOUSEMOVE, 0, MAKELPARAM(to.x, to.y));
}

void Monkey::TurnWheel() {
    const int turn = Below(2) == 0 ? WHEEL_DELTA : -WHEEL_DELTA;
    SendMessageW(AnyTarget(), WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, turn)), 0);
}

void Monkey::ClickSomewhere() {
    constexpr int kPlaces[] = {IDC_tvColor,        IDC_lvColor,        IDC_imgSplitter,
                               IDC_txtActiveColor, IDC_sldActiveColor, IDC_fraShowColor};
    const HWND target = Child(OneOf(kPlaces));
    POINT at = AnyPointIn(target);
    const HWND hit = WindowAt(target, at);
    Click(hit, at);
    const int swatch = OneOf({IDC_lblActiveColor, IDC_lblActiveColorSmall});
    SendMessageW(Child(swatch), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(2, 2));
}

// The menu that it opens is left by Escape, which waits for it already.
void Monkey::PressRightButton() {
    PostMessageW(program->main.Handle(), WM_KEYDOWN, VK_ESCAPE, 0);
    const HWND pane = AnyPane();
    const POINT at = AnyPointIn(pane);
    SendMessageW(pane, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    SendMessageW(pane, WM_RBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

void Monkey::DragSomething() {
    const HWND pane = AnyPane();
    for (int move = 0; move < 3; ++move) {
        const POINT to = AnyPointIn(pane);
        PostMessageW(pane, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
    }
    Click(pane, AnyPointIn(pane));
}

void Monkey::ClickHeader() {
    const auto header = reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETHEADER, 0, 0));
    Click(header, AnyPointIn(header));
}

// A button menu that opens is left by Escape.
void Monkey::ClickToolbar() {
    const HWND bar = Child(IDC_tlbarMain);
    const auto count = static_cast<int>(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0));
    RECT place{};
    SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(Below(count)),
                 reinterpret_cast<LPARAM>(&place));
    if (WidthOf(place) == 0)
        return; // hidden
    PrepareAnswers();
    PostMessageW(program->main.Handle(), WM_KEYDOWN, VK_ESCAPE, 0);
    Click(bar, {place.left + Below(WidthOf(place)), (place.top + place.bottom) / 2});
    KeepSmall();
}

void Monkey::PrepareAnswers() {
    FakePrompts& prompts = program->prompts;
    constexpr Answer kAnswers[] = {Answer::Yes, Answer::No, Answer::Cancel, Answer::Ok};
    prompts.answers.assign(3, OneOf(kAnswers));
    prompts.typed.assign(3, Below(4) == 0 ? "" : "name " + std::to_string(Below(1000)));
    prompts.chosenColors.assign(1, static_cast<ColorNumber>(Below(0x1000000)));
    constexpr const char* kFiles[] = {"a.tnt", "b.tnt", "exported.gpl", "exported.ase"};
    prompts.chosenFiles.assign(1, folder.File(OneOf(kFiles)));
    // Never what was exported: it would grow and grow.
    prompts.chosenFileSets.assign(1, {folder.File("palette.gpl"), folder.File("missing.csv")});
}

// Each once, in any order, before one of them comes again.
int Monkey::NextCommand() {
    if (commands.empty()) {
        for (const MenuRow& row : MenuRows())
            if (IsForMonkeys(row))
                commands.push_back(row.command);
        std::ranges::shuffle(commands, random);
    }
    const int command = commands.back();
    commands.pop_back();
    return command;
}

// A change of the language reads whole files: it comes seldom.
void Monkey::RunCommand() {
    const int command = NextCommand();
    const bool isLanguage =
        command == IDM_mnuOptionsLngGerman || command == IDM_mnuOptionsLngEnglish;
    if (isLanguage && Below(20) != 0)
        return;
    PrepareAnswers();
    program->Run(command);
    KeepSmall();
}

// What the test's own fakes keep is not the program's.
void Monkey::KeepSmall() {
    FakePrompts& prompts = program->prompts;
    prompts.messages.clear();
    prompts.questions.clear();
    prompts.fileRequests.clear();
    prompts.colorRequests.clear();
    program->shell.requests.clear();
    program->solidWorks.Log().Clear();
    while (SendMessageW(Tree(), TVM_GETCOUNT, 0, 0) > 40) {
        prompts.answers.assign(1, Answer::Yes);
        program->Run(IDM_mnuFileClose);
    }
}

// One document or none is active, with one thing more or less selected.
void Monkey::SelectInSolidWorks() {
    StandInModel& model = program->solidWorks;
    constexpr std::optional<DocumentType> kDocuments[] = {
        DocumentType::Part, DocumentType::Assembly, DocumentType::Drawing, std::nullopt};
    if (Below(4) == 0)
        model.Activate(OneOf(kDocuments));
    const DocumentPtr document = model.ActiveDocument();
    const std::vector<SelectedItem> items = ObjectRows(document);
    if (items.empty())
        return;
    document->SelectItem(items[static_cast<std::size_t>(Below(static_cast<int>(items.size())))],
                         Below(3) == 0);
}

void Monkey::Resize() {
    SetWindowPos(program->main.Handle(), nullptr, 0, 0, 100 + Below(1000), 100 + Below(700),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Monkey::Repaint() {
    RedrawWindow(program->main.Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    PumpMessages();
}

void Monkey::Step() {
    const int chance = Below(1000);
    if (chance < 370)
        TypeCharacter();
    else if (chance < 400)
        others->Step();
    else if (chance < 420)
        SelectInSolidWorks();
    else if (chance < 780)
        PressKey();
    else if (chance < 860)
        MoveMouse();
    else if (chance < 920)
        TurnWheel();
    else if (chance < 945)
        ClickSomewhere();
    else if (chance < 950)
        PressRightButton();
    else if (chance < 960)
        DragSomething();
    else if (chance < 963)
        ClickHeader();
    else if (chance < 968)
        ClickToolbar();
    else if (chance < 990)
        RunCommand();
    else if (chance < 995)
        Resize();
    else
        Repaint();
}

// What is under way ends.  Time passes: what is kept beside a file has its time in its name.
void Monkey::ComeToRest() {
    ++program->calendar.now.year;
    SendMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
    ReleaseCapture();
    SetFocus(Tree());
    PumpMessages();
    KeepSmall();
}

HTREEITEM Monkey::Next(WPARAM relation, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(Tree(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::string Monkey::TextOfNode(HTREEITEM node) const {
    std::array<wchar_t, 1024> text{};
    TVITEMW item{};
    item.mask = TVIF_HANDLE | TVIF_TEXT;
    item.hItem = node;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return ToUtf8(text.data());
}

void Monkey::Select(HTREEITEM node) {
    SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
}

// The selected library as the program writes it.
Monkey::Saved Monkey::SaveSelected() {
    program->prompts.answers.assign(3, Answer::Yes);
    program->prompts.chosenFiles.assign(1, folder.File("check.tnt"));
    program->Run(IDM_mnuFileSaveAs);
    std::istringstream text(
        codePage.Decode(files.ReadWhole(folder.File("check.tnt")).value_or("")));
    Saved saved;
    std::map<std::string, std::size_t> groups; // by key
    for (std::string line; std::getline(text, line);) {
        const std::size_t key = line.find('=');
        const std::size_t colon = line.find(':', key);
        const std::string name = line.substr(3, key - 3);
        if (line.starts_with("\"D#"))
            saved.name = name;
        if (line.starts_with("\"G#")) {
            groups.emplace(line.substr(key + 1, line.rfind('"') - key - 1), groups.size());
            saved.groups.push_back({name, {}});
        }
        if (line.starts_with("\"E#"))
            saved.groups.at(groups.at(line.substr(key + 1, colon - key - 1)))
                .colors.push_back(name + LineEndOf(line, colon));
    }
    for (SavedGroup& group : saved.groups)
        std::ranges::sort(group.colors);
    return saved;
}

std::string Monkey::CellText(int row, int subItem) const {
    std::array<wchar_t, 1024> text{};
    LVITEMW item{};
    item.iSubItem = subItem;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(List(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&item));
    return ToUtf8(text.data());
}

// Names and values of a group's colors, in any order, as the list itself shows them.
void Monkey::ExpectListShows(const Texts& colors) {
    Texts shown;
    const auto rows = static_cast<int>(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row) {
        std::string text = CellText(row, 0);
        for (int column = 1; column <= 9; ++column)
            text += kDivisionSign + CellText(row, column);
        shown.push_back(text);
    }
    std::ranges::sort(shown);
    EXPECT_EQ(shown, colors);
    rowsCompared += rows;
}

// What was left on the screen: the list belongs to what is selected in the tree.
void Monkey::ExpectListBelongsToTheSelectedNode() {
    const HTREEITEM selected = Next(TVGN_CARET);
    const HTREEITEM parent = selected == nullptr ? nullptr : Next(TVGN_PARENT, selected);
    HTREEITEM group = Next(TVGN_CHILD, parent == nullptr ? selected : parent);
    if (selected == nullptr || group == nullptr) {
        ExpectListShows({});
        return;
    }
    const Saved saved = SaveSelected();
    std::size_t index = 0;
    for (; parent != nullptr && group != selected; group = Next(TVGN_NEXT, group))
        ++index;
    ExpectListShows(saved.groups.at(index).colors);
}

void Monkey::ExpectAgreementOf(HTREEITEM root) {
    HTREEITEM node = Next(TVGN_CHILD, root);
    if (node == nullptr)
        return; // there is nothing to save
    Select(root);
    const Saved saved = SaveSelected();
    EXPECT_EQ(TextOfNode(root), saved.name);
    for (const SavedGroup& group : saved.groups) {
        ASSERT_NE(node, nullptr) << group.name;
        EXPECT_EQ(TextOfNode(node), group.name);
        Select(node);
        ExpectListShows(group.colors);
        node = Next(TVGN_NEXT, node);
    }
    EXPECT_EQ(node, nullptr) << "a group that is not in the library";
}

void Monkey::ExpectAgreement() {
    ExpectListBelongsToTheSelectedNode();
    for (HTREEITEM root = Next(TVGN_ROOT); root != nullptr; root = Next(TVGN_NEXT, root))
        ExpectAgreementOf(root);
}

} // namespace

TEST_F(Monkey, AnyInputLeavesTheProgramWholeAndTreeListAndLibraryInAgreement) {
    const int steps = Dose("TNT_MONKEY", kFewestSteps);
    std::cout << "seed " << Seed() << ", " << steps << " steps\n";
    Holdings before;
    for (int step = 1; step <= steps; ++step) {
        Step();
        if (step % kStepsBetweenChecks != 0)
            continue;
        ComeToRest();
        ASSERT_NO_FATAL_FAILURE(ExpectAgreement()) << "after step " << step;
        if (step == WarmUp(steps))
            std::cout << "after " << step << ": " << (before = Holdings::Count()) << '\n';
    }
    const Holdings after = Holdings::Count();
    std::cout << "at the end: " << after << '\n';
    EXPECT_LE(after.objects.gdi, before.objects.gdi + 10);
    EXPECT_LE(after.objects.user, before.objects.user + 10);
    EXPECT_LE(after.handles, before.handles + 10);
    EXPECT_LE(after.bytes, before.bytes + 4 * 1024 * 1024);
    EXPECT_NE(IsWindowVisible(program->main.Handle()), FALSE);
    EXPECT_GT(rowsCompared, steps / 100) << "there was something to compare";
    for (const wchar_t* form :
         {L"frmAbout", L"frmFind", L"frmLevels", L"frmRecover", L"frmTxtView"})
        EXPECT_GT(others->StepsIn(form), 0) << ToUtf8(form);
}
