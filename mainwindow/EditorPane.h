#pragma once

#include "common/ColorNumber.h"
#include "common/ColorRecord.h"

#include <cstddef>
#include <string>

// The active-color editor: nine text boxes and sliders (index 0..8), name label, two swatches.
// Texts are UTF-8.
class EditorPane {
public:
    virtual ~EditorPane() = default;
    virtual void SetColorName(const std::string& name) = 0; // lblActiveColorName
    // Does not report a text change back.
    virtual void SetValueText(std::size_t index, const std::string& text) = 0;
    virtual void SelectWholeValueText(std::size_t index) = 0;
    virtual void SetSlider(std::size_t index, int position) = 0;
    virtual void SetLargeSwatch(ColorNumber background) = 0;
    // For the preview of the material; 0..255 and 0..100.
    virtual void SetMaterial(const ColorValueArray& values) = 0;
    // The large swatch shows the material, or the color alone.
    virtual void ShowMaterial(bool shown) = 0;
    virtual void SetSmallSwatch(ColorNumber background, ColorNumber text) = 0;
    virtual void SetSmallSwatchCaption(const std::string& caption) = 0;
};

// What the user did in the editor.
class EditorEvents {
public:
    virtual ~EditorEvents() = default;

    virtual void ValueTextChanged(std::size_t index, const std::string& text) = 0;
    [[nodiscard]] virtual bool IsValueCharacter(char32_t character) const = 0;
    virtual void ValueFocused(std::size_t index) = 0;
    virtual void SliderMoved(std::size_t index, int position) = 0;
    virtual void Repainted() = 0; // the main window as a whole
};
