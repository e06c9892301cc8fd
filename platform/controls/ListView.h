#pragma once

#include "common/ColorNumber.h"
#include "platform/controls/Control.h"
#include "platform/controls/LabelEdit.h"
#include "platform/controls/ListHint.h"
#include "platform/controls/MouseDrag.h"
#include "platform/IconList.h"

#include <functional>
#include <string>
#include <vector>

// A list whose rows are kept elsewhere: it asks for what it shows (LVS_OWNERDATA).  Rows count from
// 0, columns from 1.  What the program changes is not reported back, what the user does is.
class ListView : public Control {
public:
    struct Images {
        IconList& largeIcons; // both kept by the caller and fitted by this list
        IconList& smallIcons;
        const char* key; // the picture of every row
    };

    struct Column {
        std::string caption;
        int width; // pixels
    };

    // A row's own picture is painted into a square as large as the list's pictures are.
    struct PicturePlace {
        HDC device;
        int row;
        RECT square;
        bool isLarge; // that of large icons
    };
    using PicturePainter = std::function<void(const PicturePlace& place)>;

    ListView(ControlHost& host, const ControlPlace& place, const Images& images);

    // Each row has a picture of its own, painted whenever the row is; none: the common picture.
    void PaintPictures(PicturePainter painter);
    [[nodiscard]] bool HasOwnPictures() const noexcept { return painter_ != nullptr; }
    // The large one of the selected row, where rows have pictures of their own.
    void PaintSelected(HDC device, const RECT& square) const;

    // What it says while it has no rows; none: nothing.
    void ShowHint(const std::vector<ListHint::Line>& lines);

    void AddColumn(const std::string& caption, int width); // pixels
    void AddColumns(const std::vector<Column>& columns);   // arranged once for all of them
    void SetColumnCaption(int column, const std::string& caption);
    void SetColumnWidth(int column, int width); // pixels
    void AlignRight(int column);                // its texts; not of the first one
    void RemoveLastColumn();
    // The header shows that the rows are sorted by this column, from 1, and by no other one.
    void MarkColumn(int column, bool descending);
    void SetRowCount(int count); // all rows are new, none is selected
    void AddRowsTo(int count);   // more than before; those that were there are the same
    void SelectRow(int row);
    void EnsureVisible(int row);
    [[nodiscard]] int FirstRowInSight() const; // 0 but in details and list
    void ShowFromRow(int row);                 // as far as there are rows below it; not of icons
    void EditLabel(int row);
    void FinishEdit();      // an open one ends, with its text
    void SetMode(int mode); // 0 large icons, 1 small icons, 2 list, 3 details
    [[nodiscard]] int SelectedRow() const noexcept { return selected_; } // -1: none

    [[nodiscard]] MouseDrag& Drag() noexcept { return drag_; }

    std::function<std::string(int row, int column)> cellText;
    std::function<int(const std::string& text, int start)> findRow;
    std::function<void(int row)> onClick;  // a row was selected or clicked again
    std::function<void()> onDoubleClick;   // on a row
    std::function<void()> onEditRequested; // F2
    std::function<bool()> mayEdit;
    std::function<void(int row, const std::string& text)> onLabelEdited;
    std::function<void(int column)> onColumnClick;
    std::function<void(int line)> onHintLink;        // of ShowHint's lines, from 0
    std::function<void(POINT screen)> onContextMenu; // the row under it is selected
    std::function<void()> onPress;                   // a mouse button, beside the rows too
    std::function<bool(POINT screen)> onDragStart;   // of the selected row; true: Drag() begins

    [[nodiscard]] std::string TipText() const override;
    MessageResult OnNotify(NMHDR& header) override;
    void ApplyScale() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    struct Cell {
        int row; // -1: none
        int column;
    };

    void FillItem(LVITEMW& item) const;
    [[nodiscard]] int ImageOfRows() const;
    MessageResult FollowPainting(const NMCUSTOMDRAW& stage) const;
    void PaintPicture(HDC device, int row) const;
    void PaintPictureIn(const RECT& place, HDC device, int row) const;
    [[nodiscard]] const IconList& ShownImages() const;
    void FitColumns();
    void ArrangeHint();
    [[nodiscard]] RECT AreaOfRows() const;
    [[nodiscard]] LONG_PTR View() const noexcept; // LVS_ICON ... LVS_REPORT
    void Arrange();
    void SelectionChanged(const NMLISTVIEW& change);
    [[nodiscard]] bool BeginLabelEdit(int row);
    void EndLabelEdit(const NMLVDISPINFOW& info);
    [[nodiscard]] int FindText(const NMLVFINDITEMW& search) const;
    [[nodiscard]] int RowAt(POINT point) const; // -1: none
    [[nodiscard]] Cell CellAt(POINT point) const;
    [[nodiscard]] bool IsNameCut(int row, const std::string& name) const;
    void ShowSelection(int row); // without a report
    LRESULT KeepSelection(const WindowMessage& message);
    MessageResult PressLeft(const WindowMessage& message);
    void PressRight(const WindowMessage& message);
    void OpenContextMenu(const WindowMessage& message);
    void StartDrag(const NMLISTVIEW& start);

    Images images_;
    PicturePainter painter_;
    int dpi_ = 0; // that the column widths are made for
    int columns_ = 0;
    int selected_ = -1;
    LabelEdit label_;
    ListHint hint_;
    bool silent_ = false; // the program itself changes the selection
    MouseDrag drag_{Handle()};
};
