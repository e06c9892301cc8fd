#pragma once

#include <string>
#include <string_view>

// A text for comparisons that ignore the letter case: each letter in the form that stands for all
// of its cases.  One letter becomes one letter, so "ß" stays "ß".
//
// Knows the letters of ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic (U+0000 to U+052F, but
// not Latin Extended-B, IPA and combining marks) and the capital "ẞ", as the Unicode Character
// Database folds them (CaseFolding.txt, version 14.0, status C and S); every other character is its
// own.  Accents count.
[[nodiscard]] char32_t FoldCase(char32_t character) noexcept;

// Broken UTF-8 stays as it is.
[[nodiscard]] std::string FoldCase(std::string_view text);

// The same into a text that is there already, which is faster for many; what it held goes.
void FoldCaseInto(std::string& folded, std::string_view text);
