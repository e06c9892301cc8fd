#pragma once

#include "common/ColorNumber.h"
#include "common/Twips.h"
#include "common/ports/FormWindow.h"
#include "common/ports/MenuMarks.h"
#include "library/LibraryTreeObserver.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// The main window as its rules see it.  frmMain implements these six panes and reports what the
// user did through MainViewEvents; it decides nothing.  Texts are UTF-8, lengths are twips.

// tvColor.
class TreePane : public LibraryTreeObserver {
public:
    virtual void EditNodeLabel(const std::string& key) = 0;
};

// lvColor: an owner-data list; its texts are asked through MainViewEvents.
enum class ListViewMode { LargeIcons = 0, SmallIcons = 1, List = 2, Details = 3 };

struct ListColumn {
    std::string caption;
    std::string key;
    float width = 0;
};

class ListPane {
public:
    virtual ~ListPane() = default;
    [[nodiscard]] virtual float ListWidth() const = 0;
    virtual void AddColumns(const std::vector<ListColumn>& columns) = 0;
    // The column, from 1, that the rows are sorted by is marked in the header, and no other one.
    virtual void ShowSortOrder(int column, bool descending) = 0;
    // All rows may be different now, also in number; nothing is selected afterwards.
    virtual void RowsChanged(int rowCount) = 0;
    virtual void SelectRow(int row) = 0; // from 0
    virtual void EnsureRowVisible(int row) = 0;
    virtual void EditRowLabel(int row) = 0;
    // An open edit of a label, here or in the tree, ends and reports its text.
    virtual void FinishLabelEdit() = 0;
    virtual void SetListViewMode(ListViewMode mode) = 0;
};

// The active-colour editor: nine text boxes and sliders (index 0..8), name label, two swatches.
class EditorPane {
public:
    virtual ~EditorPane() = default;
    virtual void SetColorName(const std::string& name) = 0; // lblActiveColorName
    // Does not report a text change back.
    virtual void SetValueText(std::size_t index, const std::string& text) = 0;
    virtual void SelectWholeValueText(std::size_t index) = 0;
    virtual void SetSlider(std::size_t index, int position) = 0;
    virtual void SetLargeSwatch(ColorNumber background) = 0;
    virtual void SetSmallSwatch(ColorNumber background, ColorNumber text) = 0;
    virtual void SetSmallSwatchCaption(const std::string& caption) = 0;
};

// Menus, toolbar and status bar.
class BarsPane : public MenuMarks {
public:
    virtual void SetButtonPressed(const std::string& buttonKey, bool pressed) = 0;
    // What was shown or hidden takes its place with ArrangeBars, once for all.
    virtual void SetButtonVisible(const std::string& buttonKey, bool visible) = 0;
    virtual void SetToolbarVisible(bool visible) = 0;
    virtual void SetStatusBarVisible(bool visible) = 0;
    virtual void ArrangeBars() = 0;
    virtual void SetInfoPanelText(const std::string& text) = 0; // panel "Infotext"
};

// What the layout pass needs to know, and what it decides.
struct LayoutMetrics {
    WindowState state = WindowState::Normal;
    float formWidth = 0;  // outer width as it is seen: a line of border on either side
    float innerWidth = 0; // client area
    float innerHeight = 0;
    float toolbarHeight = 0;   // 0 when hidden
    float statusBarHeight = 0; // 0 when hidden
    float hugeFrameHeight = 0;
    float smallSwatchHeight = 0;
};

struct MainLayout {
    TwipsRect tree;
    TwipsRect splitter;
    TwipsRect list;
    TwipsRect frame;             // fraShowColor
    TwipsRect smallSwatch;       // lblActiveColorSmall
    bool hugeFrameShown = false; // the frame is visible, else the small swatch
};

class LayoutPane {
public:
    virtual ~LayoutPane() = default;
    [[nodiscard]] virtual LayoutMetrics Metrics() const = 0;
    virtual void ApplyLayout(const MainLayout& layout) = 0;
    // picSplitter, the bar that is shown while the splitter is dragged.
    virtual void ShowSplitterBar(const TwipsRect& bounds) = 0;
    virtual void HideSplitterBar() = 0;
};

// What a dragged colour will be at the group that it is dropped on.
enum class DragMode { None, Move, Copy };

