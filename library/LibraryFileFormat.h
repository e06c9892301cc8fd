#pragma once

#include "common/ColorRecord.h"
#include "common/ports/AnsiCodePage.h"
#include "library/ColorView.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The records of a library file, one per line:
//   "D#name=main key:count"
//   "G#name=group key"
//   "E#name=group key:alt name÷value 1÷ ... ÷value 9"
// Each line is one quoted string, ended by CR LF, in the system's ANSI code page.  Quotes inside
// names are not escaped.
namespace LibraryFileFormat {

struct Header {
    std::string name;
    std::int32_t count = 0; // groups plus colors; only the range of the progress bar
};

struct Group {
    std::string name;
    std::string key; // as saved
};

// Parts of the record that it was read from.
struct Color {
    std::string_view name;
    std::string_view groupKey; // as saved
    std::string_view altName;
    std::string_view values; // all nine, with separators between them

    // Nearly always a save wrote the values, and none has more than four digits: they are read
    // then.
    bool hasPlainValues = false;
    ColorValueArray plainValues{};
};

// A line without its first character (header), or without its first and last character (all
// others).  line: UTF-8.
[[nodiscard]] std::string_view WithoutFirstCharacter(std::string_view line);
[[nodiscard]] std::string_view WithoutQuotes(std::string_view line);

// What separates the fields of a color record, after decoding: the division sign, or what stands
// for byte 0xF7 in a code page that has no division sign.
[[nodiscard]] std::string FieldSeparator(const AnsiCodePage& codePage);

// Nothing when the record is invalid.  record: UTF-8, with its tag, without quotes.
// What a record is by its first characters, before anything else of it is looked at.
enum class RecordKind { Library, Group, Color, Other };
[[nodiscard]] RecordKind KindOf(std::string_view record);

[[nodiscard]] std::optional<Header> ParseHeader(std::string_view record);
[[nodiscard]] std::optional<Group> ParseGroup(std::string_view record);
[[nodiscard]] std::optional<Color> ParseColor(std::string_view record, std::string_view separator);

// Whether a line, with its quotes, that was read says nothing but what was taken from it, so that a
// save gives it back.  False for one whose quotes are something else, with bytes that the code page
// does not know, and:
//   header: a name that ended at an "=" that is not the last one, text behind the count;
//   group: such a name;
//   color: a value in another spelling than that of a save, as "007" or "1.5".
[[nodiscard]] bool IsHeaderTakenWhole(std::string_view line);
[[nodiscard]] bool IsGroupTakenWhole(std::string_view line);
[[nodiscard]] bool IsColorTakenWhole(std::string_view line, const Color& color,
                                     std::string_view separator);

// Whether a name is read back as it was written.  The second name of a color has a rule of its
// own: it stands among the values.
[[nodiscard]] bool NameComesBack(std::string_view name);
[[nodiscard]] bool SecondNameComesBack(std::string_view name, std::string_view separator);

[[nodiscard]] bool NamesComeBack(const StoredColor& color, std::string_view separator);

// Throws RuntimeError TypeMismatch or Overflow for a value that is no 16-bit number.
[[nodiscard]] ColorValueArray ValuesOf(const Color& color, std::string_view separator);

// Each adds a line to a text for the file, with quotes and CR LF, in UTF-8.
void AppendHeader(std::string& text, std::string_view name, std::string_view mainKey, int count);
void AppendGroup(std::string& text, std::string_view name, std::string_view key);
void AppendColor(std::string& text, const ColorView& color, std::string_view separator);

} // namespace LibraryFileFormat
