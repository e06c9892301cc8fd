#include "common/WorkerThread.h"

#include <exception>
#include <system_error>

WorkerThread::~WorkerThread() {
    if (thread_.joinable())
        thread_.join();
}

void WorkerThread::Start(std::function<void()> work) {
    Wait();
    busy_ = true;
    try {
        // Some run-time libraries keep the handler for each thread.
        thread_ = std::thread([this, work, onTerminate = std::get_terminate()]() noexcept {
            std::set_terminate(onTerminate);
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
