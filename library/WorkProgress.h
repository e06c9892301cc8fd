#pragma once

#include <cstdint>

// Follows a long work.
class WorkProgress {
public:
    virtual ~WorkProgress() = default;

    // Once, before anything changes: how many steps are expected.
    virtual void Starts(std::int32_t total) = 0;

    // After each step; there may be more or fewer of them than were expected.
    virtual void Reaches(std::int32_t done) = 0;
};

// Of a work that nobody follows.
class UnheardProgress : public WorkProgress {
public:
    void Starts(std::int32_t) override {}
    void Reaches(std::int32_t) override {}
};
