// Rules: Recovery
#include "common/WorkerThread.h"

#include <gtest/gtest.h>

#include <future>

namespace {

TEST(WorkerThreadTest, IsBusyUntilTheWorkIsDone) {
    WorkerThread worker;
    EXPECT_FALSE(worker.IsBusy());
    std::promise<void> go;
    worker.Start([&, ready = go.get_future().share()] { ready.wait(); });
    EXPECT_TRUE(worker.IsBusy());
    go.set_value();
    worker.Wait();
    EXPECT_FALSE(worker.IsBusy());
}

TEST(WorkerThreadTest, PiecesAreDoneOneAfterTheOther) {
    std::string done;
    {
        WorkerThread worker;
        worker.Start([&] { done += "a"; });
        worker.Start([&] { done += "b"; });
    }
    EXPECT_EQ(done, "ab");
}

} // namespace
