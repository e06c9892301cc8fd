#pragma once

#include "common/ports/AnsiCodePage.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The content of a text file as UTF-8 without a mark: UTF-8 or UTF-16 of either order when its mark
// says so, without a mark UTF-8 when it is valid, and the system's code page when it is not.
class PaletteText {
public:
    // bytes: must live as long as this.
    PaletteText(std::string_view bytes, const AnsiCodePage& codePage);
    PaletteText(const PaletteText&) = delete;
    PaletteText& operator=(const PaletteText&) = delete;

    [[nodiscard]] std::string_view View() const noexcept { return view_; }

    // Whether bytes are a text: they have a mark, or no zero among the first of them.
    [[nodiscard]] static bool IsOne(std::string_view bytes) noexcept;

private:
    void Own(std::string text);

    std::string own_;
    std::string_view view_;
};

// The lines of a text one by one, without their ends (CR LF, LF, or CR where there is no LF).  What
// stands behind the last end is a line when it is not empty.
class PaletteLines {
public:
    explicit PaletteLines(std::string_view text) noexcept
        : rest_(text), end_(text.find('\n') == std::string_view::npos ? '\r' : '\n') {}

    [[nodiscard]] std::optional<std::string_view> Next() noexcept;
    [[nodiscard]] std::size_t Number() const noexcept { return number_; } // of the last one, from 1

private:
    std::string_view rest_;
    char end_;
    std::size_t number_ = 0;
};

// About how many lines a text has, by those of its beginning.
[[nodiscard]] std::size_t EstimateLines(std::string_view text) noexcept;

// Without blanks and tabs at its ends.
[[nodiscard]] std::string_view WithoutBlanksAround(std::string_view text) noexcept;
