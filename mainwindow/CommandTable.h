#pragma once

#include "common/ports/LocalizableForm.h"
#include "resources/controls.h"

#include <array>
#include <cstdint>

// The one table of everything that can be commanded: menus, toolbar, button menus and shortcuts are
// made from it, and each row's number runs its command.

// Key numbers are those of the platform's virtual keys; 0: no shortcut.
struct Shortcut {
    bool ctrl = false;
    bool shift = false;
    std::uint8_t key = 0;
    bool leavesTextEntryAlone = false; // not taken while a text box has the focus
};

enum class MenuKind : std::uint8_t { Title, Submenu, Entry, SubmenuEntry, Separator };

struct MenuRow {
    int command;
    const char* name;
    const char* caption; // built in, German; the language file replaces it
    MenuKind kind;
    Shortcut shortcut{};
};

// Menu titles, each followed by its entries, in order.
inline constexpr std::array kMenuRows = {
    MenuRow{IDM_mnuFile, "mnuFile", "Datei", MenuKind::Title},
    MenuRow{IDM_mnuFileNew, "mnuFileNew", "Neu", MenuKind::Entry, {true, false, 'N'}},
    MenuRow{IDM_mnuFileOpen, "mnuFileOpen", "Öffnen ...", MenuKind::Entry, {true, false, 'O'}},
    MenuRow{IDM_mnuFileSave, "mnuFileSave", "Speichern", MenuKind::Entry, {true, false, 'S'}},
    MenuRow{IDM_mnuFileSaveAs,
            "mnuFileSaveAs",
            "Speichern unter ...",
            MenuKind::Entry,
            {true, true, 'S'}},
    MenuRow{IDM_mnuFileClose, "mnuFileClose", "Schließen", MenuKind::Entry},
    MenuRow{IDM_mnuFileCancelAutoload, "mnuFileCancelAutoload", "Automatisches Laden aufheben",
            MenuKind::Entry},
    MenuRow{IDM_mnuFileHR, "mnuFileHR", "-", MenuKind::Separator},
    MenuRow{IDM_mnuQuit, "mnuQuit", "Beenden", MenuKind::Entry},

    MenuRow{IDM_mnuColor, "mnuColor", "Farbe", MenuKind::Title},
    MenuRow{IDM_mnuColorNewMainNode, "mnuColorNewMainNode", "Neue Bibliothek", MenuKind::Entry},
    MenuRow{IDM_mnuColorNewGroup, "mnuColorNewGroup", "Neue Gruppe", MenuKind::Entry},
    MenuRow{IDM_mnuColorNewColor, "mnuColorNewColor", "Neue Farbe", MenuKind::Entry},
    MenuRow{IDM_mnuColorHR1, "mnuColorHR1", "-", MenuKind::Separator},
    MenuRow{IDM_mnuColorRenameNode, "mnuColorRenameNode", "Bibliothek oder Gruppe umbenennen",
            MenuKind::Entry},
    MenuRow{IDM_mnuColorHR2, "mnuColorHR2", "-", MenuKind::Separator},
    MenuRow{IDM_mnuColorDelMainNode, "mnuColorDelMainNode", "Bibliothek löschen", MenuKind::Entry},
    MenuRow{IDM_mnuColorDelGroup, "mnuColorDelGroup", "Gruppe löschen", MenuKind::Entry},
    MenuRow{IDM_mnuColorDelColor,
            "mnuColorDelColor",
            "Farbe löschen",
            MenuKind::Entry,
            {false, false, 0x2E, true}},
    MenuRow{IDM_mnuColorHR3, "mnuColorHR3", "-", MenuKind::Separator},
    MenuRow{
        IDM_mnuColorCopy, "mnuColorCopy", "Kopieren", MenuKind::Entry, {true, false, 'C', true}},
    MenuRow{
        IDM_mnuColorCut, "mnuColorCut", "Ausschneiden", MenuKind::Entry, {true, false, 'X', true}},
    MenuRow{
        IDM_mnuColorPaste, "mnuColorPaste", "Einfügen", MenuKind::Entry, {true, false, 'V', true}},
    MenuRow{IDM_mnuColorHR4, "mnuColorHR4", "-", MenuKind::Separator},
    MenuRow{IDM_mnuColorChange, "mnuColorChange", "Farbwert wählen ...", MenuKind::Entry},
    MenuRow{IDM_mnuColorUpdateColor, "mnuColorUpdateColor", "Farbe aktualisieren", MenuKind::Entry},

    MenuRow{IDM_mnuView, "mnuView", "Ansicht", MenuKind::Title},
    MenuRow{IDM_mnuViewToolbar, "mnuViewToolbar", "Symbolleiste", MenuKind::Entry},
    MenuRow{IDM_mnuViewStatusBar, "mnuViewStatusBar", "Statusleiste", MenuKind::Entry},
    MenuRow{IDM_mnuViewBarStandards, "mnuViewBarStandards", "Leiste Standard", MenuKind::Entry},
    MenuRow{IDM_mnuViewBarColor, "mnuViewBarColor", "Leiste Farbe", MenuKind::Entry},
    MenuRow{IDM_mnuViewBarListview, "mnuViewBarListview", "Leiste Listenansicht", MenuKind::Entry},
    MenuRow{IDM_mnuViewBarSolidWorks, "mnuViewBarSolidWorks", "Leiste SolidWorks", MenuKind::Entry},
    MenuRow{IDM_mnuViewHR1, "mnuViewHR1", "-", MenuKind::Separator},
    MenuRow{IDM_mnuViewHugeColorDialog, "mnuViewHugeColorDialog", "Großes Farbfeld",
            MenuKind::Entry},
    MenuRow{IDM_mnuViewHR2, "mnuViewHR2", "-", MenuKind::Separator},
    MenuRow{IDM_mnuViewColorLargeIcons, "mnuViewColorLargeIcons", "Große Symbole", MenuKind::Entry},
    MenuRow{IDM_mnuViewColorSmallIcons, "mnuViewColorSmallIcons", "Kleine Symbole",
            MenuKind::Entry},
    MenuRow{IDM_mnuViewColorList, "mnuViewColorList", "Liste", MenuKind::Entry},
    MenuRow{IDM_mnuViewColorDetails, "mnuViewColorDetails", "Details", MenuKind::Entry},

    MenuRow{IDM_mnuSWX, "mnuSWX", "SolidWorks", MenuKind::Title},
    MenuRow{IDM_mnuSWXGetColor, "mnuSWXGetColor", "Farbe aus SolidWorks holen", MenuKind::Entry},
    MenuRow{IDM_mnuSWXNewColorUpdate, "mnuSWXNewColorUpdate", "Neue Farbe aus SolidWorks holen",
            MenuKind::Entry},
    MenuRow{IDM_mnuSWXHR1, "mnuSWXHR1", "-", MenuKind::Separator},
    MenuRow{IDM_mnuSWXSetColor, "mnuSWXSetColor", "Farbe in SolidWorks setzen", MenuKind::Entry},
    MenuRow{IDM_mnuSWXSetColorComponent, "mnuSWXSetColorComponent",
            "Farbe der Komponente in SolidWorks setzen", MenuKind::Entry},
    MenuRow{IDM_mnuSWXHR2, "mnuSWXHR2", "-", MenuKind::Separator},
    MenuRow{IDM_mnuSWXClearColorFromSelection, "mnuSWXClearColorFromSelection",
            "Farbe der Auswahl entfernen", MenuKind::Entry},
    MenuRow{IDM_mnuSWXClearComponentColorFromSelection, "mnuSWXClearComponentColorFromSelection",
            "Farbe der gewählten Komponenten entfernen", MenuKind::Entry},
    MenuRow{IDM_mnuSWXClearColorPart, "mnuSWXClearColorPart", "Alle Farben des Teils entfernen",
            MenuKind::Entry},
    MenuRow{IDM_mnuSWXClearColorAssembly, "mnuSWXClearColorAssembly",
            "Farben aller Komponenten entfernen", MenuKind::Entry},
    MenuRow{IDM_mnuSWXHR3, "mnuSWXHR3", "-", MenuKind::Separator},
    MenuRow{IDM_mnuSWXGetStandardColor, "mnuSWXGetStandardColor", "Standardfarben holen",
            MenuKind::Entry},
    MenuRow{IDM_mnuSWXSetStandardColor, "mnuSWXSetStandardColor", "Standardfarben setzen",
            MenuKind::Entry},

    MenuRow{IDM_mnuOptions, "mnuOptions", "Optionen", MenuKind::Title},
    MenuRow{IDM_mnuOptionsLanguage, "mnuOptionsLanguage", "Sprache", MenuKind::Submenu},
    MenuRow{IDM_mnuOptionsLngGerman, "mnuOptionsLngGerman", "Deutsch", MenuKind::SubmenuEntry},
    MenuRow{IDM_mnuOptionsLngEnglish, "mnuOptionsLngEnglish", "Englisch", MenuKind::SubmenuEntry},
    MenuRow{IDM_mnuOptionsConfirmDel, "mnuOptionsConfirmDel", "Löschen immer bestätigen",
            MenuKind::Entry},
    MenuRow{IDM_mnuOptionsCreateBackups, "mnuOptionsCreateBackups", "Erzeuge Sicherungskopien",
            MenuKind::Entry},
    MenuRow{IDM_mnuOptionsAlwaysOnTop, "mnuOptionsAlwaysOnTop", "Immer im Vordergrund",
            MenuKind::Entry},
    MenuRow{IDM_mnuOptionsHR, "mnuOptionsHR", "-", MenuKind::Separator},
    MenuRow{IDM_mnuOptionsSaveSettings, "mnuOptionsSaveSettings", "Einstellungen speichern",
            MenuKind::Entry},

    MenuRow{IDM_mnuHlp, "mnuHlp", "Hilfe", MenuKind::Title},
    MenuRow{IDM_mnuHlpAbout, "mnuHlpAbout", "Info ...", MenuKind::Entry},
    MenuRow{IDM_mnuHlpShowReadme,
            "mnuHlpShowReadme",
            "Liesmich",
            MenuKind::Entry,
            {false, false, 0x70}},
    MenuRow{IDM_mnuHlpShowLizenz, "mnuHlpShowLizenz", "Nutzungsbedingungen", MenuKind::Entry},
};

