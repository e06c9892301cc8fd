#pragma once

#include "common/ColorRecord.h"
#include "mainwindow/MainView.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/Slider.h"
#include "platform/controls/Swatch.h"
#include "platform/controls/TextBox.h"

#include <array>

class Form;

// The active-colour editor on frmMain: the frame with name, large swatch and nine rows of label,
// text box and slider, and the small swatch that is shown instead of it.
class MainEditor {
public:
    explicit MainEditor(Form& form);

    void Attach(MainViewEvents& events);

    // Pixels.  The frame puts its rows into as many columns as its width allows.
    [[nodiscard]] int FrameHeight(int width) const;
    [[nodiscard]] int SmallSwatchHeight() const;
    void Arrange(); // inside the frame as large as it is now

    [[nodiscard]] Frame& FrameControl() noexcept { return *frame_; }
    [[nodiscard]] Swatch& SmallSwatch() noexcept { return *smallSwatch_; }
    [[nodiscard]] Swatch& LargeSwatch() noexcept { return *largeSwatch_; }
    [[nodiscard]] NameLabel& ColorName() noexcept { return *colorName_; }
    [[nodiscard]] TextBox& Box(std::size_t index) { return *rows_.at(index).box; }
    [[nodiscard]] Slider& SliderAt(std::size_t index) { return *rows_.at(index).slider; }

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
};
