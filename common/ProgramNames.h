#pragma once

// Fixed names of the program, never translated.
namespace ProgramNames {
inline constexpr const char* Title = "TNT4SWX";
inline constexpr const char* InputBoxTitle = "Chromixs - TNT4SWX";
inline constexpr const char* SolidWorksMessageTitle = "Chromix - TNT";
inline constexpr const char* RegistryPath = "SOFTWARE\\Chromixs\\TNT4SWX";
inline constexpr const char* RecoveryFolder = R"(\Chromixs\TNT4SWX\Recovery)"; // below local data
inline constexpr const char* FormPositionsKey = "Form Positions";
inline constexpr const char* SolidWorksClass = "SldWorks.Application";
} // namespace ProgramNames
