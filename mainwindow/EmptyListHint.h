#pragma once

#include "common/ports/Folders.h"
#include "common/ports/InfoTexts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ListPane.h"

#include <functional>
#include <string>
#include <vector>

// What the list says while it has no rows: why, and what one can do.
class EmptyListHint : public ListHints {
public:
    struct Parts {
        const ColorLibrary& library;
        InfoTexts& texts;
        Folders& folders;
        std::string sampleFolder;         // its libraries are offered while none is open
        std::function<bool()> canRecover; // whether libraries that were not saved can come back
    };

    // As many of the samples are offered, in the order of their names.
    static constexpr std::size_t kMostSamples = 3;

    explicit EmptyListHint(Parts parts) : parts_(std::move(parts)) {}

    [[nodiscard]] std::vector<HintLine> HintLines() const override;

private:
    [[nodiscard]] std::vector<HintLine> LinesWithoutLibrary() const;
    [[nodiscard]] std::vector<HintLine> LinesOfLibrary() const;
    [[nodiscard]] std::vector<HintLine> LinesOfGroup() const;
    [[nodiscard]] std::vector<HintLine> Samples() const;
    // builtIn: German words, for language files that do not have the text.
    [[nodiscard]] std::string Text(std::int32_t number, const char* builtIn) const {
        return parts_.texts.GetInfoTextOr(number, builtIn);
    }

    Parts parts_;
};
