#pragma once

#include <string>

// Saves what is on the screen as PNG pictures (GDI and GDI+).
class Screenshot {
public:
    Screenshot();
    Screenshot(const Screenshot&) = delete;
    Screenshot& operator=(const Screenshot&) = delete;
    ~Screenshot();

    // path: UTF-8.  False when the picture could not be written.
    [[nodiscard]] bool Save(const std::string& path) const;

private:
    unsigned long long token_ = 0;
};
