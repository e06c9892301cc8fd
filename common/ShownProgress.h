#pragma once

#include "common/ports/ProgressView.h"

#include <cstdint>
#include <string>

// The progress window, shown while this lives and taken down on every way out.
class ShownProgress {
public:
    // The bar runs from 0 to maximum.
    ShownProgress(ProgressView& view, const std::string& label, std::int32_t maximum)
        : view_(view) {
        view_.ShowProgress(label, 0, maximum);
    }
    ~ShownProgress() { view_.HideProgress(); }
    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

    void Set(std::int32_t value) { view_.SetProgress(value); }
    void Refresh() { view_.RefreshProgress(); }

private:
    ProgressView& view_;
};
