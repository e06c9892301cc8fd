#pragma once

#include "common/ErrorText.h"
#include "common/ports/InfoTexts.h"

#include <stdexcept>
#include <string>
#include <vector>

// Numbers of the run-time errors that the program itself raises.
namespace ErrorNumber {
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int UserInterrupt = 18;
inline constexpr int Internal = 51; // what no other number names
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
//
// Whoever throws says which of the program's texts it is and what the arguments are; the words are
// found where the error is shown, in the language that is active then.
class RuntimeError : public std::runtime_error {
public:
    // words: UTF-8, not the program's own: those of the other program or of the system.  member:
    // the automation member that failed, or empty.
    RuntimeError(int number, const std::string& words, std::string member = {});
    // The program's own words, from the language files.
    RuntimeError(int number, const ErrorText& text, const std::vector<std::string>& arguments = {},
                 std::string member = {});

    [[nodiscard]] int Number() const noexcept { return number_; }
    [[nodiscard]] const std::string& Member() const noexcept { return member_; }

    // In the built-in English words.
    [[nodiscard]] std::string Description() const { return what(); }
    // In the words of the active language.
    [[nodiscard]] std::string Description(InfoTexts& texts) const;

    [[nodiscard]] RuntimeError WithMember(const std::string& member) const;
    // The same error, which says on a line of its own where it happened.
    [[nodiscard]] RuntimeError At(const ErrorSentence& place) const;

private:
    RuntimeError(int number, std::vector<ErrorSentence> sentences, std::string member);

    int number_;
    std::vector<ErrorSentence> sentences_;
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
        throw error.WithMember(member);
    }
}

// Does the action; an error of it says where it happened.  place: gives an ErrorSentence.
template <class Place, class Action>
auto NamingPlace(const Place& place, Action action) {
    try {
        return action();
    } catch (const RuntimeError& error) {
        throw error.At(place());
    }
}