// Keys that are held down.
struct HeldKeys {
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

enum class TreeEdge { None, Top, Bottom };

// Where the pointer is while a colour is dragged.
struct DragPoint {
    float left = 0; // in the form
    float top = 0;
    bool isOverList = false;
    std::string node;               // key of the tree's node under it; empty: none
    TreeEdge edge = TreeEdge::None; // of the tree's area, when the pointer is near to it
};

class DragPane {
public:
    virtual ~DragPane() = default;
    // lblDrag, which is invisible, stands at the point, and the pointer has the picture of the
    // mode; None: that of a place where nothing can be dropped.
    virtual void ShowDrag(float left, float top, DragMode picture) = 0;
    virtual void MarkDropNode(const std::string& key) = 0; // empty: none
    virtual void ScrollTree(TreeEdge towards) = 0;         // by one line
    // Does not report the end back.
    virtual void EndDrag() = 0;
};

class MainView : public TreePane,
                 public ListPane,
                 public EditorPane,
                 public BarsPane,
                 public LayoutPane,
                 public DragPane {
public:
    virtual void ShowWindow() = 0;
    virtual void SetBanner(int index) = 0; // from 1; 0: none
    virtual void StopBannerTimer() = 0;
    // The pointer over the window is the hour-glass, as long as nothing is asked.
    virtual void SetWaiting(bool waiting) = 0;
    virtual void EndProgram() = 0; // leaves the message loop
};

// What the user did in the main window.  Rows count from 0, columns from 1, values from 0.
class MainViewEvents {
public:
    virtual ~MainViewEvents() = default;

    virtual void RunCommand(int command) = 0; // IDM_ number: menu, toolbar, button menu, shortcut
    virtual void EscapePressed() = 0;

    virtual void NodeClicked(const std::string& key) = 0;
    virtual void NodeLabelEdited(const std::string& key, const std::string& text) = 0;
    virtual void NodeEditRequested() = 0; // F2 in the tree

    [[nodiscard]] virtual std::string CellText(int row, int column) const = 0;
    // First row from start (wrapping at the end) whose name begins with the text, letter case
    // ignored; -1: none.
    [[nodiscard]] virtual int FindRow(const std::string& text, int start) const = 0;
    virtual void RowClicked(int row) = 0; // selected by mouse or keyboard
    virtual void RowEditRequested() = 0;  // F2 in the list
    [[nodiscard]] virtual bool MayEditNode() const = 0;
    [[nodiscard]] virtual bool MayEditRow() const = 0;
    virtual void RowLabelEdited(int row, const std::string& text) = 0;
    virtual void ColumnClicked(int column) = 0;

    virtual void ListPressed() = 0; // a mouse button, beside the rows too
    // The selected row is dragged with the left button.  False: refused; else moves and ticks (ten
    // a second) follow until it is dropped or given up.
    [[nodiscard]] virtual bool DragStarted(const HeldKeys& keys, const DragPoint& at) = 0;
    virtual void DragMoved(const DragPoint& at) = 0;
    virtual void DragTicked(const DragPoint& at) = 0;
    virtual void DragDropped(const DragPoint& at) = 0;
    virtual void DragCancelled() = 0; // Escape, or the mouse was taken away

    virtual void ValueTextChanged(std::size_t index, const std::string& text) = 0;
    [[nodiscard]] virtual bool IsValueCharacter(char32_t character) const = 0;
    virtual void ValueFocused(std::size_t index) = 0;
    virtual void SliderMoved(std::size_t index, int position) = 0;
    virtual void SwatchDoubleClicked() = 0;

    virtual void Resized() = 0;
    virtual void ScaleChanged() = 0; // pixels for a twip
    virtual void Repainted() = 0;
    virtual void SplitterPressed() = 0;
    virtual void SplitterDragged(float x) = 0; // x: from the splitter's left edge
    virtual void SplitterReleased() = 0;

    virtual void BannerTicked() = 0;
    virtual void BannerClicked() = 0;
    virtual void FilesDropped(const std::vector<std::string>& paths) = 0;
    virtual void WindowClosing() = 0; // close box
    virtual void SessionEnding() = 0; // the user's session ends, and with it the process
};
