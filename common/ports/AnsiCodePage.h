#pragma once

#include <string>
#include <string_view>

// The system's ANSI code page, single- or multi-byte.
class AnsiCodePage {
public:
    virtual ~AnsiCodePage() = default;

    // Bytes of the code page to UTF-8.  Never fails: bytes without a meaning become U+FFFD.
    [[nodiscard]] virtual std::string Decode(std::string_view bytes) const = 0;

    struct Encoded {
        std::string bytes;    // "?" stands for each character that the code page cannot hold
        std::string unstored; // these characters, UTF-8, each once, in the order of the text
    };
    [[nodiscard]] virtual Encoded Encode(std::string_view utf8) const = 0;
};
