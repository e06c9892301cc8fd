#pragma once

#include "common/RuntimeError.h"
#include "mainwindow/CommandTable.h"
#include "mainwindow/MainView.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

// A main window in memory: keeps what it is told as a person would see it.
class FakeMainView : public MainFrame,
                     public TreePane,
                     public ListPane,
                     public EditorPane,
                     public BarsPane,
                     public LayoutPane,
                     public DragPane {
public:
    [[nodiscard]] MainView View() {
        return {.frame = *this,
                .tree = *this,
                .list = *this,
                .editor = *this,
                .bars = *this,
                .layout = *this,
                .drag = *this};
    }

    // Tree
    void NodeAdded(const LibraryNode& node, const std::string& previousKey) override {
        nodes[node.key] = node.text;
        std::vector<std::string>& siblings = children[node.parent];
        const auto before = std::ranges::find(siblings, previousKey);
        siblings.insert(previousKey.empty() ? siblings.begin() : std::next(before), node.key);
    }
    void NodeRemoved(const std::string& key) override {
        children.erase(key);
        for (auto& [parent, siblings] : children)
            std::erase(siblings, key);
        std::erase_if(nodes, [&](const auto& node) {
            return node.first == key || node.first.starts_with(key + "G");
        });
    }
    void NodeTextChanged(const std::string& key, const std::string& text) override {
        nodes[key] = text;
    }
    void NodeExpanded(const std::string& key) override { expanded[key] = true; }
    void NodeSelected(const std::string& key) override { selectedNode = key; }
    void EditNodeLabel(const std::string& key) override { editedNode = key; }
    void ShowNodeTips(const NodeTips* tips) override { nodeTips = tips; }

    // List
    float ListWidth() const override { return listWidth; }
    void AddColumns(const std::vector<ListColumn>& added) override { columns = added; }
    void ShowSortOrder(int column, bool descending) override {
        sortMark = std::to_string(column) + (descending ? " down" : " up");
    }
    void RowsChanged(int count) override {
        if (rowsChangeFails)
            throw RuntimeError(ErrorNumber::Overflow, "Overflow");
        rowCount = count;
        ++rowChanges;
        selectedRow = -1;
    }
    void SelectRow(int row) override { selectedRow = row; }
    void EnsureRowVisible(int row) override { visibleRow = row; }
    void FocusRows() override { ++rowFocuses; }
    int FirstRowInSight() const override { return firstRow; }
    void ShowFromRow(int row) override { firstRow = row; }
    void EditRowLabel(int row) override { editedRow = row; }
    void FinishLabelEdit() override {
        if (const auto finish = std::exchange(openEdit, {}))
            finish();
    }
    void SetListViewMode(ListViewMode mode) override { listMode = mode; }
    void ShowRowColors(bool shown) override { rowColorsShown = shown; }
    void HintChanged() override {
        ++hintChanges;
        if (onHintChanged)
            onHintChanged();
    }

    int hintChanges = 0;
    std::function<void()> onHintChanged;
    std::function<void()> openEdit; // reports its text when it ends

    // Editor
    void SetColorName(const std::string& name) override { colorName = name; }
    void SetValueText(std::size_t index, const std::string& text) override {
        valueTexts.at(index) = text;
        selectedWhole.at(index) = false;
    }
    void SelectWholeValueText(std::size_t index) override { selectedWhole.at(index) = true; }
    void SetSlider(std::size_t index, int position) override { sliders.at(index) = position; }
    void SetLargeSwatch(ColorNumber background) override { largeSwatch = background; }
    void SetMaterial(const ColorValueArray& values) override { material = values; }
    void ShowMaterial(bool shown) override { materialShown = shown; }
    void SetSmallSwatch(ColorNumber background, ColorNumber text) override {
        smallSwatch = background;
        smallSwatchText = text;
    }
    void SetSmallSwatchCaption(const std::string& caption) override {
        smallCaption = caption;
        ++captionsShown;
    }

    // Bars
    void SetMenuChecked(int command, bool checked) override { checks[command] = checked; }
    std::string MenuCaption(int command) const override {
        return FindCommand(command) != nullptr ? FindCommand(command)->caption : "";
    }
    void SetMenuText(int command, const std::string& text) override { menuTexts[command] = text; }
    void SetMenuEnabled(int command, bool enabled) override { menuEnabled[command] = enabled; }
    void SetButtonPressed(const std::string& key, bool pressed) override { presses[key] = pressed; }
    void SetButtonVisible(const std::string& key, bool visible) override {
        buttonsVisible[key] = visible;
    }
    void SetToolbarVisible(bool visible) override { toolbarVisible = visible; }
    void SetStatusBarVisible(bool visible) override { statusBarVisible = visible; }
    void ArrangeBars() override {
        ++barArrangements;
        layoutsBeforeBars = layouts;
    }
    void SetInfoPanelText(const std::string& text) override {
        infoPanel = text;
        infoPanels.push_back(text);
    }

    // Layout
    LayoutMetrics Metrics() const override { return metrics; }
    void ApplyLayout(const MainLayout& applied) override {
        layout = applied;
        ++layouts;
    }
    void ShowSplitterBar(const TwipsRect& bounds) override {
        splitterBar = bounds;
        splitterBarShown = true;
    }
    void HideSplitterBar() override { splitterBarShown = false; }

    // Drag
    void ShowDrag(float left, float top, DragMode picture) override {
        dragLeft = left;
        dragTop = top;
        dragPicture = picture;
        isDragShown = true;
    }
    void MarkDropNode(const std::string& key) override { dropNode = key; }
    void ScrollTree(TreeEdge towards) override { scrolls.push_back(towards); }
    void EndDrag() override { isDragShown = false; }

    // Window
    void ShowWindow() override { isShown = true; }
    void SetBanner(int index) override { banner = index; }
    void StopBannerTimer() override { isBannerStopped = true; }
    void SetWaiting(bool waiting) override {
        isWaiting = waiting;
        if (waiting)
            ++waits;
    }
    void EndProgram() override { isEnded = true; }

    std::map<std::string, std::string> nodes;                 // text by key
    std::map<std::string, std::vector<std::string>> children; // keys in order, by parent
    std::map<std::string, bool> expanded;
    std::string selectedNode;
    std::string editedNode;
    float listWidth = 6000;
    std::vector<ListColumn> columns;
    std::string sortMark; // empty: no column is marked
    int rowCount = 0;
    int rowChanges = 0; // reported
    bool rowsChangeFails = false;
    int selectedRow = -1;
    int visibleRow = -1;
    int rowFocuses = 0;
    int firstRow = 0; // in sight
    int editedRow = -1;
    ListViewMode listMode = ListViewMode::LargeIcons;
    bool rowColorsShown = false;
    std::string colorName;
    std::array<std::string, 9> valueTexts;
    std::array<bool, 9> selectedWhole{};
    std::array<int, 9> sliders{};
    ColorNumber largeSwatch = 0;
    ColorValueArray material{};
    bool materialShown = false;
    const NodeTips* nodeTips = nullptr;
    ColorNumber smallSwatch = 0;
    ColorNumber smallSwatchText = 0;
    std::string smallCaption;
    int captionsShown = 0; // on the small swatch
    std::map<int, bool> checks;
    std::map<int, std::string> menuTexts; // in the caption's stead
    std::map<int, bool> menuEnabled;
    std::map<std::string, bool> presses;
    std::map<std::string, bool> buttonsVisible;
    bool toolbarVisible = true;
    bool statusBarVisible = true;
    int barArrangements = 0;
    int layoutsBeforeBars = 0; // when the bars were arranged last
    std::string infoPanel;
    std::vector<std::string> infoPanels; // one after the other
    LayoutMetrics metrics{WindowState::Normal, 12000, 11760, 8000, 400, 300, 2400, 360};
    MainLayout layout;
    int layouts = 0;
    TwipsRect splitterBar;
    bool splitterBarShown = false;
    bool isDragShown = false;
    float dragLeft = 0;
    float dragTop = 0;
    DragMode dragPicture = DragMode::None;
    std::string dropNode;
    std::vector<TreeEdge> scrolls;
    bool isShown = false;
    int banner = -1;
    bool isBannerStopped = false;
    bool isWaiting = false;
    int waits = 0; // that were begun
    bool isEnded = false;
};
