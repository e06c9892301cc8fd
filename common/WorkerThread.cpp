#include "common/WorkerThread.h"

#include <utility>

WorkerThread::~WorkerThread() {
    if (thread_.joinable())
        thread_.join();
}

void WorkerThread::Start(std::function<void()> work) {
    Wait();
    busy_ = true;
    thread_ = std::thread([this, work = std::move(work)]() noexcept {
        work();
        busy_ = false;
    });
}

void WorkerThread::Wait() {
    if (thread_.joinable())
        thread_.join();
}
