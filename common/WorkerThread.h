#pragma once

#include "common/ports/BackgroundWork.h"

#include <atomic>
#include <thread>

// Background work in a thread of its own.
class WorkerThread : public BackgroundWork {
public:
    WorkerThread() = default;
    WorkerThread(const WorkerThread&) = delete;
    WorkerThread& operator=(const WorkerThread&) = delete;
    ~WorkerThread() override;

    void Start(std::function<void()> work) override;
    [[nodiscard]] bool IsBusy() const override { return busy_; }
    void Wait() override;

private:
    std::thread thread_;
    std::atomic<bool> busy_ = false;
};
