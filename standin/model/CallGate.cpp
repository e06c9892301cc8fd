#include "standin/model/CallGate.h"

#include "common/ColorRecord.h"

#include <algorithm>

// An object of the model as a client sees it.
class CallGate::Wrapper final : public StandInObject {
public:
    Wrapper(std::weak_ptr<CallGate> gate, StandInObjectPtr object)
        : gate_(std::move(gate)), object_(std::move(object)) {}

    ~Wrapper() override {
        if (const auto gate = gate_.lock())
            gate->Forget(object_.get());
    }

    Wrapper(const Wrapper&) = delete;
    Wrapper& operator=(const Wrapper&) = delete;

    AutomationValue Invoke(const std::string& member, const AutomationArray& arguments) override {
        return RequireGate(member)->Receive(
            MakeCallRecord(CallKind::Call, *object_, member, arguments),
            [&] { return object_->Invoke(member, arguments); });
    }

    void Put(const std::string& member, const AutomationValue& value) override {
        RequireGate(member)->Receive(MakeCallRecord(CallKind::Put, *object_, member, {value}), [&] {
            object_->Put(member, value);
            return AutomationValue();
        });
    }

    [[nodiscard]] std::string Label() const override { return object_->Label(); }

    [[nodiscard]] std::optional<std::string> FindMember(const std::string& name) const override {
        return object_->FindMember(name);
    }

private:
    [[nodiscard]] std::shared_ptr<CallGate> RequireGate(const std::string& member) const {
        auto gate = gate_.lock();
        if (!gate)
            throw ServerGone(member);
        return gate;
    }

    std::weak_ptr<CallGate> gate_;
    StandInObjectPtr object_;
};

StandInObjectPtr CallGate::Wrap(const StandInObjectPtr& object) {
    if (!object)
        return nullptr;
    std::weak_ptr<Wrapper>& known = wrappers_[object.get()];
    if (auto wrapper = known.lock())
        return wrapper;
    auto wrapper = std::make_shared<Wrapper>(weak_from_this(), object);
    known = wrapper;
    return wrapper;
}

void CallGate::ClearFaults() noexcept {
    faults_.clear();
    received_ = 0;
    dead_ = false;
}

Fault* CallGate::FaultOfNextCall() noexcept {
    const auto found = std::find_if(faults_.begin(), faults_.end(), [&](const Fault& fault) {
        return fault.callNumber == received_ + 1 && (!IsRejection(fault.kind) || fault.times > 0);
    });
    return found == faults_.end() ? nullptr : &*found;
}

// A busy server does not see the call at all: it is neither counted nor logged.
bool CallGate::TakeRejection(FaultKind kind) noexcept {
    Fault* fault = FaultOfNextCall();
    if (!fault || fault->kind != kind)
        return false;
    if (fault->times != kAlways)
        --fault->times;
    ++rejected_;
    return true;
}

AutomationValue CallGate::Receive(const CallRecord& record,
                                  const std::function<AutomationValue()>& carryOut) {
    if (dead_)
        throw ServerGone(record.member);
    if (TakeRejection(FaultKind::Busy) || TakeRejection(FaultKind::RetryLater))
        throw CallRejected(record.member);
    const Fault* fault = FaultOfNextCall();
    ++received_;
    log_.Add(record);
    return fault ? AnswerWrongly(*fault, record.member) : WrapValue(carryOut());
}

AutomationValue CallGate::AnswerWrongly(const Fault& fault, const std::string& member) {
    switch (fault.kind) {
    case FaultKind::NullObject:
        return AutomationObjectPtr();
    case FaultKind::WrongSizeArray:
        return std::vector<double>{0.25, 0.75};
    case FaultKind::WrongTypeArray:
        return AutomationArray(kColorValueCount, AutomationValue("colour"));
    case FaultKind::Text:
        return "not a number";
    case FaultKind::Error:
        throw RuntimeError(ErrorNumber::Automation, fault.description, member);
    case FaultKind::Die:
        dead_ = true;
        if (dieHandler_)
            dieHandler_();
        throw ServerGone(member);
    case FaultKind::EmptyValue:
    case FaultKind::Busy:
    case FaultKind::RetryLater:
        break;
    }
    return {};
}

AutomationValue CallGate::WrapValue(const AutomationValue& value) {
    if (const auto* object = std::get_if<AutomationObjectPtr>(&value.data))
        return AutomationObjectPtr(Wrap(std::dynamic_pointer_cast<StandInObject>(*object)));
    if (const auto* elements = std::get_if<AutomationArray>(&value.data)) {
        AutomationArray wrapped;
        for (const AutomationValue& element : *elements)
            wrapped.push_back(WrapValue(element));
        return wrapped;
    }
    return value;
}
