#pragma once

#include "mainwindow/frmMainDrag.h"
#include "mainwindow/frmMainEditor.h"
#include "mainwindow/MainView.h"
#include "platform/BannerPictures.h"
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

#include <array>
#include <optional>

// The main window.  It shows what it is told and reports what the user did; it decides nothing.
class frmMain : public FormOf<MainView, FormWindow, LocalizableForm> {
public:
    // Makes the window, hidden.  The pictures must outlive it.
    frmMain(ErrorSink& errors, const BannerPictures& banners);

    // Reports go to events from then on.
    void Attach(MainViewEvents& events);

    // TreePane
    void NodeAdded(const LibraryNode& node) override;
    void NodeRemoved(const std::string& key) override;
    void NodeTextChanged(const std::string& key, const std::string& text) override;
    void NodeExpanded(const std::string& key) override;
    void NodeSelected(const std::string& key) override;
    void EditNodeLabel(const std::string& key) override;

    // ListPane
    [[nodiscard]] float ListWidth() const override;
    void AddColumns(const std::vector<ListColumn>& columns) override;
    void ShowSortOrder(int column, bool descending) override;
    void RowsChanged(int rowCount) override;
    void SelectRow(int row) override;
    void EnsureRowVisible(int row) override;
    void EditRowLabel(int row) override;
    void FinishLabelEdit() override;
    void SetListViewMode(ListViewMode mode) override;

    // EditorPane
    void SetColorName(const std::string& name) override;
    void SetValueText(std::size_t index, const std::string& text) override;
    void SelectWholeValueText(std::size_t index) override;
    void SetSlider(std::size_t index, int position) override;
    void SetLargeSwatch(ColorNumber background) override;
    void SetSmallSwatch(ColorNumber background, ColorNumber text) override;
    void SetSmallSwatchCaption(const std::string& caption) override;

    // BarsPane
    void SetMenuChecked(int command, bool checked) override;
    void SetButtonPressed(const std::string& buttonKey, bool pressed) override;
    void SetButtonVisible(const std::string& buttonKey, bool visible) override;
    void SetToolbarVisible(bool visible) override;
    void SetStatusBarVisible(bool visible) override;
    void ArrangeBars() override;
    void SetInfoPanelText(const std::string& text) override;

    // LayoutPane
    [[nodiscard]] LayoutMetrics Metrics() const override;
    void ApplyLayout(const MainLayout& layout) override;
    void ShowSplitterBar(const TwipsRect& bounds) override;
    void HideSplitterBar() override;

    // DragPane
    void ShowDrag(float left, float top, DragMode picture) override;
    void MarkDropNode(const std::string& key) override;
    void ScrollTree(TreeEdge towards) override;
    void EndDrag() override;

    // MainView
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
    void ConnectTree(MainViewEvents& events);
    void ConnectList(MainViewEvents& events);
    void OpenColorMenu(POINT at) const;
    void FollowSize();
    void FocusNextPane(bool backwards);
    void PlaceBanner();

    [[nodiscard]] bool ShowsWaiting() const noexcept;

    const BannerPictures& banners_;
    MainViewEvents* events_ = nullptr; // until it is attached, there is nothing to report
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
    MainDrag drag_;
    std::optional<WaitCursor> waiting_;
    std::array<HiddenCaption, 3> accessibleNames_ = {
        Announce(tlbarMain_, "nameToolbar", "Symbolleiste"),
        Announce(tvColor_, "nameTree", "Bibliotheken und Gruppen"),
        Announce(lvColor_, "nameList", "Farben"),
    };
};
