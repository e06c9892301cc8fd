#pragma once

#include "platform/Handles.h"
#include "standin/com/PaintedPane.h"
#include "standin/model/PictureLayout.h"

#include <functional>

// The picture of the active document: a card for each feature or component, and on it its faces as
// plates in the colors that they show.
class PicturePane : public PaintedPane {
public:
    PicturePane(ControlHost& host, const ControlPlace& place);

    // Null: there is nothing to show.
    void SetDocument(const DocumentPtr& document);

    // Where to click on the item, in client pixels; none when it is not shown.
    [[nodiscard]] std::optional<POINT> PointOf(const SelectedItem& item);

    // item without entity: the background was clicked.
    std::function<void(const SelectedItem& item, bool append)> onPick;

    void ApplyScale() override;

protected:
    void PaintInside(const Canvas& canvas, const RECT& area) const override;
    void OnMousePress(POINT point, bool append) override;

private:
    [[nodiscard]] PictureLayout LayOut() const;
    [[nodiscard]] int Px(int designPixels) const;
    void PaintCard(const Canvas& canvas, const PictureCard& card) const;
    void PaintPlate(const Canvas& canvas, const PictureTile& tile) const;
    void PaintMark(const Canvas& canvas, const RECT& area, const SelectedItem& item) const;
    void PaintNote(const Canvas& canvas, const RECT& area, const PictureLayout& layout) const;
    [[nodiscard]] std::size_t PlaceInSelection(const SelectedItem& item) const; // from 1; 0: none

    DocumentPtr document_;
    FontHandle boldFont_;
};
