#include "standin/model/CallText.h"

#include "standin/model/StandInObject.h"

#include <array>
#include <charconv>

namespace {

std::string DoubleText(double number) {
    std::array<char, 40> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::general, 17);
    return {buffer.data(), result.ptr};
}

std::string Quoted(const std::string& text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '\r')
            result += "\\r";
        else if (character == '\n')
            result += "\\n";
        else if (character == '"' || character == '\\')
            result += {'\\', character};
        else
            result += character;
    }
    return result + "\"";
}

template <class Elements, class ToText>
std::string Joined(const Elements& elements, ToText toText) {
    std::string result;
    for (const auto& element : elements)
        result.append(result.empty() ? "" : ", ").append(toText(element));
    return result;
}

struct TextOf {
    std::string operator()(std::monostate) const { return "Empty"; }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(std::int32_t value) const { return std::to_string(value); }
    std::string operator()(const std::string& value) const { return Quoted(value); }

    std::string operator()(double value) const {
        const std::string text = DoubleText(value);
        const bool whole = text.find_first_not_of("-0123456789") == std::string::npos;
        return whole ? text + ".0" : text;
    }

    std::string operator()(const AutomationObjectPtr& value) const {
        if (!value)
            return "Nothing";
        const auto* own = dynamic_cast<const StandInObject*>(value.get());
        return own ? own->Label() : "object";
    }

    std::string operator()(const std::vector<double>& values) const {
        return std::string("[").append(Joined(values, DoubleText)).append("]");
    }

    std::string operator()(const AutomationArray& values) const {
        return std::string("Array(").append(Joined(values, CallText)).append(")");
    }
};

} // namespace

std::string CallText(const AutomationValue& value) {
    return std::visit(TextOf{}, value.data);
}
