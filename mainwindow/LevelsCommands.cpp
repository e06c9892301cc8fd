#include "mainwindow/LevelsCommands.h"

#include "common/ValueRestorer.h"
#include "resources/controls.h"
#include "solidworks/ColorSources.h"
#include "solidworks/ResultKey.h"
#include "support/settings/modWindowsHandling.h"

#include <algorithm>
#include <utility>

namespace {

LevelRow RowOf(const LevelColor& level, const LevelCells& cells) {
    LevelRow row{.cells = cells, .color = {}, .canBeCleared = CanBeCleared(level)};
    if (level.values)
        row.color = MakeColorNumber(
            PaintedColor((*level.values)[0], (*level.values)[1], (*level.values)[2]));
    return row;
}

} // namespace

LevelsCommands::LevelsCommands(const Parts& parts)
    : parts_(parts), texts_(parts.language), place_(parts.registry, parts.mainWindow) {}

void LevelsCommands::mnuSWXColorLevels_Click() {
    const std::string result =
        Run([this](LevelColors& colors) { return parts_.tools.SWXReadLevels(colors); });
    if (result != ResultKey::ColorRead)
        parts_.report.Report(result);
    else if (!parts_.activity.endRequested)
        Open();
}

// Named as every color that comes from SolidWorks.
void LevelsCommands::TakeChosen() {
    if (!chosen_ || !chosen_->values)
        return;
    ColorRecord color;
    color.name = ColorSources::kNameOfReadColor;
    color.values = *chosen_->values;
    parts_.editor.ShowColorFromSolidWorks(color);
}

void LevelsCommands::ClearChosen() {
    if (!chosen_ || !CanBeCleared(*chosen_))
        return;
    parts_.report.Report(Run(
        [this](LevelColors& colors) { return parts_.tools.SWXClearLevel(chosen_->kind, colors); }));
}

// The window shows what is known at the end, also after a failure: nothing.
std::string LevelsCommands::Run(const Operation& operation) {
    LevelColors colors = std::exchange(colors_, {});
    try {
        std::string result = operation(colors);
        colors_ = std::move(colors);
        ShowLevels();
        return result;
    } catch (...) {
        ShowLevels();
        throw;
    }
}

void LevelsCommands::Open() {
    LevelsView& view = parts_.window.Get();
    place_.Opening(view);
    SetFormOnTop(view, parts_.settings.alwaysOnTop);
    FollowLanguage();
    view.ShowModeless();
}

void LevelsCommands::FollowLanguage() {
    LevelsView* view = parts_.window.IfMade();
    if (view == nullptr || language_ == parts_.settings.language)
        return;
    language_ = parts_.settings.language;
    parts_.language.SetAllControlText(*view);
    view->SetWindowCaption(texts_.WindowCaption());
    view->SetColumnCaptions(texts_.ColumnCaptions());
    ShowLevels();
}

void LevelsCommands::ShowLevels() {
    LevelsView* view = parts_.window.IfMade();
    if (view == nullptr)
        return;
    std::vector<LevelRow> rows;
    rows.reserve(colors_.levels.size());
    for (std::size_t index = 0; index < colors_.levels.size(); ++index)
        rows.push_back(RowOf(colors_.levels[index], texts_.CellsOf(colors_, index)));
    view->ShowSentence(texts_.SentenceOf(colors_));
    view->ShowRows(rows, rows.empty() ? -1 : static_cast<int>(RowToSelect().value_or(0)));
}

// The seen one; after a command of a row that row, so that the same key again clears no other one.
std::optional<std::size_t> LevelsCommands::RowToSelect() const {
    const auto chosen = std::ranges::find_if(colors_.levels, [this](const LevelColor& level) {
        return chosen_ && level.kind == chosen_->kind;
    });
    if (chosen == colors_.levels.end())
        return colors_.Seen();
    return static_cast<std::size_t>(chosen - colors_.levels.begin());
}

void LevelsCommands::RunOn(int row, int command) {
    const auto index = static_cast<std::size_t>(row);
    if (row < 0 || index >= colors_.levels.size())
        return;
    const ValueRestorer chosen(chosen_, std::optional(colors_.levels[index]));
    parts_.runCommand(command);
}

void LevelsCommands::TakeClicked(int row) {
    RunOn(row, IDC_cmdTakeLevel);
}

void LevelsCommands::ClearClicked(int row) {
    RunOn(row, IDC_cmdClearLevel);
}

void LevelsCommands::ReadClicked() {
    parts_.runCommand(IDM_mnuSWXColorLevels);
}
