#pragma once

#include "platform/Handles.h"
#include "standin/com/PaintedPane.h"
#include "standin/model/ObjectRows.h"

// The material of the object that was selected last: a lit ball, the nine values and the level that
// they come from; of the document when nothing is selected.
class DetailsPane : public PaintedPane {
public:
    DetailsPane(ControlHost& host, const ControlPlace& place);

    void SetDocument(const DocumentPtr& document);
    // The document has changed; its window text too.
    void Refresh();

    void ApplyScale() override;

protected:
    void PaintInside(const Canvas& canvas, const RECT& area) const override;

private:
    struct Shown {
        std::string title;
        std::string source; // where the color comes from
        DisplayColor color;
        bool hasColor = false;
    };

    [[nodiscard]] Shown CurrentlyShown() const;
    [[nodiscard]] int Px(int designPixels) const;
    void PaintBall(const Canvas& canvas, const RECT& area, const MaterialValues& values) const;
    void PaintValues(const Canvas& canvas, const RECT& area, const MaterialValues& values) const;

    DocumentPtr document_;
    FontHandle boldFont_;
};
