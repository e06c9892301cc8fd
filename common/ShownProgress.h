#pragma once

#include <cstdint>
#include <string>

class ProgressView;

// The progress window, shown while this lives and taken down on every way out.
class ShownProgress {
public:
    // The bar runs from 0 to maximum.
    ShownProgress(ProgressView& view, const std::string& label, std::int32_t maximum);
    ~ShownProgress();
    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

    void Set(std::int32_t value);
    void Refresh();

private:
    ProgressView& view_;
};
