// The steps of the main job that move colors from and to the stand-in for SolidWorks.

#include "tests/e2e/MainJob.h"

#include "common/Numbers.h"
#include "resources/controls.h"
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
