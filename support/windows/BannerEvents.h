#pragma once

// What happens to the banner picture of a window.
class BannerEvents {
public:
    virtual ~BannerEvents() = default;
    virtual void BannerTicked() = 0; // the timer
    virtual void BannerClicked() = 0;
};
