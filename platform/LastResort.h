#pragma once

#include <functional>
#include <string>

// Runs the program and gives its exit code.  An exception that leaves it is shown in a box of its
// own, and the exit code is 1.  title: UTF-8.
int RunWithLastResort(const std::function<int()>& program, const std::string& title);
