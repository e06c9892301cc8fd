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
void ClickRight(POINT at);
void Drag(POINT from, POINT to);
void TurnWheel(POINT at, int notches); // above 0: away from the user

// The parts of a drag that is looked at before it ends.
void MoveTo(POINT at);
void PressLeft();
void Glide(POINT from, POINT to); // in several steps
void ReleaseLeft();
void ReleaseLeftWithCtrl(); // Ctrl is down for no longer

void PressKey(WORD virtualKey);
void PressWithAlt(WORD virtualKey);
void PressWithShift(WORD virtualKey);
void HoldKey(WORD virtualKey);
void ReleaseKey(WORD virtualKey);
void TypeText(std::wstring_view text);

} // namespace RealInput
