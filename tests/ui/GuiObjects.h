#pragma once

// How many graphics and window objects this process holds.
struct GuiObjects {
    unsigned long gdi = 0;
    unsigned long user = 0;
};

// GetGuiResources; where the platform does not answer it (Wine gives 0 for both), the objects that
// are found when every handle number is tried.
[[nodiscard]] GuiObjects CountGuiObjects();
