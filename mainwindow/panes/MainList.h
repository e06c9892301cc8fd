#pragma once

#include "mainwindow/ListPane.h"
#include "mainwindow/panes/ColorPictures.h"
#include "platform/DpiScale.h"
#include "platform/controls/ListView.h"

// lvColor on frmMain.
class MainList : public ListPane {
public:
    // scale: the form's.
    MainList(ListView& control, const DpiScale& scale) : control_(control), scale_(scale) {}

    void Attach(ListRows& rows, ListEvents& events);

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

private:
    ListView& control_;
    const DpiScale& scale_;
    const ListRows* rows_ = nullptr; // until it is attached, there is nothing to show
    ColorPictures pictures_;
};
