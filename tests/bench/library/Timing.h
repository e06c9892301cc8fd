#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

// How long a step takes, in milliseconds.
template <typename Step>
double MillisecondsOf(const Step& step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// The times of one step in several repetitions.
class Times {
public:
    template <typename Step>
    void Measure(const Step& step) {
        times_.push_back(MillisecondsOf(step));
    }
    void Add(double milliseconds) { times_.push_back(milliseconds); }

    [[nodiscard]] double Median() const {
        std::vector<double> sorted = times_;
        std::ranges::sort(sorted);
        return sorted[sorted.size() / 2];
    }

private:
    std::vector<double> times_;
};
