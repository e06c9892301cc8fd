#include "mainwindow/SolidWorksCommands.h"

#include "common/InfoTextNumber.h"
#include "solidworks/ResultKey.h"

#include <algorithm>

namespace {

constexpr int kFirstEmission = 10;
constexpr std::ptrdiff_t kFirstMaterialValue = 3;

// The material values come from the editor; the emission tells the place in the table, on purpose,
// and ends where the editor's range does.
void CompleteStandardColors(std::vector<ColorRecord>& colors, const ColorValueArray& editor) {
    constexpr auto emission = static_cast<std::size_t>(ColorValue::Emission);
    int place = kFirstEmission;
    for (ColorRecord& color : colors) {
        std::copy(editor.begin() + kFirstMaterialValue, editor.end(),
                  color.values.begin() + kFirstMaterialValue);
        color.values[emission] =
            static_cast<std::int16_t>(std::min(place++, MaximumOfColorValue(emission)));
    }
}

} // namespace

ColorRecord SolidWorksCommands::ColorOfEditor() const {
    ColorRecord color;
    color.name = parts_.editor.Name();
    color.values = parts_.editor.Values();
    return color;
}

void SolidWorksCommands::mnuSWXGetColor_Click() {
    ShowSelectedColor();
}

bool SolidWorksCommands::ShowSelectedColor() {
    ColorRecord color;
    // No message for the detailed keys, on purpose: the editor then shows the record as handed in.
    if (parts_.report.ReportRefusal(parts_.tools.SWXGetColor(color)))
        return false;
    parts_.editor.ShowColorFromSolidWorks(color);
    return true;
}

// A cancelled name goes on with the color that was active before, on purpose.  A refusal changes
// nothing: a new color has the editor's values already.
void SolidWorksCommands::NewColorNodeFromSWX() {
    parts_.newNodes.NewColorNode();
    if (ShowSelectedColor())
        parts_.panes.UpdateFromColorPreview();
}

void SolidWorksCommands::mnuSWXSetColor_Click() {
    parts_.report.Report(parts_.tools.SWXSetColor(ColorOfEditor()));
}

void SolidWorksCommands::mnuSWXSetColorComponent_Click() {
    parts_.report.Report(parts_.tools.SWXSetColorComponent(ColorOfEditor()));
}

void SolidWorksCommands::mnuSWXClearColorFromSelection_Click() {
    parts_.report.Report(parts_.tools.SWXClearColor());
}

void SolidWorksCommands::mnuSWXClearComponentColorFromSelection_Click() {
    parts_.report.Report(parts_.tools.SWXClearComponentColor());
}

void SolidWorksCommands::mnuSWXClearColorPart_Click() {
    parts_.report.Report(parts_.tools.SWXClearColorPart());
}

void SolidWorksCommands::mnuSWXClearColorAssembly_Click() {
    parts_.report.Report(parts_.tools.SWXClearColorAssembly());
}

// The table is read first; meanwhile the user may click on another node or type into the editor,
// but what counts is what was there before.
void SolidWorksCommands::mnuSWXGetStandardColor_Click() {
    LibraryTree& tree = parts_.library.Tree();
    const std::string selected = tree.Selected();
    const ColorEditor::Texts shown = parts_.editor.ValueTexts();
    std::vector<ColorRecord> colors;
    const std::string result = parts_.tools.SWXGetStandardColors(colors);
    if (parts_.report.ReportRefusal(result) || parts_.activity.endRequested)
        return;
    const bool isStopped = KindOfResult(result) == ResultKind::Stopped;
    if (tree.Selected() != selected && tree.Find(selected)) {
        tree.Select(selected);
        parts_.panes.ShowColorNodes();
    }
    if (!isStopped || !colors.empty())
        ImportStandardColors(colors, shown);
    if (isStopped)
        parts_.report.ShowMessage(result);
}

void SolidWorksCommands::ImportStandardColors(std::vector<ColorRecord>& colors,
                                              const ColorEditor::Texts& editor) {
    LibraryTree& tree = parts_.library.Tree();
    if (tree.Selected().empty())
        parts_.newNodes.NewMainNode();
    const std::string mainKey = parts_.library.GetActiveMainnode();
    if (mainKey.empty())
        return;
    const std::string groupKey = parts_.library.NewGroupNode(
        mainKey, parts_.texts.GetInfoText(InfoTextNumber::StandardColors));
    tree.SetUnsaved(mainKey); // only now: where the group is refused nothing may change
    tree.Expand(mainKey);
    tree.Select(groupKey);
    try {
        if (!colors.empty())
            CompleteStandardColors(colors, ColorEditor::ValuesOf(editor));
    } catch (...) { // the editor holds no number: the group stays empty, and the list shows it
        parts_.panes.ShowColorNodes();
        throw;
    }
    const std::string lastKey = parts_.library.AppendColors(groupKey, colors);
    if (lastKey.empty())
        parts_.panes.ShowColorNodes();
    else
        parts_.panes.ShowColorNodes(groupKey, lastKey);
}

void SolidWorksCommands::mnuSWXSetStandardColor_Click() {
    const ColorTable& table = parts_.library.Colors();
    std::vector<ColorRecord> colors;
    for (const ColorId color : parts_.list.Rows())
        colors.push_back(table.At(table.IndexOfId(color)));
    parts_.report.ReportRefusal(parts_.tools.SWXSetStandardColors(colors));
}
