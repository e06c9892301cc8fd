// The steps of the main job that move colors from and to the stand-in for SolidWorks.

#include "tests/e2e/MainJob.h"

#include "common/Numbers.h"
#include "resources/controls.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteDialogs.h"

namespace {

constexpr const char* kNameFromSolidWorks = "Neuer Farbwert";
constexpr const char* kStatusOkay = "Okay setzen in SolidWorks";
constexpr std::size_t kColorParts = 3; // red, green and blue count to 255, the others to 100

double ScaleOf(std::size_t index) {
    return index < kColorParts ? 255.0 : 100.0;
}

std::vector<std::string> TextsOf(const std::vector<double>& values) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < values.size(); ++i)
        texts.push_back(std::to_string(RoundToInt16(values[i] * ScaleOf(i))));
    return texts;
}

} // namespace

std::vector<double> MainJob::ValuesAsSent() const {
    std::vector<double> values;
    for (const std::string& text : Main().ValueTexts())
        values.push_back(std::stoi(text) / ScaleOf(values.size()));
    return values;
}

void MainJob::GetColorOfFace() {
    StandIn().ClickObject("Face 10");
    Report().CheckBecomes(
        "selected in the stand-in", [this] { return StandIn().SelectedObjects(); },
        std::vector<std::string>{"Face 10"});
    const std::vector<double> values = reader_.SelectedValues();
    Report().CheckEqual("numbers of the face", values.size(), RemoteMain::kValues);
    Main().ClickButton(IDM_mnuSWXGetColor);
    Report().CheckBecomes(
        "values of the editor", [this] { return Main().ValueTexts(); }, TextsOf(values));
    Report().CheckBecomes(
        "name in the editor", [this] { return Main().ColorName(); },
        std::string(kNameFromSolidWorks));
}

void MainJob::MakeColorFromFace() {
    std::vector<Row>& rows = GroupNamed(library_, kGroup).rows;
    const std::string preset = "New Color" + std::to_string(rows.size() + 1);
    Main().ClickButton(IDM_mnuSWXNewColorUpdate);
    const RemoteDialogs::Question question =
        RemoteDialogs::AnswerInputBox(Main().Window(), "From a face");
    Report().Note("question: " + question.prompt);
    Report().CheckEqual("preset name", question.preset, preset);

    Row row = Main().ValueTexts();
    row.insert(row.begin(), kNameFromSolidWorks);
    rows.push_back(row);
    Report().CheckBecomes(
        "rows of the list", [this] { return Main().List().ReadRows(); }, rows);
    Report().CheckBecomes(
        "selected colors", [this] { return Main().List().SelectedNames(); },
        std::vector<std::string>{kNameFromSolidWorks});
}

// Each line of the record that assigns values must hold exactly those of the editor.
void MainJob::CheckValuesSent(const std::vector<std::string>& puts) {
    for (const std::string& put : puts) {
        Report().Note(put);
        Report().CheckEqual("numbers received", NumbersOf(put), ValuesAsSent());
    }
}

void MainJob::SetColorOnTwoFaces() {
    Main().List().ClickRow(kColor);
    Report().CheckBecomes(
        "name in the editor", [this] { return Main().ColorName(); }, std::string(kColor));
    StandIn().ClickObject("Face 1");
    StandIn().CtrlClickObject("Face 2");
    Report().CheckBecomes(
        "selected in the stand-in", [this] { return StandIn().SelectedObjects(); },
        std::vector<std::string>{"Face 1", "Face 2"});

    Main().ClearInfoText();
    log_.Mark();
    Main().ClickButton(IDM_mnuSWXSetColor);
    Report().CheckBecomes(
        "status bar", [this] { return Main().InfoText(); }, std::string(kStatusOkay));
    const std::vector<std::string> puts = log_.NewLinesWith("put ");
    Report().CheckEqual("assignments", puts.size(), std::size_t{2});
    Report().CheckEqual("rebuilds", log_.NewLinesWith("EditRebuild").size(), std::size_t{1});
    CheckValuesSent(puts);
    Report().CheckEqual("values of face 1", reader_.FaceValues(1), ValuesAsSent());
    Report().CheckEqual("values of face 2", reader_.FaceValues(2), ValuesAsSent());
    Report().Check(reader_.FaceValues(3) != ValuesAsSent(), "face 3 keeps its own values");
}

