#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "common/ports/Prompts.h"
#include "common/ports/RegistryAccess.h"
#include "common/ports/Shell.h"

#include <optional>
#include <string>

// Finds and starts the platform's system-information program.
class SystemInformation {
public:
    struct Ports {
        RegistryAccess& registry;
        const AnsiCodePage& codePage;
        Files& files;
        Shell& shell;
        Prompts& prompts;
    };

    explicit SystemInformation(const Ports& ports) : ports_(ports) {}

    // Shows a fixed German message when there is no such program.
    void Show();

private:
    [[nodiscard]] std::string FindProgram() const;
    // A string up to its first NUL; a 32-bit number as "&h" and hexadecimal digits; nothing for any
    // failure.
    [[nodiscard]] std::optional<std::string> ReadValue(const std::string& keyPath,
                                                       const std::string& valueName) const;

    Ports ports_;
};
