#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

// The processor time of this process in milliseconds: other programs on the machine do not count.
[[nodiscard]] double ProcessorMilliseconds();

// The time that passes, in milliseconds.
[[nodiscard]] inline double WallMilliseconds() {
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// The times of one step in several repetitions, in milliseconds.
class Times {
public:
    using Clock = double (*)();
    explicit Times(Clock clock = ProcessorMilliseconds) : clock_(clock) {}

    template <typename Step>
    void Measure(const Step& step) {
        const double start = clock_();
        step();
        times_.push_back(clock_() - start);
    }

    [[nodiscard]] double Median() const {
        std::vector<double> sorted = times_;
        std::ranges::sort(sorted);
        return sorted[sorted.size() / 2];
    }

    [[nodiscard]] double Longest() const { return std::ranges::max(times_); }
    [[nodiscard]] std::size_t Count() const noexcept { return times_.size(); }

private:
    Clock clock_;
    std::vector<double> times_;
};
