#pragma once

#include "common/ports/Shell.h"

#include <string>

// Web and mail links through the platform's shell.
class modinternet {
public:
    explicit modinternet(Shell& shell) : shell_(shell) {}

    // The shell's result is not looked at.
    void OpenURL(const std::string& address) const;

    // Subject and body are passed without any escaping.  True only when the shell returns 0: the
    // test is inverted on purpose, and nobody uses the result.
    bool SendMail(const std::string& address, const std::string& subject,
                  const std::string& body) const;

private:
    Shell& shell_;
};
