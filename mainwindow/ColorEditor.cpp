#include "mainwindow/ColorEditor.h"

#include "common/InfoTextNumber.h"
#include "common/Numbers.h"

#include <algorithm>

namespace {

constexpr char32_t kBackspace = 8;
constexpr char32_t kFullStop = 46;

// texts: of the nine values.
std::string ColorInNumbers(const std::array<std::string, kColorValueCount>& texts) {
    return " (R:" + texts[0] + " G:" + texts[1] + " B:" + texts[2] + ")";
}

} // namespace

ColorEditor::ColorEditor(EditorPane& pane, Prompts& prompts, InfoTexts& texts)
    : pane_(pane), prompts_(prompts), infoTexts_(texts) {
    texts_.fill("0");
}

void ColorEditor::ShowInitialColor() {
    ColorRecord color;
    color.name = "New Color";
    color.values = {255, 255, 255, 100, 100, 100, 30, 0, 0};
    ShowColor(color);
}

void ColorEditor::ShowColor(const ColorRecord& color) {
    Load(color, kFullComplementMask);
    isNameOfLibrary_ = true;
}

void ColorEditor::ShowColorFromSolidWorks(const ColorRecord& color) {
    Load(color, kPartialComplementMask);
}

void ColorEditor::Load(const ColorRecord& color, ColorNumber complementMask) {
    SetName(color.name);
    std::array<std::string, kColorValueCount> texts;
    std::ranges::transform(color.values, texts.begin(),
                           [](std::int16_t value) { return std::to_string(value); });
    SetTexts(texts);
    ShowSmallSwatch(complementMask);
    // The color's own numbers, also those that the boxes do not take.
    captionHasName_ = true;
    captionNumbers_ = ColorInNumbers(texts);
    ShowCaption();
}

void ColorEditor::Rename(const std::string& name) {
    SetName(name);
    isNameOfLibrary_ = true;
    ShowCaption();
}

void ColorEditor::ShowCaption() {
    pane_.SetSmallSwatchCaption((captionHasName_ ? name_ : std::string()) + captionNumbers_);
}

void ColorEditor::SetName(const std::string& name) {
    name_ = name;
    isNameOfLibrary_ = false;
    pane_.SetColorName(name);
}

// All texts are the new ones before the first is handled: the swatches are built from three of
// them, and what stood there before need not be a number.
void ColorEditor::SetTexts(std::span<const std::string> texts) {
    std::ranges::copy(texts, texts_.begin());
    for (std::size_t index = 0; index < texts.size(); ++index) {
        pane_.SetValueText(index, texts[index]);
        TakeText(index, texts[index]);
    }
}

void ColorEditor::SetRedGreenBlue(const RedGreenBlue& color) {
    const std::array texts = {std::to_string(color.red), std::to_string(color.green),
                              std::to_string(color.blue)};
    SetTexts(texts);
    ShowNumbers();
}

void ColorEditor::SetText(std::size_t index, const std::string& text) {
    pane_.SetValueText(index, text);
    ValueTextChanged(index, text);
}

ColorValueArray ColorEditor::ValuesOf(const Texts& texts) {
    ColorValueArray values{};
    std::ranges::transform(texts, values.begin(),
                           [](const std::string& text) { return TextToInt16(text); });
    return values;
}

void ColorEditor::ValueTextChanged(std::size_t index, const std::string& text) {
    TakeText(index, text);
    ShowNumbers();
}

void ColorEditor::TakeText(std::size_t index, const std::string& text) {
    texts_.at(index) = text;
    const int maximum = MaximumOfColorValue(index);
    const int value = text.empty() ? 0 : std::clamp(TextToInt32(text), 0, maximum);
    const std::string written = std::to_string(value);
    texts_[index] = written;
    material_[index] = static_cast<std::int16_t>(value);
    if (written != text)
        pane_.SetValueText(index, written);
    if (value == 0 || value == maximum)
        pane_.SelectWholeValueText(index);
    pane_.SetSlider(index, value);
    PaintSwatches();
}

// Without the color's name on purpose: an edited color is not the named one any more.
void ColorEditor::ShowNumbers() {
    captionHasName_ = false;
    captionNumbers_ = ColorInNumbers(texts_);
    ShowCaption();
}

bool ColorEditor::IsValueCharacter(char32_t character) const noexcept {
    return (character >= U'0' && character <= U'9') || character == kBackspace ||
           character == kFullStop;
}

void ColorEditor::ValueFocused(std::size_t index) {
    pane_.SelectWholeValueText(index);
}

void ColorEditor::SliderMoved(std::size_t index, int position) {
    SetText(index, std::to_string(position));
}

void ColorEditor::PickActiveColorFromDialog() {
    const auto color = prompts_.AskColor(infoTexts_.GetInfoText(InfoTextNumber::Color), swatch_);
    if (color)
        SetRedGreenBlue(SplitColorNumber(*color));
}

void ColorEditor::Repainted() {
    ShowSmallSwatch(kPartialComplementMask);
}

void ColorEditor::PaintSwatches() {
    swatch_ =
        MakeColorNumber(TextToInt32(texts_[0]), TextToInt32(texts_[1]), TextToInt32(texts_[2]));
    pane_.SetLargeSwatch(swatch_);
    pane_.SetMaterial(material_);
    ShowSmallSwatch(kFullComplementMask);
}

void ColorEditor::ShowSmallSwatch(ColorNumber complementMask) {
    pane_.SetSmallSwatch(swatch_, swatch_ ^ complementMask);
}
