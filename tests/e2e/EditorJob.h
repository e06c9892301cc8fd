#pragma once

#include "tests/e2e/Job.h"

#include <string>
#include <utility>
#include <vector>

// Tree, list and editor of the active color, worked with mouse and keyboard: values are typed,
// dragged, turned and stepped, both swatches ask for a color, names are edited in both panes, the
// list is sorted and shown in its four modes.
class EditorJob : public Job {
public:
    using Job::Job;

private:
    void Work() override;

    using Row = RemoteList::Row;
    using Texts = std::vector<std::string>;

    void Start();
    void ChooseColor();

    void TypeValues();
    void DragSliders();
    void StepSliders();
    void TurnWheel();
    void TabThroughBoxes();
    void ChooseOnLargeSwatch();
    void ChooseOnSmallSwatch();
    void ToggleSwatches();
    void UpdateColor();

    void RenameColors();
    void RenameGroup();
    void SortByHeader();
    void ShowModes();

    void TypeAndCheck(std::size_t index, const std::string& typed, const std::string& shown);
    void CheckWhollySelected(std::size_t index);
    void CheckStep(std::size_t index, WORD key, int expected);
    void ChooseOnSwatch(const char* swatch);
    void CheckValues(const char* what, const Texts& expected);
    template <typename Pane>
    void EditLabel(const Pane& pane, const std::wstring& text, WORD lastKey);
    void CheckMode(DWORD style, int pressedButton);
    [[nodiscard]] std::vector<RECT> Places() const;
    [[nodiscard]] Texts Names() const;
};
