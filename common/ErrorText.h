#pragma once

#include "common/InfoTextNumber.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// One of the program's own descriptions of an error: a numbered text of the language files, and the
// English words that stand in for it while no language file has it.  %1, %2 ... are the places of
// its arguments.
struct ErrorText {
    std::int32_t number;
    const char* builtIn;
};

namespace ErrorTexts {
inline constexpr ErrorText NotANumber{InfoTextNumber::NotANumber, "This is not a number: \"%1\""};
inline constexpr ErrorText NumberOutOfRange{InfoTextNumber::NumberOutOfRange,
                                            "This number is not between %2 and %3: %1"};
inline constexpr ErrorText WrongKindOfValue{InfoTextNumber::WrongKindOfValue,
                                            "The value is of another kind than is needed here"};
inline constexpr ErrorText NoSuchNumber{InfoTextNumber::NoSuchNumber,
                                        "There is no entry with this number."};
inline constexpr ErrorText GroupNumberTaken{
    InfoTextNumber::GroupNumberTaken,
    "The number of the new group is taken already. The library can take another group after it has "
    "been saved and opened again."};
inline constexpr ErrorText NoSuchNode{InfoTextNumber::NoSuchNode,
                                      "There is no library or group with the key \"%1\"."};
inline constexpr ErrorText ClipboardInUse{InfoTextNumber::ClipboardInUse,
                                          "The clipboard is in use by another program."};
inline constexpr ErrorText DialogNotShown{InfoTextNumber::DialogNotShown,
                                          "The dialog could not be shown (error %1)."};
inline constexpr ErrorText NoSuchProperty{InfoTextNumber::NoSuchProperty,
                                          "The control %1 has no property %2."};
inline constexpr ErrorText NoSuchListEntry{InfoTextNumber::NoSuchListEntry,
                                           "The control %1 has no entry %2."};
inline constexpr ErrorText NoSuchButton{InfoTextNumber::NoSuchButton,
                                        "The toolbar has no button %1."};
inline constexpr ErrorText NotNineNumbers{InfoTextNumber::NotNineNumbers,
                                          "The color array does not have nine numbers"};
inline constexpr ErrorText NoObject{InfoTextNumber::NoObject, "SolidWorks gave no object"};
inline constexpr ErrorText NoColorForEntry{InfoTextNumber::NoColorForEntry,
                                           "The group has no color for entry %1 of the table."};
inline constexpr ErrorText StoppedByUser{InfoTextNumber::StoppedByUser,
                                         "The work was stopped by the user."};
inline constexpr ErrorText StoredSettings{
    InfoTextNumber::StoredSettings,
    "Stored settings that cannot be understood; their defaults are used: %1. Options, Save "
    "settings, replaces them."};
inline constexpr ErrorText FileAndLine{InfoTextNumber::FileAndLine, "File: %1, line %2"};
inline constexpr ErrorText NoWindow{InfoTextNumber::NoWindow,
                                    "The window or control %1 could not be made."};
inline constexpr ErrorText OutOfMemory{InfoTextNumber::OutOfMemory, "There is not enough memory."};
inline constexpr ErrorText UnknownError{InfoTextNumber::UnknownError, "Unknown error"};
inline constexpr ErrorText TextTooLong{InfoTextNumber::TextTooLong, "The text is too long."};
inline constexpr ErrorText ServerRejectsCall{InfoTextNumber::ServerRejectsCall,
                                             "The other program rejects the call (%1)"};
inline constexpr ErrorText ObjectIsGone{
    InfoTextNumber::ObjectIsGone, "The object is gone: it was closed or deleted meanwhile (%1)"};
inline constexpr ErrorText ServerWantsOtherKind{
    InfoTextNumber::ServerWantsOtherKind,
    "The other program takes no value of this kind here (%1)"};
inline constexpr ErrorText ServerLacksMember{
    InfoTextNumber::ServerLacksMember,
    "This version of the other program does not know the member (%1)"};
inline constexpr ErrorText ServerWantsOtherCount{
    InfoTextNumber::ServerWantsOtherCount,
    "The other program takes another number of values here (%1)"};
inline constexpr ErrorText ServerIsDisconnected{InfoTextNumber::ServerIsDisconnected,
                                                "The connection to the other program is lost (%1)"};
inline constexpr ErrorText ServerFails{InfoTextNumber::ServerFails,
                                       "The other program failed in the call (%1)"};
} // namespace ErrorTexts

// What an error says: a text and its arguments.
struct ErrorSentence {
    ErrorText text;
    std::vector<std::string> arguments; // UTF-8
};

// The template with its arguments in their places; a place without an argument is empty.
[[nodiscard]] std::string WithArguments(std::string_view text,
                                        const std::vector<std::string>& arguments);

// Input that an error quotes: cut after 40 characters, and on one line.  UTF-8.
[[nodiscard]] std::string Quoted(std::string_view input);
