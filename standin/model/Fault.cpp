#include "standin/model/Fault.h"

#include "common/Numbers.h"

#include <array>

namespace {

struct KindName {
    const char* name;
    FaultKind kind;
};

constexpr std::array<KindName, 9> kKindNames{{
    {"error", FaultKind::Error},
    {"null", FaultKind::NullObject},
    {"empty", FaultKind::EmptyValue},
    {"short-array", FaultKind::WrongSizeArray},
    {"text-array", FaultKind::WrongTypeArray},
    {"text", FaultKind::Text},
    {"busy", FaultKind::Busy},
    {"retry-later", FaultKind::RetryLater},
    {"die", FaultKind::Die},
}};

[[noreturn]] void ThrowInvalid(const std::string& text) {
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, "Unknown fault: " + text);
}

FaultKind ReadKind(const std::string& text, const std::string& name) {
    for (const KindName& known : kKindNames)
        if (name == known.name)
            return known.kind;
    ThrowInvalid(text);
}

std::size_t ReadNumber(const std::string& text, const std::string& number) {
    const std::int32_t value = TextToInt32(number);
    if (value < 1)
        ThrowInvalid(text);
    return static_cast<std::size_t>(value);
}

std::size_t ReadTimes(const std::string& text, const std::string& times) {
    return times == "always" ? kAlways : ReadNumber(text, times);
}

} // namespace

Fault ParseFault(const std::string& text) {
    const std::size_t first = text.find(':');
    if (first == std::string::npos)
        ThrowInvalid(text);
    const std::size_t second = text.find(':', first + 1);
    Fault fault;
    fault.callNumber = ReadNumber(text, text.substr(0, first));
    fault.kind = ReadKind(text, text.substr(first + 1, second - first - 1));
    if (second == std::string::npos)
        return fault;
    const std::string detail = text.substr(second + 1);
    if (fault.kind == FaultKind::Error)
        fault.description = detail;
    else if (IsRejection(fault.kind))
        fault.times = ReadTimes(text, detail);
    else
        ThrowInvalid(text);
    return fault;
}
