#pragma once

#include "platform/controls/MenuBar.h"
#include "platform/controls/Toolbar.h"
#include "platform/Shortcuts.h"

#include <string>
#include <vector>

// The bars of the main window as the command table describes them.
namespace MainBars {

void BuildMenu(MenuBar& menu);
[[nodiscard]] std::vector<ShortcutDesign> ShortcutKeys();
[[nodiscard]] std::vector<ToolbarButtonDesign> ToolbarButtonDesigns();
[[nodiscard]] std::vector<std::string> ToolbarIcons();
[[nodiscard]] bool IsMenuCommand(int command);

} // namespace MainBars
