#pragma once

#include "mainwindow/ListPane.h"
#include "mainwindow/panes/ColorPictures.h"
#include "platform/DpiScale.h"
#include "platform/controls/ListView.h"

#include <functional>
#include <vector>

// lvColor on frmMain.
class MainList : public ListPane {
public:
    // scale: the form's.
    MainList(ListView& control, const DpiScale& scale) : control_(control), scale_(scale) {}

    void Attach(ListRows& rows, ListEvents& events, const ListHints& hints);

    std::function<void(const HintLine& line)> onHintLink; // was clicked

    [[nodiscard]] float ListWidth() const override;
    void AddColumns(const std::vector<ListColumn>& columns) override;
    void ShowSortOrder(int column, bool descending) override;
    void RowsChanged(int rowCount) override;
    void SelectRow(int row) override;
    void EnsureRowVisible(int row) override;
    void FocusRows() override;
    int FirstRowInSight() const override;
    void ShowFromRow(int row) override;
    void EditRowLabel(int row) override;
    void FinishLabelEdit() override;
    void SetListViewMode(ListViewMode mode) override;
    void ShowRowColors(bool shown) override;
    void HintChanged() override;

private:
    ListView& control_;
    const DpiScale& scale_;
    const ListHints* hints_ = nullptr;
    std::vector<HintLine> hintLines_; // that are shown
    int rowCount_ = 0;
    const ListRows* rows_ = nullptr; // until it is attached, there is nothing to show
    ColorPictures pictures_;
};
