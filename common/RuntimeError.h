#pragma once

#include <stdexcept>
#include <string>

// Numbers of the run-time errors that the program itself raises.
namespace ErrorNumber {
inline constexpr int Overflow = 6;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int UserInterrupt = 18;
inline constexpr int ObjectNotSet = 91;
inline constexpr int Automation = 440;
inline constexpr int ConnectionLost = 462; // the other program is gone, or busy to the end
inline constexpr int PermissionDenied = 70;
inline constexpr int NoSuchMember = 438;
inline constexpr int InvalidPropertyValue = 380;
inline constexpr int ClipboardUnavailable = 521;
inline constexpr int DuplicateKey = 35602;
} // namespace ErrorNumber

// Broken input or a failed automation call: the one exception type of the program.  It is caught at
// the edge of a form, which reports it and lets the program go on.
class RuntimeError : public std::runtime_error {
public:
    // description: UTF-8, what the user is shown; member: the automation member that failed, or
    // empty.
    RuntimeError(int number, const std::string& description, std::string member = {})
        : std::runtime_error(description), number_(number), member_(std::move(member)) {}

    [[nodiscard]] int Number() const noexcept { return number_; }
    [[nodiscard]] std::string Description() const { return what(); }
    [[nodiscard]] const std::string& Member() const noexcept { return member_; }

private:
    int number_;
    std::string member_;
};

// Does the action; an error of it that names no member names this one.
template <class Action>
auto NamingMember(const std::string& member, Action action) {
    try {
        return action();
    } catch (const RuntimeError& error) {
        if (!error.Member().empty())
            throw;
        throw RuntimeError(error.Number(), error.Description(), member);
    }
}
