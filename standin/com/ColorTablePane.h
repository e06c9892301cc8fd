#pragma once

#include "standin/com/PaintedPane.h"
#include "standin/model/Document.h"

// The named standard colors of the document.
class ColorTablePane : public PaintedPane {
public:
    ColorTablePane(ControlHost& host, const ControlPlace& place) : PaintedPane(host, place) {}

    void SetDocument(const DocumentPtr& document);
    void Refresh();

protected:
    void PaintInside(const Canvas& canvas, const RECT& area) const override;

private:
    [[nodiscard]] RECT CellOf(const RECT& area, int index, int count) const;
    void PaintEntry(const Canvas& canvas, const RECT& cell, const NamedColor& entry) const;

    DocumentPtr document_;
};
