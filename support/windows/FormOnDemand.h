#pragma once

#include "common/ports/ErrorSink.h"
#include "support/windows/OnDemand.h"

#include <memory>
#include <tuple>
#include <windows.h>

// A form as the program holds it.  Resources: what it is made with beside its owner.
template <typename FormType, typename View, typename Events, typename... Resources>
class FormOnDemand final : public OnDemand<View> {
public:
    // The resources must outlive it.
    FormOnDemand(HWND owner, ErrorSink& errors, const Resources&... resources)
        : owner_(owner), errors_(errors), resources_(resources...) {}

    // To be called before the window is wanted.
    void Attach(Events& events) { events_ = &events; }

    [[nodiscard]] View& Get() override {
        if (window_ == nullptr) {
            window_ = std::apply(
                [this](const Resources&... resources) {
                    return std::make_unique<FormType>(owner_, errors_, resources...);
                },
                resources_);
            if (events_ != nullptr)
                window_->Attach(*events_);
        }
        return *window_;
    }

    [[nodiscard]] View* IfMade() noexcept override { return window_.get(); }

private:
    HWND owner_;
    ErrorSink& errors_;
    std::tuple<const Resources&...> resources_;
    Events* events_ = nullptr;
    std::unique_ptr<FormType> window_;
};
