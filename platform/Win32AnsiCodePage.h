#pragma once

#include "common/SingleByteCodePage.h"
#include "common/ports/AnsiCodePage.h"

#include <memory>

// MultiByteToWideChar and WideCharToMultiByte.
class Win32AnsiCodePage : public AnsiCodePage {
public:
    Win32AnsiCodePage();                           // the system's (GetACP)
    explicit Win32AnsiCodePage(unsigned codePage); // 1252, 932, 65001, ...

    [[nodiscard]] std::string Decode(std::string_view bytes) const override;

    // Without best fit: a character that has no place of its own counts as not storable.
    [[nodiscard]] Encoded Encode(std::string_view utf8) const override;

private:
    unsigned codePage_;
    std::unique_ptr<SingleByteCodePage> table_; // null: characters of several bytes
};