void MainJob::SetColorOnComponent() {
    Main().List().ClickRow("Copper");
    Report().CheckBecomes(
        "name in the editor", [this] { return Main().ColorName(); }, std::string("Copper"));
    StandIn().ChooseNextDocument();
    Report().CheckBecomes(
        "document", [this] { return StandIn().ChosenDocument(); }, std::string("Assembly"));
    StandIn().ClickObject("Cover-1");
    Report().CheckBecomes(
        "selected in the stand-in", [this] { return StandIn().SelectedObjects(); },
        std::vector<std::string>{"Cover-1"});

    Main().ClearInfoText();
    Report().CheckEqual("status bar before", Main().InfoText(), std::string());
    log_.Mark();
    Main().ClickButton(IDM_mnuSWXSetColorComponent);
    Report().CheckBecomes(
        "status bar", [this] { return Main().InfoText(); }, std::string(kStatusOkay));
    Report().CheckEqual("rebuilds", log_.NewLinesWith("EditRebuild").size(), std::size_t{1});
    const std::vector<std::string> puts = log_.NewLinesWith("put ");
    Report().CheckEqual("assignments", puts.size(), std::size_t{1});
    CheckValuesSent(puts);
    Report().CheckEqual("values of the component", reader_.ComponentValues("Cover-1"),
                        ValuesAsSent());
}

// The window lies over both programs: it goes to where nothing is clicked.
void MainJob::SeeWhichColorIsSeen() {
    PostMessageW(Main().Window().Handle(), WM_COMMAND, IDM_mnuSWXColorLevels, 0);
    DWORD process = 0;
    GetWindowThreadProcessId(Main().Window().Handle(), &process);
    levels_ = RemoteWindow::WaitFor(L"frmLevels", process);
    const RECT main = Main().Window().Bounds();
    const RECT place = levels_.Bounds();
    levels_.Place(main.right - (place.right - place.left), main.top, place.right - place.left,
                  place.bottom - place.top);
    CheckLevels({{"Component", "seen"}, {"Body", "no color"}, {"Part", "covered"}});
    Report().CheckEqual("sentence", levels_.Child(IDC_lblLevels).Text(),
                        std::string("The color of the component covers that of the part."));
    Row shown = RemoteList(levels_.Child(IDC_lvLevels)).ReadRow(0);
    shown.erase(shown.begin(), shown.begin() + 2);
    Report().CheckEqual("values of the component", shown, Main().ValueTexts());
}

// By keyboard, from the list.
void MainJob::ClearSeenColor() {
    Report().CheckBecomes(
        "the list has the focus",
        [this] { return levels_.FocusedChild() == levels_.Child(IDC_lvLevels).Handle(); }, true);
    log_.Mark();
    RealInput::PressWithAlt('E');
    CheckLevels({{"Component", "no color"}, {"Body", "no color"}, {"Part", "seen"}});
    Report().CheckEqual("calls that clear", log_.NewLinesWith("RemoveMaterialProperty").size(),
                        std::size_t{1});
    Report().CheckEqual("values of the component", reader_.ComponentValues("Cover-1"),
                        std::vector<double>());
    Report().CheckEqual("status bar", Main().InfoText(), std::string(kStatusOkay));
}

// Another selection; the window reads it when it is told to.  Enter takes the color that is seen.
void MainJob::ReadLevelsOfAFace() {
    StandIn().ClickObject("Face 2 of Screw-2");
    Report().CheckBecomes(
        "selected in the stand-in", [this] { return StandIn().SelectedObjects(); },
        std::vector<std::string>{"Face 2 of Screw-2"});
    RealInput::Click(levels_.Child(IDC_cmdReadLevels).Centre());
    CheckLevels({{"Component", "seen"},
                 {"Face", "no color"},
                 {"Feature", "no color"},
                 {"Body", "no color"},
                 {"Part", "covered"}});
    RealInput::PressKey(VK_F5);
    const std::vector<double> values = reader_.ComponentValues("Screw-2");
    RealInput::Click(levels_.Child(IDC_cmdTakeLevel).Centre());
    Report().CheckBecomes(
        "values of the editor", [this] { return Main().ValueTexts(); }, TextsOf(values));
    Report().CheckEqual("name in the editor", Main().ColorName(), std::string(kNameFromSolidWorks));
    RealInput::PressKey(VK_ESCAPE);
    Report().CheckBecomes(
        "the window is shown", [this] { return levels_.IsVisible(); }, false);
}

void MainJob::CheckLevels(const std::vector<Row>& levelsAndStates) {
    Report().CheckBecomes(
        "levels",
        [this] {
            std::vector<Row> rows = RemoteList(levels_.Child(IDC_lvLevels)).ReadRows();
            for (Row& row : rows)
                row.resize(2);
            return rows;
        },
        levelsAndStates);
}
