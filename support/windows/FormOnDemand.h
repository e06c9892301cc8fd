#pragma once

#include "common/ports/ErrorSink.h"
#include "support/windows/BannerPictures.h"
#include "support/windows/OnDemand.h"

#include <memory>
#include <windows.h>

// A form with a banner as the program holds it.
template <typename FormType, typename View, typename Events>
class FormOnDemand final : public OnDemand<View> {
public:
    // The pictures must outlive it.
    FormOnDemand(HWND owner, ErrorSink& errors, const BannerPictures& banners)
        : owner_(owner), errors_(errors), banners_(banners) {}

    // To be called before the window is wanted.
    void Attach(Events& events) { events_ = &events; }

    [[nodiscard]] View& Get() override {
        if (window_ == nullptr) {
            window_ = std::make_unique<FormType>(owner_, errors_, banners_);
            if (events_ != nullptr)
                window_->Attach(*events_);
        }
        return *window_;
    }

    [[nodiscard]] View* IfMade() noexcept override { return window_.get(); }

private:
    HWND owner_;
    ErrorSink& errors_;
    const BannerPictures& banners_;
    Events* events_ = nullptr;
    std::unique_ptr<FormType> window_;
};
