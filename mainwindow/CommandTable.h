#pragma once

#include "common/ports/LocalizableForm.h"
#include "resources/controls.h"

#include <array>
#include <cstdint>
#include <span>

// The one table of everything that can be commanded: menus, toolbar, button menus and shortcuts are
// made from it, and each row of the menus runs its command.

// The platform's virtual keys that have no character.
namespace Key {
inline constexpr std::uint8_t Shift = 0x10;
inline constexpr std::uint8_t Control = 0x11;
inline constexpr std::uint8_t Delete = 0x2E;
inline constexpr std::uint8_t F1 = 0x70;
} // namespace Key

// Where the focus must be for a shortcut to be taken.
enum class ShortcutReach : std::uint8_t {
    Everywhere,
    OutsideText, // not while text is typed, which needs the key itself
    ListOnly     // anywhere else the user is not looking at what the command would change
};

struct Shortcut {
    bool ctrl = false;
    bool shift = false;
    std::uint8_t key = 0; // virtual key; 0: no shortcut
    ShortcutReach reach = ShortcutReach::Everywhere;
};

struct MainCommands;
using CommandHandler = void (*)(const MainCommands&);

enum class MenuKind : std::uint8_t { Title, Submenu, Entry, SubmenuEntry, Separator };

enum class CommandKind : std::uint8_t {
    Plain,
    Reports,  // shows how it went in the status panel, which is empty when it begins
    Operation // as Reports, and calls SolidWorks: nothing else is commanded until it is over
};

struct MenuRow {
    int command;
    const char* name;
    const char* caption; // built in, German; the language file replaces it
    MenuKind place;
    CommandHandler run = nullptr; // of an entry
    CommandKind kind = CommandKind::Plain;
    Shortcut shortcut{};
    Shortcut otherShortcut{}; // does the same; not shown in the menu
    bool isStep = false;      // changes the libraries: can be taken back
};

// Menu titles, each followed by its entries, in order.
[[nodiscard]] std::span<const MenuRow> MenuRows() noexcept;

// The row of an entry; null: the number is none's.
[[nodiscard]] const MenuRow* FindCommand(int command) noexcept;

// The keys of the shortcuts that have a name in each language.
struct KeyRow {
    std::uint8_t key;
    const char* name;
    const char* caption; // built in, German; the language file replaces it
};

inline constexpr std::array kKeyRows = {
    KeyRow{Key::Control, "keyCtrl", "Strg"},
    KeyRow{Key::Shift, "keyShift", "Umschalt"},
    KeyRow{Key::Delete, "keyDelete", "Entf"},
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
