#pragma once

#include "common/ports/AutomationObject.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

enum class CallKind { Call, Put };

// One call that the stand-in received.
struct CallRecord {
    CallKind kind = CallKind::Call; // Call: a method, or a property that is read
    std::string object;             // as it names itself: face "Face 3"
    std::string member;
    std::string arguments; // as CallText, separated by ", "; of a Put the value

    bool operator==(const CallRecord&) const = default;
};

// call face "Face 3" GetFeature()
// put face "Face 3" MaterialPropertyValues = [1, 0, 0, ...]
[[nodiscard]] std::string ToText(const CallRecord& record);

// The calls received, in their order; the oldest are forgotten beyond a limit.
class CallLog {
public:
    using Listener = std::function<void(const CallRecord&)>;

    void Add(CallRecord record);
    void Clear() noexcept { records_.clear(); }

    [[nodiscard]] const std::vector<CallRecord>& Records() const noexcept { return records_; }
    // One text for every record.
    [[nodiscard]] std::vector<std::string> Lines() const;
    // All calls received so far, also those that are forgotten or cleared.
    [[nodiscard]] std::size_t Total() const noexcept { return total_; }

    // Is told of every call before it is carried out.
    void SetListener(Listener listener) { listener_ = std::move(listener); }

    // How many records are kept at least; 0 (the default) keeps all.
    void SetLimit(std::size_t limit) noexcept { limit_ = limit; }

private:
    std::vector<CallRecord> records_;
    Listener listener_;
    std::size_t total_ = 0;
    std::size_t limit_ = 0;
};

// The record of a call that is about to be made.
[[nodiscard]] CallRecord MakeCallRecord(CallKind kind, const AutomationObject& object,
                                        const std::string& member,
                                        const AutomationArray& arguments);
