#pragma once

#include "common/Settings.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "convert/LibraryPalette.h"
#include "library/ColorLibrary.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/MainView.h"
#include "mainwindow/PaletteTexts.h"

#include <optional>
#include <string>
#include <vector>

// Foreign palettes: files of several formats become libraries, or groups of a library; a library
// or a group becomes such a file.
class PaletteCommands {
public:
    struct Parts {
        ColorLibrary& library;
        LibraryPanes& panes;
        const ColorEditor& editor;
        BarsPane& bars;
        MainFrame& frame;
        Files& files;
        const AnsiCodePage& codePage;
        const Settings& settings;
        Prompts& prompts;
        InfoTexts& texts;
    };

    explicit PaletteCommands(const Parts& parts) : parts_(parts), texts_(parts.texts) {}

    // Each file becomes a library of its own.  What it does not say of a color comes from the
    // editor.  What could not be read is told in one message.  Throws RuntimeError when a value of
    // the editor is needed and is no number.
    void mnuFileImport_Click();
    // The same as groups of the selected library; without one, as libraries.  Throws RuntimeError
    // DuplicateKey when the number of one of the groups is taken; nothing is imported then.
    void mnuFileImportGroups_Click();

    // Palettes among files that were dropped onto the window, as with Import; a file of another
    // ending, or a text that is none, is left alone.
    void ImportDropped(const std::vector<std::string>& paths);

    // The selected library or group; the file's ending says in which format.  What that does not
    // hold is told before.
    void mnuFileExport_Click();

private:
    struct ReadFile {
        std::string path;
        Palette palette;
    };

    [[nodiscard]] std::vector<std::string> AskPalettes();
    // mainKey: gets the groups; empty: each palette becomes a library.
    void Import(const std::vector<std::string>& paths, const std::string& mainKey);
    [[nodiscard]] std::optional<Palette> Read(const std::string& path, std::string& report) const;
    [[nodiscard]] ColorMaterial MaterialFor(const std::vector<ReadFile>& files) const;
    void CheckRoomForGroups(const std::vector<ReadFile>& files, const std::string& mainKey) const;
    // Gives the key of the palette's first group.
    std::string Add(const ReadFile& file, const std::string& mainKey,
                    const ColorMaterial& material);
    void ShowImported(const std::vector<ReadFile>& files, const std::string& groupKey);
    [[nodiscard]] bool IsDroppedPalette(const std::string& path) const;
    [[nodiscard]] std::string ExportPreset(const LibraryNode& node) const;
    [[nodiscard]] LibraryAsPalette SelectedPalette() const;
    void Export(const std::string& path);
    void Write(const std::string& path, const std::string& bytes);
    void Tell(const std::string& text);

    Parts parts_;
    PaletteTexts texts_;
    std::string exportFolder_; // that was used last, with a backslash at its end
};
