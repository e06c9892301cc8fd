#pragma once

#include "common/ColorNumber.h"
#include "common/ColorRecord.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "mainwindow/EditorPane.h"

#include <array>
#include <span>
#include <string>

// The active-color editor: a scratch copy of a color in nine text boxes with sliders, a name
// label and two swatches.  It knows nothing of the library.
class ColorEditor : public EditorEvents {
public:
    ColorEditor(EditorPane& pane, Prompts& prompts, InfoTexts& texts);

    // "New Color", white, as the program starts.
    void ShowInitialColor();

    // Loads a color of the library.
    void ShowColor(const ColorRecord& color);

    // Loads a color that was read from SolidWorks: as above, but the small swatch's text takes the
    // partial complement, on purpose.
    void ShowColorFromSolidWorks(const ColorRecord& color);

    // Red, green and blue as they are shown.
    [[nodiscard]] ColorNumber ActiveColor() const noexcept { return swatch_; }

    void SetName(const std::string& name);

    // Whether the name is that of a color of the library, not one of SolidWorks or of the start.
    [[nodiscard]] bool IsNameOfLibrary() const noexcept { return isNameOfLibrary_; }

    // The shown color was renamed in the library: also the small swatch follows while it carries
    // the name.
    void Rename(const std::string& name);
    [[nodiscard]] const std::string& Name() const noexcept { return name_; }

    // Assigns a text box by code, with everything that a change of its text brings.
    void SetText(std::size_t index, const std::string& text);

    // Assigns the first three text boxes.
    void SetRedGreenBlue(const RedGreenBlue& color);
    [[nodiscard]] const std::string& Text(std::size_t index) const { return texts_.at(index); }

    using Texts = std::array<std::string, kColorValueCount>;
    [[nodiscard]] const Texts& ValueTexts() const noexcept { return texts_; }
    // Texts of the nine boxes as numbers.  Throws RuntimeError when one does not convert.
    [[nodiscard]] static ColorValueArray ValuesOf(const Texts& texts);

    // The nine texts as numbers.  Throws RuntimeError when one does not convert.
    [[nodiscard]] ColorValueArray Values() const { return ValuesOf(texts_); }

    // The user changed a text.  Throws RuntimeError when it does not convert; the text then stays.
    void ValueTextChanged(std::size_t index, const std::string& text) override;

    // Digits, backspace and the full stop.
    [[nodiscard]] bool IsValueCharacter(char32_t character) const noexcept override;

    void ValueFocused(std::size_t index) override;
    void SliderMoved(std::size_t index, int position) override;
    void PickActiveColorFromDialog();

    // The window is repainted: the small swatch's text takes the partial complement, on purpose.
    void Repainted() override;

private:
    void Load(const ColorRecord& color, ColorNumber complementMask);
    void SetTexts(std::span<const std::string> texts);
    void TakeText(std::size_t index, const std::string& text);
    void ShowNumbers();
    void PaintSwatches();
    void ShowSmallSwatch(ColorNumber complementMask);
    void ShowCaption();

    EditorPane& pane_;
    Prompts& prompts_;
    InfoTexts& infoTexts_;
    std::string name_;
    Texts texts_;
    ColorValueArray material_{};  // what the texts were last when they were numbers
    ColorNumber swatch_ = 0;      // background of both swatches
    bool captionHasName_ = false; // of the small swatch
    bool isNameOfLibrary_ = false;
    std::string captionNumbers_;
};