// The keys of the shortcuts that have a name in each language.
struct KeyRow {
    std::uint8_t key;
    const char* name;
    const char* caption; // built in, German; the language file replaces it
};

inline constexpr std::array kKeyRows = {
    KeyRow{0x11, "keyCtrl", "Strg"},
    KeyRow{0x10, "keyShift", "Umschalt"},
    KeyRow{0x2E, "keyDelete", "Entf"},
};

enum class ToolbarGroup : std::uint8_t { Standard, Color, ListView, SolidWorks };

struct ToolbarRow {
    const char* key;
    ToolbarButtonStyle style;
    ToolbarGroup group;
    const char* toolTip; // built in
    int command;         // 0: separator
    const char* icon;    // file name in resources/icons without its ending; empty: separator
};

inline constexpr std::array kToolbarRows = {
    ToolbarRow{"sepST1", ToolbarButtonStyle::Separator, ToolbarGroup::Standard, "", 0, ""},
    ToolbarRow{"New", ToolbarButtonStyle::DropDown, ToolbarGroup::Standard, "",
               IDM_mnuColorNewColor, "New"},
    ToolbarRow{"sepST2", ToolbarButtonStyle::Separator, ToolbarGroup::Standard, "", 0, ""},
    ToolbarRow{"Open", ToolbarButtonStyle::Default, ToolbarGroup::Standard, "", IDM_mnuFileOpen,
               "Open"},
    ToolbarRow{"Close", ToolbarButtonStyle::Default, ToolbarGroup::Standard, "", IDM_mnuFileClose,
               "Close"},
    ToolbarRow{"Save", ToolbarButtonStyle::Default, ToolbarGroup::Standard, "", IDM_mnuFileSave,
               "Save"},
    ToolbarRow{"sepST3", ToolbarButtonStyle::Separator, ToolbarGroup::Standard, "", 0, ""},
    ToolbarRow{"Delete", ToolbarButtonStyle::DropDown, ToolbarGroup::Standard, "",
               IDM_mnuColorDelColor, "Delete"},
    ToolbarRow{"sepCO1", ToolbarButtonStyle::Separator, ToolbarGroup::Color, "", 0, ""},
    ToolbarRow{"Cut", ToolbarButtonStyle::Default, ToolbarGroup::Color, "", IDM_mnuColorCut, "Cut"},
    ToolbarRow{"Copy", ToolbarButtonStyle::Default, ToolbarGroup::Color, "", IDM_mnuColorCopy,
               "Copy"},
    ToolbarRow{"Paste", ToolbarButtonStyle::Default, ToolbarGroup::Color, "", IDM_mnuColorPaste,
               "Paste"},
    ToolbarRow{"sepCO2", ToolbarButtonStyle::Separator, ToolbarGroup::Color, "", 0, ""},
    ToolbarRow{"ToggleColorFrame", ToolbarButtonStyle::Default, ToolbarGroup::Color,
               "Toggle huge color frame on/off", IDM_mnuViewHugeColorDialog, "HugeSmall"},
    ToolbarRow{"UpdateColor", ToolbarButtonStyle::Default, ToolbarGroup::Color, "Update color",
               IDM_mnuColorUpdateColor, "UpdateColor"},
    ToolbarRow{"sepLV1", ToolbarButtonStyle::Separator, ToolbarGroup::ListView, "", 0, ""},
    ToolbarRow{"View Large Icons", ToolbarButtonStyle::ButtonGroup, ToolbarGroup::ListView, "",
               IDM_mnuViewColorLargeIcons, "ViewLargeIcons"},
    ToolbarRow{"View Small Icons", ToolbarButtonStyle::ButtonGroup, ToolbarGroup::ListView, "",
               IDM_mnuViewColorSmallIcons, "ViewSmallIcons"},
    ToolbarRow{"View List", ToolbarButtonStyle::ButtonGroup, ToolbarGroup::ListView, "",
               IDM_mnuViewColorList, "ViewList"},
    ToolbarRow{"View Details", ToolbarButtonStyle::ButtonGroup, ToolbarGroup::ListView, "",
               IDM_mnuViewColorDetails, "ViewDetails"},
    ToolbarRow{"sepSWX1", ToolbarButtonStyle::Separator, ToolbarGroup::SolidWorks, "", 0, ""},
    ToolbarRow{"GetSWX", ToolbarButtonStyle::Default, ToolbarGroup::SolidWorks,
               "Get color from SolidWorks", IDM_mnuSWXGetColor, "GetSWX"},
    ToolbarRow{"NewColorUpdate", ToolbarButtonStyle::Default, ToolbarGroup::SolidWorks,
               "Get NEW color from SolidWorks", IDM_mnuSWXNewColorUpdate, "NewColorUpdate"},
    ToolbarRow{"SetSWX", ToolbarButtonStyle::Default, ToolbarGroup::SolidWorks,
               "Set color in SolidWorks", IDM_mnuSWXSetColor, "SetSWX"},
    ToolbarRow{"SetSWXComponent", ToolbarButtonStyle::Default, ToolbarGroup::SolidWorks,
               "Set color for component in SolidWorks", IDM_mnuSWXSetColorComponent,
               "SetSWXComponent"},
    ToolbarRow{"sepSWX2", ToolbarButtonStyle::Separator, ToolbarGroup::SolidWorks, "", 0, ""},
    ToolbarRow{"ClearColorSWX", ToolbarButtonStyle::Default, ToolbarGroup::SolidWorks,
               "Clear color in SolidWorks", IDM_mnuSWXClearColorFromSelection, "ClearColorSWX"},
    ToolbarRow{"ClearColorComponentSWX", ToolbarButtonStyle::Default, ToolbarGroup::SolidWorks,
               "Clear color of component in SolidWorks", IDM_mnuSWXClearComponentColorFromSelection,
               "ClearColorComponentSWX"},
};

struct ButtonMenuRow {
    const char* buttonKey;
    const char* key;
    const char* text; // built in, German; the language file replaces it
    int command;
};

inline constexpr std::array kButtonMenuRows = {
    ButtonMenuRow{"New", "NewMainNode", "Neue Bibliothek", IDM_mnuColorNewMainNode},
    ButtonMenuRow{"New", "NewGroup", "Neue Gruppe", IDM_mnuColorNewGroup},
    ButtonMenuRow{"New", "NewColor", "Neue Farbe", IDM_mnuColorNewColor},
    ButtonMenuRow{"Delete", "DeleteMainNode", "Bibliothek löschen", IDM_mnuColorDelMainNode},
    ButtonMenuRow{"Delete", "DeleteGroup", "Gruppe löschen", IDM_mnuColorDelGroup},
    ButtonMenuRow{"Delete", "DeleteColor", "Farbe löschen", IDM_mnuColorDelColor},
};
