#include "common/WorkerThread.h"

#include <system_error>

WorkerThread::~WorkerThread() {
    if (thread_.joinable())
        thread_.join();
}

void WorkerThread::Start(std::function<void()> work) {
    Wait();
    busy_ = true;
    try {
        thread_ = std::thread([this, work]() noexcept {
            work();
            busy_ = false;
        });
    } catch (const std::system_error&) { // there can be no other thread
        work();
        busy_ = false;
    }
}

void WorkerThread::Wait() {
    if (thread_.joinable())
        thread_.join();
}
