#pragma once

#include "common/RuntimeError.h"

#include <cstddef>
#include <limits>
#include <string>

// How a call goes wrong.
enum class FaultKind {
    Error,          // fails with a description
    NullObject,     // answers "Nothing"
    EmptyValue,     // answers an empty value
    WrongSizeArray, // answers an array of two doubles
    WrongTypeArray, // answers an array of nine texts
    Text,           // answers a text that is no number
    Busy,           // is rejected before it is received, `times` times
    RetryLater,     // as Busy, with the other of the two answers that busy programs give
    Die             // the server ends
};

// Whether a call that goes wrong so is not received at all.
[[nodiscard]] constexpr bool IsRejection(FaultKind kind) noexcept {
    return kind == FaultKind::Busy || kind == FaultKind::RetryLater;
}

// A number of times without end.
inline constexpr std::size_t kAlways = std::numeric_limits<std::size_t>::max();

// The call with this number, counted from 1, goes wrong.  The kinds that answer something else
// leave the call itself out; assigning a property answers nothing and is left out as well.
struct Fault {
    std::size_t callNumber = 1;
    FaultKind kind = FaultKind::Error;
    std::string description = "The stand-in was told to fail"; // of Error
    std::size_t times = 1;                                     // of Busy and RetryLater

    bool operator==(const Fault&) const = default;
};

// "N:error", "N:error:TEXT", "N:null", "N:empty", "N:short-array", "N:text-array", "N:text",
// "N:busy", "N:busy:TIMES", "N:busy:always", the same with "retry-later", "N:die".  Throws
// RuntimeError InvalidPropertyValue for everything else.
[[nodiscard]] Fault ParseFault(const std::string& text);

// A call that a busy server did not let in; it may be made again.
class CallRejected : public RuntimeError {
public:
    explicit CallRejected(const std::string& member)
        : RuntimeError(ErrorNumber::ConnectionLost, "Call was rejected by callee.", member) {}
};

// A call to a server that has ended.
class ServerGone : public RuntimeError {
public:
    explicit ServerGone(const std::string& member)
        : RuntimeError(ErrorNumber::ConnectionLost, "The remote procedure call failed.", member) {}
};
