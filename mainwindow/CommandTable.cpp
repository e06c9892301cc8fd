#include "mainwindow/CommandTable.h"

#include "mainwindow/MainCommands.h"
#include "resources/controls.h"

#include <algorithm>

namespace {

using Commands = const MainCommands&;

constexpr Shortcut Plain(std::uint8_t key) {
    return {.key = key};
}
constexpr Shortcut Shifted(std::uint8_t key) {
    return {.shift = true, .key = key};
}
constexpr Shortcut Ctrl(std::uint8_t key) {
    return {.ctrl = true, .key = key};
}
constexpr Shortcut CtrlShift(std::uint8_t key) {
    return {.ctrl = true, .shift = true, .key = key};
}
constexpr Shortcut OutsideText(std::uint8_t key) {
    return {.ctrl = true, .key = key, .reach = ShortcutReach::OutsideText};
}
constexpr Shortcut InList(std::uint8_t key) {
    return {.key = key, .reach = ShortcutReach::ListOnly};
}

constexpr MenuRow Title(int command, const char* name, const char* caption) {
    return {.command = command, .name = name, .caption = caption, .place = MenuKind::Title};
}
constexpr MenuRow Submenu(int command, const char* name, const char* caption) {
    return {.command = command, .name = name, .caption = caption, .place = MenuKind::Submenu};
}
constexpr MenuRow Separator(int command, const char* name) {
    return {.command = command, .name = name, .caption = "-", .place = MenuKind::Separator};
}
constexpr MenuRow Entry(int command, const char* name, const char* caption, CommandHandler run,
                        Shortcut shortcut = {}) {
    return {.command = command,
            .name = name,
            .caption = caption,
            .place = MenuKind::Entry,
            .run = run,
            .shortcut = shortcut};
}
constexpr MenuRow SubmenuEntry(int command, const char* name, const char* caption,
                               CommandHandler run) {
    return {.command = command,
            .name = name,
            .caption = caption,
            .place = MenuKind::SubmenuEntry,
            .run = run};
}
constexpr MenuRow Reporting(int command, const char* name, const char* caption, CommandHandler run,
                            Shortcut shortcut = {}) {
    MenuRow row = Entry(command, name, caption, run, shortcut);
    row.kind = CommandKind::Reports;
    return row;
}
constexpr MenuRow Operation(int command, const char* name, const char* caption,
                            CommandHandler run) {
    MenuRow row = Entry(command, name, caption, run);
    row.kind = CommandKind::Operation;
    return row;
}

// Of a button in a window of its own, by the button's number.
constexpr MenuRow OfButton(int command, CommandHandler run, CommandKind kind = CommandKind::Plain) {
    return {.command = command,
            .name = "",
            .caption = "",
            .place = MenuKind::Entry,
            .run = run,
            .kind = kind};
}

// What it changes in the libraries is one step.
constexpr MenuRow Step(MenuRow row) {
    row.isStep = true;
    return row;
}
constexpr MenuRow AlsoBy(Shortcut shortcut, MenuRow row) {
    row.otherShortcut = shortcut;
    return row;
}

constexpr std::array kMenuRows = {
    Title(IDM_mnuFile, "mnuFile", "Datei"),
    Step(Reporting(
        IDM_mnuFileNew, "mnuFileNew", "Neu", [](Commands c) { c.file.mnuFileNew_Click(); },
        Ctrl('N'))),
    Reporting(
        IDM_mnuFileOpen, "mnuFileOpen", "Öffnen ...",
        [](Commands c) { c.file.mnuFileOpen_Click(); }, Ctrl('O')),
    Reporting(
        IDM_mnuFileSave, "mnuFileSave", "Speichern", [](Commands c) { c.file.mnuFileSave_Click(); },
        Ctrl('S')),
    Reporting(
        IDM_mnuFileSaveAs, "mnuFileSaveAs", "Speichern unter ...",
        [](Commands c) { c.file.mnuFileSaveAs_Click(); }, CtrlShift('S')),
    Step(Reporting(IDM_mnuFileClose, "mnuFileClose", "Schließen",
                   [](Commands c) { c.file.mnuFileClose_Click(); })),
    Reporting(IDM_mnuFileCancelAutoload, "mnuFileCancelAutoload", "Automatisches Laden aufheben",
              [](Commands c) { c.file.mnuFileCancelAutoload_Click(); }),
    Separator(IDM_mnuFileHR, "mnuFileHR"),
    Entry(IDM_mnuQuit, "mnuQuit", "Beenden", [](Commands c) { c.quit(); }),
    Separator(IDM_mnuFileHR2, "mnuFileHR2"),
    Reporting(IDM_mnuFileRecover, "mnuFileRecover", "Wiederherstellen ...",
              [](Commands c) { c.recover.mnuFileRecover_Click(); }),
    Separator(IDM_mnuFileHR3, "mnuFileHR3"),
    Step(Reporting(IDM_mnuFileImport, "mnuFileImport", "Importieren ...",
                   [](Commands c) { c.palettes.mnuFileImport_Click(); })),
    Step(Reporting(IDM_mnuFileImportGroups, "mnuFileImportGroups",
                   "In die Bibliothek importieren (Gruppen) ...",
                   [](Commands c) { c.palettes.mnuFileImportGroups_Click(); })),
    Reporting(IDM_mnuFileExport, "mnuFileExport", "Exportieren ...",
              [](Commands c) { c.palettes.mnuFileExport_Click(); }),

    Title(IDM_mnuEdit, "mnuEdit", "Bearbeiten"),
    Reporting(
        IDM_mnuEditUndo, "mnuEditUndo", "Rückgängig",
        [](Commands c) { c.history.mnuEditUndo_Click(); }, OutsideText('Z')),
    AlsoBy({.ctrl = true, .shift = true, .key = 'Z', .reach = ShortcutReach::OutsideText},
           Reporting(
               IDM_mnuEditRedo, "mnuEditRedo", "Wiederholen",
               [](Commands c) { c.history.mnuEditRedo_Click(); }, OutsideText('Y'))),
    Separator(IDM_mnuEditHR1, "mnuEditHR1"),
    Entry(
        IDM_mnuEditFind, "mnuEditFind", "Suchen ...",
        [](Commands c) { c.find.mnuEditFind_Click(); }, Ctrl('F')),
    Entry(
        IDM_mnuEditFindNext, "mnuEditFindNext", "Nächster Treffer",
        [](Commands c) { c.find.mnuEditFindNext_Click(); }, Plain(Key::F3)),
    Entry(
        IDM_mnuEditFindPrevious, "mnuEditFindPrevious", "Vorheriger Treffer",
        [](Commands c) { c.find.mnuEditFindPrevious_Click(); }, Shifted(Key::F3)),

    Title(IDM_mnuColor, "mnuColor", "Farbe"),
    Step(Entry(IDM_mnuColorNewMainNode, "mnuColorNewMainNode", "Neue Bibliothek",
               [](Commands c) { c.newNodes.NewMainNode(); })),
    Step(Entry(IDM_mnuColorNewGroup, "mnuColorNewGroup", "Neue Gruppe",
               [](Commands c) { c.newNodes.NewGroupNode(); })),
    Step(Entry(IDM_mnuColorNewColor, "mnuColorNewColor", "Neue Farbe",
               [](Commands c) { c.newNodes.NewColorNode(); })),
    Separator(IDM_mnuColorHR1, "mnuColorHR1"),
    Entry(IDM_mnuColorRenameNode, "mnuColorRenameNode", "Bibliothek oder Gruppe umbenennen",
          [](Commands c) { c.panes.EditSelectedNode(); }),
    Separator(IDM_mnuColorHR2, "mnuColorHR2"),
    Step(Entry(IDM_mnuColorDelMainNode, "mnuColorDelMainNode", "Bibliothek löschen",
               [](Commands c) { c.editing.DeleteMainNode(); })),
    Step(Entry(IDM_mnuColorDelGroup, "mnuColorDelGroup", "Gruppe löschen",
               [](Commands c) { c.editing.DeleteGroup(); })),
    Step(Entry(
        IDM_mnuColorDelColor, "mnuColorDelColor", "Farbe löschen",
        [](Commands c) { c.editing.DeleteColor(); }, InList(Key::Delete))),
    Separator(IDM_mnuColorHR3, "mnuColorHR3"),
    Entry(
        IDM_mnuColorCopy, "mnuColorCopy", "Kopieren", [](Commands c) { c.editing.Copy(); },
        OutsideText('C')),
    Step(Entry(
        IDM_mnuColorCut, "mnuColorCut", "Ausschneiden", [](Commands c) { c.editing.Cut(); },
        OutsideText('X'))),
    Step(Entry(
        IDM_mnuColorPaste, "mnuColorPaste", "Einfügen", [](Commands c) { c.editing.Paste(); },
        OutsideText('V'))),
    Separator(IDM_mnuColorHR4, "mnuColorHR4"),
    Entry(IDM_mnuColorChange, "mnuColorChange", "Farbwert wählen ...",
          [](Commands c) { c.editor.PickActiveColorFromDialog(); }),
    Step(Entry(IDM_mnuColorUpdateColor, "mnuColorUpdateColor", "Farbe aktualisieren",
               [](Commands c) { c.panes.UpdateFromColorPreview(); })),

    Title(IDM_mnuView, "mnuView", "Ansicht"),
    Entry(IDM_mnuViewToolbar, "mnuViewToolbar", "Symbolleiste",
          [](Commands c) { c.view.Toggle(IDM_mnuViewToolbar); }),
    Entry(IDM_mnuViewStatusBar, "mnuViewStatusBar", "Statusleiste",
          [](Commands c) { c.view.Toggle(IDM_mnuViewStatusBar); }),
    Entry(IDM_mnuViewBarStandards, "mnuViewBarStandards", "Leiste Standard",
          [](Commands c) { c.view.Toggle(IDM_mnuViewBarStandards); }),
    Entry(IDM_mnuViewBarColor, "mnuViewBarColor", "Leiste Farbe",
          [](Commands c) { c.view.Toggle(IDM_mnuViewBarColor); }),
    Entry(IDM_mnuViewBarListview, "mnuViewBarListview", "Leiste Listenansicht",
          [](Commands c) { c.view.Toggle(IDM_mnuViewBarListview); }),
    Entry(IDM_mnuViewBarSolidWorks, "mnuViewBarSolidWorks", "Leiste SolidWorks",
          [](Commands c) { c.view.Toggle(IDM_mnuViewBarSolidWorks); }),
    Separator(IDM_mnuViewHR1, "mnuViewHR1"),
    Entry(IDM_mnuViewHugeColorDialog, "mnuViewHugeColorDialog", "Großes Farbfeld",
          [](Commands c) { c.view.Toggle(IDM_mnuViewHugeColorDialog); }),
    Separator(IDM_mnuViewHR2, "mnuViewHR2"),
    Entry(IDM_mnuViewColorLargeIcons, "mnuViewColorLargeIcons", "Große Symbole",
          [](Commands c) { c.view.SetListView(ListViewMode::LargeIcons); }),
    Entry(IDM_mnuViewColorSmallIcons, "mnuViewColorSmallIcons", "Kleine Symbole",
          [](Commands c) { c.view.SetListView(ListViewMode::SmallIcons); }),
    Entry(IDM_mnuViewColorList, "mnuViewColorList", "Liste",
          [](Commands c) { c.view.SetListView(ListViewMode::List); }),
    Entry(IDM_mnuViewColorDetails, "mnuViewColorDetails", "Details",
          [](Commands c) { c.view.SetListView(ListViewMode::Details); }),
    Separator(IDM_mnuViewHR3, "mnuViewHR3"),
    Entry(IDM_mnuViewColorsInList, "mnuViewColorsInList", "Farben in der Liste",
          [](Commands c) { c.view.Toggle(IDM_mnuViewColorsInList); }),
    Entry(IDM_mnuViewMaterialPreview, "mnuViewMaterialPreview", "Materialvorschau",
          [](Commands c) { c.view.Toggle(IDM_mnuViewMaterialPreview); }),

    Title(IDM_mnuSWX, "mnuSWX", "SolidWorks"),
    Operation(IDM_mnuSWXGetColor, "mnuSWXGetColor", "Farbe aus SolidWorks holen",
              [](Commands c) { c.solidWorks.mnuSWXGetColor_Click(); }),
    Step(Operation(IDM_mnuSWXNewColorUpdate, "mnuSWXNewColorUpdate",
                   "Neue Farbe aus SolidWorks holen",
                   [](Commands c) { c.solidWorks.mnuSWXNewColorUpdate_Click(); })),
    Separator(IDM_mnuSWXHR1, "mnuSWXHR1"),
    Operation(IDM_mnuSWXSetColor, "mnuSWXSetColor", "Farbe in SolidWorks setzen",
              [](Commands c) { c.solidWorks.mnuSWXSetColor_Click(); }),
    Operation(IDM_mnuSWXSetColorComponent, "mnuSWXSetColorComponent",
              "Farbe der Komponente in SolidWorks setzen",
              [](Commands c) { c.solidWorks.mnuSWXSetColorComponent_Click(); }),
    Separator(IDM_mnuSWXHR2, "mnuSWXHR2"),
    Operation(IDM_mnuSWXClearColorFromSelection, "mnuSWXClearColorFromSelection",
              "Farbe der Auswahl entfernen",
              [](Commands c) { c.solidWorks.mnuSWXClearColorFromSelection_Click(); }),
    Operation(IDM_mnuSWXClearComponentColorFromSelection, "mnuSWXClearComponentColorFromSelection",
              "Farbe der gewählten Komponenten entfernen",
              [](Commands c) { c.solidWorks.mnuSWXClearComponentColorFromSelection_Click(); }),
    Operation(IDM_mnuSWXClearColorPart, "mnuSWXClearColorPart", "Alle Farben des Teils entfernen",
              [](Commands c) { c.solidWorks.mnuSWXClearColorPart_Click(); }),
    Operation(IDM_mnuSWXClearColorAssembly, "mnuSWXClearColorAssembly",
              "Farben aller Komponenten entfernen",
              [](Commands c) { c.solidWorks.mnuSWXClearColorAssembly_Click(); }),
    Separator(IDM_mnuSWXHR3, "mnuSWXHR3"),
    Step(Operation(IDM_mnuSWXGetStandardColor, "mnuSWXGetStandardColor", "Standardfarben holen",
                   [](Commands c) { c.solidWorks.mnuSWXGetStandardColor_Click(); })),
    Operation(IDM_mnuSWXSetStandardColor, "mnuSWXSetStandardColor", "Standardfarben setzen",
              [](Commands c) { c.solidWorks.mnuSWXSetStandardColor_Click(); }),
    Separator(IDM_mnuSWXHR4, "mnuSWXHR4"),
    Operation(IDM_mnuSWXColorLevels, "mnuSWXColorLevels", "Welche Farbe ist zu sehen ...",
              [](Commands c) { c.levels.mnuSWXColorLevels_Click(); }),

    Title(IDM_mnuOptions, "mnuOptions", "Optionen"),
    Submenu(IDM_mnuOptionsLanguage, "mnuOptionsLanguage", "Sprache"),
    SubmenuEntry(IDM_mnuOptionsLngGerman, "mnuOptionsLngGerman", "Deutsch",
                 [](Commands c) { c.options.mnuOptionsLngGerman_Click(); }),
    SubmenuEntry(IDM_mnuOptionsLngEnglish, "mnuOptionsLngEnglish", "Englisch",
                 [](Commands c) { c.options.mnuOptionsLngEnglish_Click(); }),
    Entry(IDM_mnuOptionsConfirmDel, "mnuOptionsConfirmDel", "Löschen immer bestätigen",
          [](Commands c) { c.options.mnuOptionsConfirmDel_Click(); }),
    Entry(IDM_mnuOptionsCreateBackups, "mnuOptionsCreateBackups", "Erzeuge Sicherungskopien",
          [](Commands c) { c.options.mnuOptionsCreateBackups_Click(); }),
    Entry(IDM_mnuOptionsAlwaysOnTop, "mnuOptionsAlwaysOnTop", "Immer im Vordergrund",
          [](Commands c) { c.options.mnuOptionsAlwaysOnTop_Click(); }),
    Separator(IDM_mnuOptionsHR, "mnuOptionsHR"),
    Entry(IDM_mnuOptionsSaveSettings, "mnuOptionsSaveSettings", "Einstellungen speichern",
          [](Commands c) { c.options.mnuOptionsSaveSettings_Click(); }),

    Title(IDM_mnuHlp, "mnuHlp", "Hilfe"),
    Entry(IDM_mnuHlpAbout, "mnuHlpAbout", "Info ...", [](Commands c) { c.about.ShowModal(); }),
    Entry(
        IDM_mnuHlpShowReadme, "mnuHlpShowReadme", "Liesmich",
        [](Commands c) { c.textViewer.Show("readme"); }, Plain(Key::F1)),
    Entry(IDM_mnuHlpShowLizenz, "mnuHlpShowLizenz", "Nutzungsbedingungen",
          [](Commands c) { c.textViewer.Show("lizenz"); }),
};

constexpr std::array kButtonRows = {
    OfButton(IDC_cmdTakeLevel, [](Commands c) { c.levels.TakeChosen(); }),
    OfButton(
        IDC_cmdClearLevel, [](Commands c) { c.levels.ClearChosen(); }, CommandKind::Operation),
};

template <typename Rows>
const MenuRow* RowOf(const Rows& rows, int command) noexcept {
    const auto row = std::ranges::find(rows, command, &MenuRow::command);
    return row != rows.end() && row->run != nullptr ? &*row : nullptr;
}

} // namespace

std::span<const MenuRow> MenuRows() noexcept {
    return kMenuRows;
}

const MenuRow* FindCommand(int command) noexcept {
    const MenuRow* row = RowOf(kMenuRows, command);
    return row != nullptr ? row : RowOf(kButtonRows, command);
}
