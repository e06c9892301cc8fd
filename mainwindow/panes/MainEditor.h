#pragma once

#include "common/ColorRecord.h"
#include "mainwindow/EditorPane.h"
#include "mainwindow/panes/MaterialPreview.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/Slider.h"
#include "platform/controls/Swatch.h"
#include "platform/controls/TextBox.h"

#include <array>
#include <functional>

class Form;

// The active-color editor on frmMain: the frame with name, large swatch and nine rows of label,
// text box and slider, and the small swatch that is shown instead of it.
class MainEditor : public EditorPane {
public:
    explicit MainEditor(Form& form);

    void Attach(EditorEvents& events);
    void OnSwatchDoubleClick(const std::function<void()>& action);

    // Pixels.  The frame puts its rows into as many columns as its width allows.
    [[nodiscard]] int FrameHeight(int width) const;
    [[nodiscard]] int SmallSwatchHeight() const;
    void Arrange(); // inside the frame as large as it is now

    [[nodiscard]] Frame& FrameControl() noexcept { return *frame_; }
    [[nodiscard]] Swatch& SmallSwatch() noexcept { return *smallSwatch_; }
    void FocusFirstBox() { rows_.front().box->Focus(); }

    void SetColorName(const std::string& name) override;
    void SetValueText(std::size_t index, const std::string& text) override;
    void SelectWholeValueText(std::size_t index) override;
    void SetSlider(std::size_t index, int position) override;
    void SetLargeSwatch(ColorNumber background) override;
    void SetMaterial(const ColorValueArray& values) override;
    void ShowMaterial(bool shown) override;
    void SetSmallSwatch(ColorNumber background, ColorNumber text) override;
    void SetSmallSwatchCaption(const std::string& caption) override;

private:
    struct Row {
        Label* label;
        TextBox* box;
        Slider* slider;
    };
    struct Grid {
        int columns;
        int rows;
        int labelWidth;
        int boxWidth;
        int cellWidth;
        int cellHeight; // to the next row
        int left;
        int top;
    };

    void AddRow(std::size_t index);
    [[nodiscard]] Grid GridFor(int width) const;
    [[nodiscard]] int BoxHeight() const;
    [[nodiscard]] int LabelWidth() const;
    [[nodiscard]] int Design(int designPixels) const;
    void PlaceSwatch(const RECT& area);
    void PlaceRow(const Row& row, const Grid& grid, int left, int top) const;

    Form& form_;
    Frame* frame_;
    NameLabel* colorName_;
    Swatch* largeSwatch_;
    Swatch* smallSwatch_ = nullptr;
    std::array<Row, kColorValueCount> rows_{};
    MaterialPreview preview_;
};
