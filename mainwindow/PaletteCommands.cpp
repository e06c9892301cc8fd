#include "mainwindow/PaletteCommands.h"

#include "common/FileNames.h"
#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/Text.h"
#include "library/SafeFileWriter.h"
#include "mainwindow/WaitingShown.h"
#include "palettes/PaletteFormat.h"

#include <iterator>
#include <algorithm>
#include <tuple>

namespace {

constexpr const char* kTextExtension = ".txt";

void AddLine(std::string& report, const std::string& path, const std::string& what) {
    report += kLineBreak + FileNamePart(path) + ": " + what;
}

} // namespace

void PaletteCommands::Tell(const std::string& text) {
    parts_.prompts.ShowMessage(text, MessageStyle::Exclamation,
                               parts_.texts.GetInfoText(InfoTextNumber::Attention));
}

std::vector<std::string> PaletteCommands::AskPalettes() {
    return parts_.prompts.AskOpenFiles(
        {texts_.Text(InfoTextNumber::ImportPalettes, "Paletten importieren"),
         texts_.ImportFilter(),
         {},
         FileDialogFlags::Read});
}

void PaletteCommands::mnuFileImport_Click() {
    Import(AskPalettes(), {});
}

void PaletteCommands::mnuFileImportGroups_Click() {
    const std::vector<std::string> paths = AskPalettes();
    Import(paths, parts_.library.GetActiveMainnode());
}

void PaletteCommands::ImportDropped(const std::vector<std::string>& paths) {
    std::vector<std::string> palettes;
    std::ranges::copy_if(paths, std::back_inserter(palettes),
                         [this](const std::string& path) { return IsDroppedPalette(path); });
    Import(palettes, {});
}

bool PaletteCommands::IsDroppedPalette(const std::string& path) const {
    if (!FormatOfEnding(path))
        return false;
    std::string unheard;
    return !HasExtension(path, kTextExtension) || Read(path, unheard).has_value();
}

// All are read and looked at before the first one is added: what stops one of them stops all.
void PaletteCommands::Import(const std::vector<std::string>& paths, const std::string& mainKey) {
    std::string report;
    bool isAnyImported = false;
    {
        const WaitingShown waiting(parts_.frame);
        std::vector<ReadFile> files;
        for (const std::string& path : paths)
            if (std::optional<Palette> palette = Read(path, report))
                files.push_back({path, std::move(*palette)});
        const ColorMaterial material = MaterialFor(files);
        if (!mainKey.empty())
            CheckRoomForGroups(files, mainKey);
        std::string firstGroup;
        for (const ReadFile& file : files)
            firstGroup = Add(file, mainKey, material);
        isAnyImported = !files.empty();
        if (isAnyImported)
            ShowImported(files, firstGroup);
    }
    if (!report.empty())
        Tell((isAnyImported
                  ? texts_.Text(InfoTextNumber::NotAllImported, "Nicht alles wurde importiert:")
                  : texts_.Text(InfoTextNumber::NothingImported, "Nichts wurde importiert:")) +
             report);
}

std::optional<Palette> PaletteCommands::Read(const std::string& path, std::string& report) const {
    const std::optional<std::string> bytes = parts_.files.ReadWhole(path);
    if (!bytes) {
        AddLine(report, path,
                texts_.Text(InfoTextNumber::PaletteNotOpened, "kann nicht gelesen werden"));
        return {};
    }
    PaletteReading reading = ReadPalette(*bytes, parts_.codePage);
    if (!reading.format) {
        AddLine(report, path,
                texts_.Text(InfoTextNumber::NoPalette, "keine Palette in einem bekannten Format"));
        return {};
    }
    if (!reading.faults.IsNothing())
        AddLine(report, path, texts_.Told(reading.faults, *reading.format));
    if (reading.palette.entries.empty()) {
        AddLine(report, path, texts_.Text(InfoTextNumber::EmptyPalette, "keine Farben"));
        return {};
    }
    if (reading.palette.name.empty())
        reading.palette.name = FileNameStem(path);
    return std::move(reading.palette);
}

ColorMaterial PaletteCommands::MaterialFor(const std::vector<ReadFile>& files) const {
    ColorMaterial material = kUsualMaterial;
    if (std::ranges::none_of(files, LacksMaterial, &ReadFile::palette))
        return material;
    const ColorValueArray values = parts_.editor.Values();
    std::copy(values.end() - std::tuple_size_v<ColorMaterial>, values.end(), material.begin());
    return material;
}

