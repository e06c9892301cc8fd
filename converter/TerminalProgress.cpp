#include "converter/TerminalProgress.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::int64_t kWhole = 100; // per cent

} // namespace

TerminalProgress::TerminalProgress(Console& console, std::string label)
    : console_(console), label_(std::move(label)), isWatched_(console.IsWatched()) {}

TerminalProgress::~TerminalProgress() {
    if (!shown_.empty())
        console_.Tell("\r" + std::string(shown_.size(), ' ') + "\r");
}

void TerminalProgress::Starts(std::int32_t total) {
    total_ = total;
}

void TerminalProgress::Reaches(std::int32_t done) {
    // There may be more steps than were expected.
    const std::int64_t share = total_ > 0 ? std::min(kWhole, done * kWhole / total_) : kWhole;
    if (!isWatched_ || share < next_)
        return;
    next_ = share + 1;
    shown_ = label_ + " " + std::to_string(share) + " %";
    console_.Tell("\r" + shown_);
}
