#pragma once

#include "mainwindow/BarsPane.h"
#include "platform/Shortcuts.h"
#include "platform/controls/MenuBar.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/Toolbar.h"

#include <functional>
#include <string>
#include <vector>

// Menus, toolbar and status bar of frmMain as the tables of commands and buttons say.
class MainBars : public BarsPane {
public:
    struct Controls {
        MenuBar& menu;
        Toolbar& toolbar;
        StatusBar& statusBar;
    };

    explicit MainBars(const Controls& controls) : controls_(controls) {}

    // What the controls are made from.
    static void BuildMenu(MenuBar& menu);
    [[nodiscard]] static std::vector<ShortcutDesign> ShortcutKeys();
    [[nodiscard]] static std::vector<ToolbarButtonDesign> ToolbarButtonDesigns();
    [[nodiscard]] static std::vector<std::string> ToolbarIcons();
    [[nodiscard]] static bool IsMenuCommand(int command);

    void SetMenuChecked(int command, bool checked) override;
    std::string MenuCaption(int command) const override;
    void SetMenuText(int command, const std::string& text) override;
    void SetMenuEnabled(int command, bool enabled) override;
    void SetButtonPressed(const std::string& buttonKey, bool pressed) override;
    void SetButtonVisible(const std::string& buttonKey, bool visible) override;
    void SetToolbarVisible(bool visible) override;
    void SetStatusBarVisible(bool visible) override;
    void ArrangeBars() override;
    void SetInfoPanelText(const std::string& text) override;

    std::function<void()> onArranged; // the bars have taken their places

private:
    Controls controls_;
};
