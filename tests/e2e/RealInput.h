#pragma once

#include <string>
#include <string_view>
#include <windows.h>

// Mouse and keyboard as the system gets them from the devices (SendInput).  Points are screen
// pixels.
namespace RealInput {

void Click(POINT at);
void ClickWithCtrl(POINT at);
void Drag(POINT from, POINT to);

void PressKey(WORD virtualKey);
void PressWithAlt(WORD virtualKey);
void TypeText(std::wstring_view text);

} // namespace RealInput
