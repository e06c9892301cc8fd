#pragma once

#include <string_view>

// What the operations of modSldTools return.
namespace ResultKey {
inline constexpr const char* Okay = "okay";
// The standard-color operations', capitalised on purpose; their callers test the failures only.
inline constexpr const char* StandardColorsOkay = "Okay";
inline constexpr const char* ColorRead = ""; // success of reading a color
inline constexpr const char* NoSolidWorksFound = "NoSolidWorksFound";
inline constexpr const char* NoActiveDocument = "NoActiveDocument";
inline constexpr const char* NoPartOrAssembly = "NoPartOrAssembly";
inline constexpr const char* NoAssembly = "NoAssembly";
inline constexpr const char* NoPart = "NoPart";
inline constexpr const char* NoPartBody = "NoPartBody";
inline constexpr const char* NoRequiredSWAPI = "NoRequiredSWAPI";
inline constexpr const char* ProgressStopped = "ProgressStopped";
inline constexpr const char* LevelsChanged = "LevelsChanged"; // since the user has seen them
inline constexpr const char* NoValidColorScheme = "NoValidColorScheme";
inline constexpr const char* NoValidColorName = "NoValidColorName";
// Followed by details.
inline constexpr const char* NoValidSelection = "NoValidSelection: ";
inline constexpr const char* NoValidSelectionNoObject = "NoValidSelection:"; // no blank, on purpose
inline constexpr const char* NoColorValueFound = "NoColorValueFound: ";
} // namespace ResultKey

// What a result key means to the one who asked for the operation.
enum class ResultKind {
    Okay,
    NoSolidWorks,
    NoActiveDocument,
    NoPartOrAssembly,
    RevisionTooLow,
    NoPart,
    NoAssembly,
    LevelsChanged,
    Stopped, // by the user
    Other,   // the success of an operation with a key of its own, or a report as it is
};

[[nodiscard]] ResultKind KindOfResult(std::string_view resultKey);
