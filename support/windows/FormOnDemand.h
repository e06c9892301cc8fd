#pragma once

#include "platform/Form.h"
#include "support/windows/BannerPictures.h"

#include <memory>

// A form with a banner as the program holds it: the window is made when it is first wanted, because
// windows that are not shown would take a good part of the program's start.
template <typename FormType, typename Events>
class FormOnDemand {
public:
    // The pictures must outlive it.
    FormOnDemand(HWND owner, ErrorSink& errors, const BannerPictures& banners)
        : owner_(owner), errors_(errors), banners_(banners) {}

    void Attach(Events& events) { events_ = &events; }

protected:
    ~FormOnDemand() = default;

    // Null while nobody has wanted it.
    [[nodiscard]] FormType* WindowIfMade() const noexcept { return window_.get(); }

    [[nodiscard]] FormType& Window() const {
        if (window_ == nullptr) {
            window_ = std::make_unique<FormType>(owner_, errors_, banners_);
            if (events_ != nullptr)
                window_->Attach(*events_);
        }
        return *window_;
    }

private:
    HWND owner_;
    ErrorSink& errors_;
    const BannerPictures& banners_;
    Events* events_ = nullptr;
    mutable std::unique_ptr<FormType> window_;
};
