#pragma once

#include "common/RuntimeError.h"

#include <string>

// What a control answers that is asked for a property which it does not have.
[[noreturn]] inline void ThrowNoSuchMember(const std::string& control,
                                           const std::string& property) {
    throw RuntimeError(ErrorNumber::NoSuchMember, ErrorTexts::NoSuchProperty,
                       {control, Quoted(property)});
}
