#pragma once

#include "common/ports/LocalizableForm.h"
#include "resources/controls.h"

#include <array>
#include <cstdint>

// The buttons of the toolbar and the menus of those that have one.  What they run stands in the
// command table.

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
