#pragma once

#include <cstdint>
#include <string>

// The user's options with their defaults.  They are written to the registry only by the
// save-settings command.
struct Settings {
    std::int16_t language = 1; // number of a row in Languages.h
    bool alwaysOnTop = true;
    bool confirmDel = true;    // ask before a library, group or color is deleted
    bool createBackups = true; // keep a ".bak" copy when a library file is overwritten
    bool viewToolbar = true;
    bool viewBarStandards = false;
    bool viewBarColor = true;
    bool viewBarListview = false;
    bool viewBarSolidWorks = true;
    bool viewStatusBar = false;
    bool viewHugeColorDialog = false;
    bool viewColorsInList = false;    // each row's picture is painted from its color
    bool viewMaterialPreview = false; // the large color field shows all nine values
    std::string defaultColorFile;     // loaded at start-up; empty: none

    bool operator==(const Settings&) const = default;
};
