#pragma once

#include "mainwindow/MainView.h"
#include "mainwindow/panes/MainArea.h"
#include "mainwindow/panes/MainBars.h"
#include "mainwindow/panes/DragTracker.h"
#include "mainwindow/panes/MainEditor.h"
#include "mainwindow/panes/MainList.h"
#include "mainwindow/panes/MainTree.h"
#include "platform/controls/DesignComponent.h"
#include "platform/controls/HiddenCaption.h"
#include "platform/controls/ListView.h"
#include "platform/controls/MenuBar.h"
#include "platform/controls/PictureBox.h"
#include "platform/controls/Splitter.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/Toolbar.h"
#include "platform/controls/TreeView.h"
#include "platform/Form.h"
#include "platform/Shortcuts.h"
#include "platform/WaitCursor.h"
#include "support/windows/BannerPictures.h"

#include <array>
#include <optional>

// The main window.  It shows what it is told and reports what the user did; it decides nothing.
class frmMain : public FormOf<MainFrame, FormWindow, LocalizableForm> {
public:
    // Makes the window, hidden.  The pictures must outlive it.
    frmMain(ErrorSink& errors, const BannerPictures& banners);

    // The panes, for as long as this form is there.
    [[nodiscard]] MainView View();

    // Reports go to events from then on.
    void Attach(const MainEvents& events);

    // MainFrame
    void ShowWindow() override;
    void SetBanner(int index) override;
    void StopBannerTimer() override;
    void SetWaiting(bool waiting) override;
    void EndProgram() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnMenuCommand(int command) override;
    void OnCloseBox() override;
    void OnCancelKey() override; // does not close the main window
    void OnScaleChanged() override;
    void OnLayout() override;
    bool TranslateShortcut(MSG& message) override;

private:
    [[nodiscard]] static HiddenCaption Announce(Control& control, const char* captionName,
                                                const char* name);
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }
    void ConnectCommands(MainFrameEvents& events);
    void OpenColorMenu(POINT at) const;
    void FocusNextPane(bool backwards);
    void PlaceBanner();
    [[nodiscard]] bool ShowsWaiting() const noexcept;

    const BannerPictures& banners_;
    std::optional<MainEvents> events_; // until it is attached, there is nothing to report
    MenuBar menu_;
    Shortcuts shortcuts_;
    IconList imlToolbarIcons_;
    IconList imlView_;
    IconList imlViewSmall_;
    DesignComponent timSponsor_{"timSponsor", "Timer"};

    // In the order of the Tab key.
    Toolbar& tlbarMain_;
    TreeView& tvColor_;
    Splitter& imgSplitter_;
    ListView& lvColor_;
    MainEditor editor_;
    StatusBar& stbarMain_;
    PictureBox& picSponsor_;
    SolidBar& picSplitter_;
    Label& lblDrag_;
    MainBars bars_;
    MainTree tree_;
    MainList list_;
    MainArea area_;
    DragTracker drag_;
    std::optional<WaitCursor> waiting_;
    std::array<HiddenCaption, 4> accessibleNames_ = {
        Announce(tlbarMain_, "nameToolbar", "Symbolleiste"),
        Announce(tvColor_, "nameTree", "Bibliotheken und Gruppen"),
        Announce(lvColor_, "nameList", "Farben"),
        Announce(imgSplitter_, "nameSplitter", "Teiler zwischen Baum und Liste"),
    };
};
