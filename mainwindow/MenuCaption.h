#pragma once

#include <string>

// The words of a menu's caption: without the marks of its access key and of a question that
// follows (" ...").
[[nodiscard]] std::string PlainCaption(const std::string& caption);
