#pragma once

// The numbers of the input box's controls; its buttons have the system's.
namespace InputBoxControls {
inline constexpr int Prompt = 1452;
inline constexpr int Input = 1451;
} // namespace InputBoxControls
