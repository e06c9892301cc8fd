#pragma once

#include "mainwindow/LayoutController.h"
#include "mainwindow/MainView.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

// Keeps what the main window reports, one line each, and lays it out as the program does.
class RecordingMainEvents : public MainFrameEvents,
                            public TreeEvents,
                            public ListRows,
                            public ListEvents,
                            public ListHints,
                            public EditorEvents,
                            public LayoutEvents,
                            public DragEvents,
                            public BannerEvents {
public:
    [[nodiscard]] MainEvents Events() {
        return {.frame = *this,
                .tree = *this,
                .rows = *this,
                .list = *this,
                .hints = *this,
                .editor = *this,
                .layout = *this,
                .drag = *this,
                .banner = *this};
    }

    explicit RecordingMainEvents(LayoutPane& pane) : layout(pane) {}

    void RunCommand(int command) override {
        commands.push_back(command);
        if (onCommand)
            onCommand(command);
    }

    void EscapePressed() override { Note("escape"); }

    void NodeClicked(const std::string& key) override { Note("node " + key); }
    void NodeLabelEdited(const std::string& key, const std::string& text) override {
        Note("node label " + key + "=" + text);
    }

    [[nodiscard]] std::string CellText(int row, int column) const override {
        ++cellsAsked;
        if (!longCell.empty())
            return longCell;
        return "cell " + std::to_string(row) + "," + std::to_string(column);
    }
    [[nodiscard]] std::optional<ColorValueArray> RowValues(int row) const override {
        ++valuesAsked;
        const auto found = rowValues.find(row);
        return found != rowValues.end() ? std::optional(found->second) : std::nullopt;
    }
    [[nodiscard]] int FindRow(const std::string& text, int) const override {
        ++searches;
        return text == "x" ? 3 : -1;
    }
    void RowClicked(int row) override { Note("row " + std::to_string(row)); }
    void RowEditRequested() override { Note("row edit"); }
    [[nodiscard]] bool MayEditNode() const override { return mayEdit; }
    [[nodiscard]] bool MayEditRow() const override { return mayEdit; }
    void RowLabelEdited(int row, const std::string& text) override {
        Note("row label " + std::to_string(row) + "=" + text);
    }
    void ColumnClicked(int column) override { Note("column " + std::to_string(column)); }

    void ListPressed() override { ++presses; }
    bool DragStarted(const HeldKeys& keys, const DragPoint& at) override {
        Note(std::string("drag start") + (keys.ctrl ? " ctrl" : "") + Told(at));
        return mayDrag;
    }
    void DragMoved(const DragPoint& at) override { Note("drag move" + Told(at)); }
    void DragTicked(const DragPoint& at) override { ticks.push_back(Told(at)); }
    void DragDropped(const DragPoint& at) override { Note("drop" + Told(at)); }
    void DragCancelled() override { Note("drag cancelled"); }

    void ValueTextChanged(std::size_t index, const std::string& text) override {
        Note("text " + std::to_string(index) + "=" + text);
        if (onTextChanged)
            onTextChanged(index, text);
    }
    [[nodiscard]] bool IsValueCharacter(char32_t character) const override {
        return (character >= U'0' && character <= U'9') || character == 8 || character == U'.';
    }
    void ValueFocused(std::size_t index) override { Note("focus " + std::to_string(index)); }
    void SliderMoved(std::size_t index, int position) override {
        Note("slider " + std::to_string(index) + "=" + std::to_string(position));
    }

    [[nodiscard]] std::vector<HintLine> HintLines() const override { return hintLines; }
    void SampleChosen(const std::string& path) override { Note("sample " + path); }
    void FilesDropped(const std::vector<std::string>& paths) override {
        for (const std::string& path : paths)
            Note("dropped " + path);
    }
    void Resized() override {
        ++resized;
        layout.Resized();
    }
    void ScaleChanged() override { layout.ScaleChanged(); }
    void Repainted() override { ++repainted; }
    void SplitterPressed() override {
        Note("splitter down");
        layout.SplitterPressed();
    }
    void SplitterDragged(float x) override { layout.SplitterDragged(x); }
    void SplitterReleased() override {
        Note("splitter up");
        layout.SplitterReleased();
    }

    void BannerTicked() override { Note("tick"); }
    void BannerClicked() override { Note("banner"); }
    void WindowClosing() override { Note("closing"); }
    void SessionEnding() override { Note("session ending"); }
    void SecondPassed() override {}

    LayoutController layout;
    std::vector<int> commands;
    std::vector<std::string> lines;
    int resized = 0;
    int repainted = 0;
    int presses = 0;
    std::vector<std::string> ticks;
    mutable int cellsAsked = 0;
    mutable int valuesAsked = 0;
    std::map<int, ColorValueArray> rowValues; // of rows
    mutable int searches = 0;
    std::vector<HintLine> hintLines; // while there are no rows
    std::string longCell;            // of every cell; empty: "cell row,column"
    bool mayEdit = true;
    bool mayDrag = true;
    std::function<void(int)> onCommand;
    std::function<void(std::size_t, const std::string&)> onTextChanged;

private:
    static std::string Told(const DragPoint& at) {
        return std::string(at.isOverList ? " list" : "") +
               (at.node.empty() ? "" : " node " + at.node) +
               (at.edge == TreeEdge::Top ? " top" : "") +
               (at.edge == TreeEdge::Bottom ? " bottom" : "");
    }
    void Note(const std::string& line) { lines.push_back(line); }
};
