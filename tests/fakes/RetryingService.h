#pragma once

#include "common/BusyRetry.h"
#include "standin/model/Fault.h"

#include <functional>
#include <optional>

// What a test does around the calls.
struct CallHooks {
    // Before a call is made for the first time.
    std::function<void(const std::string& member)> onCall;
    // Sees what a member answers and may change it into what the model never answers.
    std::function<void(const std::string& member, AutomationValue& answer)> onAnswer;
};

// Objects of the stand-in's model as the platform's automation objects call those of another
// program: what is rejected as busy is repeated.
class RetryingObject : public AutomationObject {
public:
    RetryingObject(AutomationObjectPtr object, BusyRetry& retry, const CallHooks& hooks)
        : object_(std::move(object)), retry_(retry), hooks_(hooks) {}

    // Null for null.
    [[nodiscard]] static AutomationObjectPtr Around(const AutomationObjectPtr& object,
                                                    BusyRetry& retry, const CallHooks& hooks) {
        return object ? std::make_shared<RetryingObject>(object, retry, hooks) : nullptr;
    }

    AutomationValue Invoke(const std::string& member, const AutomationArray& arguments) override {
        AutomationValue answer = Call(member, [&] { return object_->Invoke(member, arguments); });
        if (hooks_.onAnswer)
            hooks_.onAnswer(member, answer);
        return Wrapped(answer);
    }
    void Put(const std::string& member, const AutomationValue& value) override {
        Call(member, [&] {
            object_->Put(member, value);
            return AutomationValue();
        });
    }

private:
    AutomationValue Call(const std::string& member, const std::function<AutomationValue()>& call) {
        if (hooks_.onCall)
            hooks_.onCall(member);
        AutomationValue answer;
        std::optional<CallRejected> rejection;
        retry_.RepeatWhileBusy([&] {
            rejection.reset();
            try {
                answer = call();
            } catch (const CallRejected& error) {
                rejection = error;
            }
            return rejection.has_value();
        });
        if (rejection)
            throw CallRejected(*rejection);
        return answer;
    }

    [[nodiscard]] AutomationValue Wrapped(const AutomationValue& value) const {
        if (const auto* object = std::get_if<AutomationObjectPtr>(&value.data))
            return Around(*object, retry_, hooks_);
        const auto* elements = std::get_if<AutomationArray>(&value.data);
        if (!elements)
            return value;
        AutomationArray wrapped;
        for (const AutomationValue& element : *elements)
            wrapped.push_back(Wrapped(element));
        return wrapped;
    }

    AutomationObjectPtr object_;
    BusyRetry& retry_;
    const CallHooks& hooks_;
};

// Gives the running object of another service, with the calls repeated as above.
class RetryingService : public AutomationService, public CallHooks {
public:
    RetryingService(AutomationService& service, BusyRetry& retry)
        : service_(service), retry_(retry) {}

    [[nodiscard]] AutomationObjectPtr GetRunningObject(const std::string& className) override {
        return RetryingObject::Around(service_.GetRunningObject(className), retry_, *this);
    }

private:
    AutomationService& service_;
    BusyRetry& retry_;
};
