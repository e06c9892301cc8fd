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
    for (const std::string& text : main_->ValueTexts())
        values.push_back(std::stoi(text) / ScaleOf(values.size()));
    return values;
}

void MainJob::GetColorOfFace() {
    standIn_->ClickObject("Face 10");
    report_.CheckBecomes(
        "selected in the stand-in", [this] { return standIn_->SelectedObjects(); },
        std::vector<std::string>{"Face 10"});
    const std::vector<double> values = reader_.SelectedValues();
    report_.CheckEqual("numbers of the face", values.size(), RemoteMain::kValues);
    main_->ClickButton(IDM_mnuSWXGetColor);
    report_.CheckBecomes(
        "values of the editor", [this] { return main_->ValueTexts(); }, TextsOf(values));
    report_.CheckBecomes(
        "name in the editor", [this] { return main_->ColorName(); },
        std::string(kNameFromSolidWorks));
}

void MainJob::MakeColorFromFace() {
    std::vector<Row>& rows = GroupNamed(library_, kGroup).rows;
    const std::string preset = "New Color" + std::to_string(rows.size() + 1);
    main_->ClickButton(IDM_mnuSWXNewColorUpdate);
    const RemoteDialogs::Question question =
        RemoteDialogs::AnswerInputBox(main_->Window(), "From a face");
    report_.Note("question: " + question.prompt);
    report_.CheckEqual("preset name", question.preset, preset);

    Row row = main_->ValueTexts();
    row.insert(row.begin(), kNameFromSolidWorks);
    rows.push_back(row);
    report_.CheckBecomes(
        "rows of the list", [this] { return main_->List().ReadRows(); }, rows);
    report_.CheckBecomes(
        "selected colors", [this] { return main_->List().SelectedNames(); },
        std::vector<std::string>{kNameFromSolidWorks});
}

// Each line of the record that assigns values must hold exactly those of the editor.
void MainJob::CheckValuesSent(const std::vector<std::string>& puts) {
    for (const std::string& put : puts) {
        report_.Note(put);
        report_.CheckEqual("numbers received", NumbersOf(put), ValuesAsSent());
    }
}

void MainJob::SetColorOnTwoFaces() {
    main_->List().ClickRow(kColor);
    report_.CheckBecomes(
        "name in the editor", [this] { return main_->ColorName(); }, std::string(kColor));
    standIn_->ClickObject("Face 1");
    standIn_->CtrlClickObject("Face 2");
    report_.CheckBecomes(
        "selected in the stand-in", [this] { return standIn_->SelectedObjects(); },
        std::vector<std::string>{"Face 1", "Face 2"});

    log_.Mark();
    main_->ClickButton(IDM_mnuSWXSetColor);
    report_.CheckBecomes(
        "status bar", [this] { return main_->InfoText(); }, std::string(kStatusOkay));
    const std::vector<std::string> puts = log_.NewLinesWith("put ");
    report_.CheckEqual("assignments", puts.size(), std::size_t{2});
    report_.CheckEqual("rebuilds", log_.NewLinesWith("EditRebuild").size(), std::size_t{1});
    CheckValuesSent(puts);
    report_.CheckEqual("values of face 1", reader_.FaceValues(1), ValuesAsSent());
    report_.CheckEqual("values of face 2", reader_.FaceValues(2), ValuesAsSent());
    report_.Check(reader_.FaceValues(3) != ValuesAsSent(), "face 3 keeps its own values");
}

void MainJob::SetColorOnComponent() {
    main_->List().ClickRow("Copper");
    report_.CheckBecomes(
        "name in the editor", [this] { return main_->ColorName(); }, std::string("Copper"));
    standIn_->ChooseNextDocument();
    report_.CheckBecomes(
        "document", [this] { return standIn_->ChosenDocument(); }, std::string("Assembly"));
    standIn_->ClickObject("Cover-1");
    report_.CheckBecomes(
        "selected in the stand-in", [this] { return standIn_->SelectedObjects(); },
        std::vector<std::string>{"Cover-1"});

    log_.Mark();
    main_->ClickButton(IDM_mnuSWXSetColorComponent);
    report_.CheckBecomes(
        "rebuilds", [this] { return log_.NewLinesWith("EditRebuild").size(); }, std::size_t{1});
    const std::vector<std::string> puts = log_.NewLinesWith("put ");
    report_.CheckEqual("assignments", puts.size(), std::size_t{1});
    CheckValuesSent(puts);
    report_.CheckEqual("values of the component", reader_.ComponentValues("Cover-1"),
                       ValuesAsSent());
}
