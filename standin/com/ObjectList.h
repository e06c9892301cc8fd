#pragma once

#include "platform/controls/Control.h"
#include "platform/Handles.h"
#include "standin/model/ObjectRows.h"

#include <functional>

// Everything of the active document that can be selected, with the color it shows.  What is
// selected in the list is selected in the document, and the other way round.
class ObjectList : public Control {
public:
    ObjectList(ControlHost& host, const ControlPlace& place);

    // All rows are new.
    void SetRows(std::vector<SelectedItem> rows);
    [[nodiscard]] const std::vector<SelectedItem>& Rows() const noexcept { return rows_; }

    // Shows this selection, without reporting it.
    void ShowSelection(const Selection& selection);

    // The user has changed which rows are selected.  Only the change is passed, in the order of the
    // list, so that it does not undo what a client selects at the same time.
    std::function<void(const SelectionChange&)> onSelect;

    MessageResult OnNotify(NMHDR& header) override;
    void ApplyScale() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    void AddColumn(int index, const wchar_t* caption);
    void SizeColumns();
    void SizeRows();
    void FillItem(LVITEMW& item) const;
    [[nodiscard]] std::string CellText(const SelectedItem& item, int column) const;
    MessageResult Draw(const NMLVCUSTOMDRAW& draw) const;
    void DrawChip(const NMLVCUSTOMDRAW& draw) const;
    void RequestReport();
    void Report();
    void SetSelected(int row, bool selected) const;

    std::vector<SelectedItem> rows_;
    std::vector<SelectedItem> shown_; // the selection as the list shows it
    ImageListHandle spacer_;
    bool silent_ = false; // the program itself changes the selection
    bool reportRequested_ = false;
};
