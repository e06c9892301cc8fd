#pragma once

#include "common/ports/BackgroundWork.h"

#include <utility>

// Does its work when somebody waits for it.
class FakeBackgroundWork : public BackgroundWork {
public:
    void Start(std::function<void()> work) override {
        Wait();
        work_ = std::move(work);
    }
    bool IsBusy() const override { return work_ != nullptr; }
    void Wait() override {
        if (const auto work = std::exchange(work_, nullptr))
            work();
    }

private:
    std::function<void()> work_;
};
