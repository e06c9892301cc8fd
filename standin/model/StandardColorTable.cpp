#include "standin/model/StandardColorTable.h"

#include "common/RuntimeError.h"

NamedColor& StandardColorTable::At(const AutomationValue& index) {
    const std::int32_t number = index.AsInt32();
    if (number < 0 || static_cast<std::size_t>(number) >= colors_.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           "The color table has no entry " + std::to_string(number));
    return colors_[static_cast<std::size_t>(number)];
}

void StandardColorTable::Replace(std::vector<NamedColor> colors) {
    colors_ = std::move(colors);
    session_->events.Changed();
}

const MemberTable<StandardColorTable>& StandardColorTable::Members() const {
    using Arguments = AutomationArray;
    static const MemberTable<StandardColorTable> members{
        {"GetStandardCount", 0,
         [](StandardColorTable& table, const Arguments&) -> AutomationValue {
             return static_cast<std::int32_t>(table.colors_.size());
         }},
        {"GetNameAtIndex", 1,
         [](StandardColorTable& table, const Arguments& arguments) -> AutomationValue {
             return table.At(arguments[0]).name;
         }},
        {"GetColorRefAtIndex", 1,
         [](StandardColorTable& table, const Arguments& arguments) -> AutomationValue {
             return static_cast<std::int32_t>(table.At(arguments[0]).color);
         }},
        // The third argument says to what else the change applies; nothing else is modelled.
        {"SetColorRefAtIndex", 3,
         [](StandardColorTable& table, const Arguments& arguments) -> AutomationValue {
             const std::int32_t color = arguments[1].AsInt32();
             (void)arguments[2].AsInt32();
             table.At(arguments[0]).color = static_cast<ColorNumber>(color) & 0xFFFFFF;
             table.session_->events.Changed();
             return true;
         }},
    };
    return members;
}

std::vector<NamedColor> StandardColors() {
    return {
        {"Signal red", MakeColorNumber(200, 30, 36)},
        {"Orange", MakeColorNumber(236, 122, 28)},
        {"Yellow", MakeColorNumber(246, 206, 46)},
        {"Leaf green", MakeColorNumber(84, 160, 62)},
        {"Turquoise", MakeColorNumber(38, 166, 154)},
        {"Sky blue", MakeColorNumber(64, 128, 255)},
        {"Navy", MakeColorNumber(24, 48, 112)},
        {"Violet", MakeColorNumber(122, 76, 168)},
        {"Brass", MakeColorNumber(181, 152, 78)},
        {"Copper", MakeColorNumber(184, 106, 70)},
        {"Light grey", MakeColorNumber(208, 210, 212)},
        {"Graphite", MakeColorNumber(58, 62, 68)},
    };
}

std::vector<NamedColor> GeneratedColors(std::size_t count) {
    constexpr ColorNumber step = 0x010307; // any odd one: no two of 2^24 colors are the same
    std::vector<NamedColor> colors;
    for (std::size_t i = 1; i <= count; ++i)
        colors.push_back({"Color " + std::to_string(i),
                          static_cast<ColorNumber>(i * step) & ColorNumber{0xFFFFFF}});
    return colors;
}
