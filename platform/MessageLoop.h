#pragma once

#include <functional>
#include <windows.h>

// The program's message loop: ends with the program (PostQuitMessage) and returns its exit code.
int RunMessageLoop();

// The loop of a modal window: ends when the condition is met.  The end of the program ends it too
// and is passed on to the loop outside.
void RunModalLoop(const std::function<bool()>& isDone);

// A message that a loop has got: for its form's keys, or for its window.
void DispatchToForm(MSG& message);