void PaletteCommands::CheckRoomForGroups(const std::vector<ReadFile>& files,
                                         const std::string& mainKey) const {
    std::size_t count = 0;
    for (const ReadFile& file : files)
        count += CountOfNewGroups(file.palette);
    if (!parts_.library.AreNextGroupNumbersFree(mainKey, count))
        throw RuntimeError(ErrorNumber::DuplicateKey, ErrorTexts::GroupNumberTaken);
}

std::string PaletteCommands::Add(const ReadFile& file, const std::string& mainKey,
                                 const ColorMaterial& material) {
    if (!mainKey.empty())
        return AddPaletteGroups(parts_.library, mainKey, file.palette,
                                {.firstGroup = file.palette.name, .material = material});
    const std::string library =
        AddPalette(parts_.library, file.palette,
                   {.name = file.palette.name,
                    .firstGroup = texts_.Text(InfoTextNumber::ImportedGroup, "Farben"),
                    .material = material});
    return parts_.library.Tree().At(library).children.front();
}

void PaletteCommands::ShowImported(const std::vector<ReadFile>& files,
                                   const std::string& groupKey) {
    LibraryTree& tree = parts_.library.Tree();
    tree.Expand(tree.At(groupKey).parent);
    tree.Select(groupKey);
    parts_.panes.ShowColorNodes(groupKey);
    std::string names;
    std::size_t colors = 0;
    for (const ReadFile& file : files) {
        names += (names.empty() ? "" : ", ") + FileNamePart(file.path);
        colors += file.palette.entries.size();
    }
    parts_.bars.SetInfoPanelText("Okay " + names + "  -  " +
                                 texts_.Text(InfoTextNumber::ImportedColors, "Farben importiert") +
                                 ": " + std::to_string(colors));
}

void PaletteCommands::mnuFileExport_Click() {
    const LibraryNode* node = parts_.library.Tree().Find(parts_.library.Tree().Selected());
    if (node == nullptr)
        return;
    const std::optional<std::string> path = parts_.prompts.AskSaveFile(
        {texts_.Text(InfoTextNumber::ExportPalette, "Als Palette exportieren"),
         texts_.ExportFilter(), ExportPreset(*node), FileDialogFlags::SaveAs});
    if (path)
        Export(*path);
}

// Without an ending: that is the filter's, which the user chooses.
std::string PaletteCommands::ExportPreset(const LibraryNode& node) const {
    const std::string mainKey = parts_.library.GetActiveMainnode();
    const std::string folder =
        exportFolder_.empty() ? FilePathPart(parts_.library.Tree().At(mainKey).file.value_or(""))
                              : exportFolder_;
    return folder + AsFileName(node.text);
}

LibraryAsPalette PaletteCommands::SelectedPalette() const {
    const std::string& key = parts_.library.Tree().Selected();
    return parts_.library.Tree().IsGroup(key) ? PaletteOfGroup(parts_.library, key)
                                              : PaletteOfLibrary(parts_.library, key);
}

void PaletteCommands::Export(const std::string& path) {
    const std::optional<PaletteFormat> format = FormatOfEnding(path);
    if (!format) {
        Tell(texts_.Text(InfoTextNumber::EndingIsNoFormat,
                         "Die Endung des Namens bestimmt das Format: .gpl, .ase, .aco oder .csv") +
             kLineBreak + path);
        return;
    }
    std::string question;
    PaletteWriting writing;
    {
        const WaitingShown waiting(parts_.frame);
        const LibraryAsPalette made = SelectedPalette();
        writing = WritePalette(made.palette, *format);
        if (FileNameStem(path) == made.palette.name) // an import takes it from there
            writing.losses.paletteNames = 0;
        question = texts_.QuestionAbout(writing.losses, made.changedColors);
    }
    const bool isWanted =
        question.empty() || parts_.prompts.ShowMessage(
                                question, MessageStyle::ExclamationOkCancel,
                                parts_.texts.GetInfoText(InfoTextNumber::Attention)) == Answer::Ok;
    if (isWanted)
        Write(path, writing.bytes);
}

void PaletteCommands::Write(const std::string& path, const std::string& bytes) {
    if (SafeFileWriter(parts_.files).Write(path, bytes, parts_.settings.createBackups) !=
        Exchanged::Done) {
        parts_.prompts.ShowMessage(texts_.Text(InfoTextNumber::ExportFailed,
                                               "Die Palette konnte nicht geschrieben werden:") +
                                       " " + path,
                                   MessageStyle::Critical,
                                   parts_.texts.GetInfoText(InfoTextNumber::Attention));
        return;
    }
    exportFolder_ = FilePathPart(path);
    parts_.bars.SetInfoPanelText("Okay " + FileNamePart(path));
}
