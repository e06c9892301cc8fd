#pragma once

#include "common/ColorNumber.h"
#include "standin/model/Session.h"
#include "standin/model/StandInObject.h"
#include "standin/model/WithMembers.h"

#include <vector>

struct NamedColor {
    std::string name;
    ColorNumber color;
};

// The named standard colors of a document.  Indexes start at 0; one outside the table is an error.
class StandardColorTable final : public WithMembers<StandardColorTable, StandInObject> {
public:
    StandardColorTable(SessionPtr session, std::vector<NamedColor> colors)
        : session_(std::move(session)), colors_(std::move(colors)) {}

    [[nodiscard]] const std::vector<NamedColor>& Colors() const noexcept { return colors_; }

    void Replace(std::vector<NamedColor> colors);

    [[nodiscard]] std::string Label() const override { return "color table"; }
    [[nodiscard]] const MemberTable<StandardColorTable>& Members() const;

private:
    NamedColor& At(const AutomationValue& index);

    SessionPtr session_;
    std::vector<NamedColor> colors_;
};

// The twelve colors with which every document starts.
[[nodiscard]] std::vector<NamedColor> StandardColors();

// "Color 1", "Color 2", ... in different colors.
[[nodiscard]] std::vector<NamedColor> GeneratedColors(std::size_t count);
