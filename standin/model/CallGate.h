#pragma once

#include "standin/model/CallLog.h"
#include "standin/model/Fault.h"
#include "standin/model/StandInObject.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

// The one way into the model for clients: every object that leaves the stand-in is wrapped here, so
// that its calls are logged and can be made to fail.  The same object of the model has the same
// wrapper as long as that one lives.
class CallGate : public std::enable_shared_from_this<CallGate> {
public:
    using DieHandler = std::function<void()>;

    [[nodiscard]] static std::shared_ptr<CallGate> Create() {
        return std::shared_ptr<CallGate>(new CallGate);
    }

    // The object as clients get it; null for null.
    [[nodiscard]] StandInObjectPtr Wrap(const StandInObjectPtr& object);

    [[nodiscard]] CallLog& Log() noexcept { return log_; }

    // The calls received since the last ClearFaults (or since the start) count from 1.
    void AddFault(const Fault& fault) { faults_.push_back(fault); }
    // Removes all faults, brings an ended server back and counts the calls from 1 again.
    void ClearFaults() noexcept;

    // Whether it was told to die and was not brought back.
    [[nodiscard]] bool IsDead() const noexcept { return dead_; }

    // What "die" does, for example ending the process.  Without one every later call fails.
    void SetDieHandler(DieHandler handler) { dieHandler_ = std::move(handler); }

    // Whether the next call meets a fault of this kind (Busy or RetryLater), which is counted.  The
    // call is not received then; a server asks before it lets a call in.
    [[nodiscard]] bool TakeRejection(FaultKind kind) noexcept;

    // Wrapped objects that some client still holds.
    [[nodiscard]] std::size_t LiveObjects() const noexcept { return wrappers_.size(); }
    // Calls that were turned away as busy; they are not in the log.
    [[nodiscard]] std::size_t RejectedCalls() const noexcept { return rejected_; }

private:
    class Wrapper;

    CallGate() = default;

    AutomationValue Receive(const CallRecord& record,
                            const std::function<AutomationValue()>& carryOut);
    [[nodiscard]] Fault* FaultOfNextCall() noexcept;
    AutomationValue AnswerWrongly(const Fault& fault, const std::string& member);
    [[nodiscard]] AutomationValue WrapValue(const AutomationValue& value);
    void Forget(const StandInObject* object) noexcept { wrappers_.erase(object); }

    CallLog log_;
    std::vector<Fault> faults_;
    DieHandler dieHandler_;
    std::unordered_map<const StandInObject*, std::weak_ptr<Wrapper>> wrappers_;
    std::size_t received_ = 0;
    std::size_t rejected_ = 0;
    bool dead_ = false;
};
