#pragma once

#include <string>
#include <string_view>
#include <windows.h>

// Mouse and keyboard as the system gets them from the devices (SendInput).  Points are screen
// pixels.
namespace RealInput {

void Click(POINT at);
void DoubleClick(POINT at);
void ClickWithCtrl(POINT at);
void Drag(POINT from, POINT to);
void TurnWheel(POINT at, int notches); // above 0: away from the user

void PressKey(WORD virtualKey);
void PressWithAlt(WORD virtualKey);
void TypeText(std::wstring_view text);

} // namespace RealInput
