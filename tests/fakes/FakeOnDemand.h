#pragma once

#include "support/windows/OnDemand.h"

// A window that the test holds itself.
template <typename View>
class FakeOnDemand : public OnDemand<View> {
public:
    explicit FakeOnDemand(View& view) : window(view) {}

    View& Get() override {
        isMade = true;
        return window;
    }
    View* IfMade() noexcept override { return isMade ? &window : nullptr; }

    View& window;
    bool isMade = true;
};
