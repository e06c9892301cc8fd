#pragma once

#include "common/BusyRetry.h"
#include "standin/model/Fault.h"

#include <functional>
#include <optional>

// Sees what a member answers and may change it into what the model never answers.
using AnswerHook = std::function<void(const std::string& member, AutomationValue& answer)>;

// Objects of the stand-in's model as the platform's automation objects call those of another
// program: what is rejected as busy is repeated.
class RetryingObject : public AutomationObject {
public:
    RetryingObject(AutomationObjectPtr object, BusyRetry& retry, const AnswerHook& onAnswer)
        : object_(std::move(object)), retry_(retry), onAnswer_(onAnswer) {}

    // Null for null.
    [[nodiscard]] static AutomationObjectPtr Around(const AutomationObjectPtr& object,
                                                    BusyRetry& retry, const AnswerHook& onAnswer) {
        return object ? std::make_shared<RetryingObject>(object, retry, onAnswer) : nullptr;
    }

    AutomationValue Invoke(const std::string& member, const AutomationArray& arguments) override {
        AutomationValue answer = Call([&] { return object_->Invoke(member, arguments); });
        if (onAnswer_)
            onAnswer_(member, answer);
        return Wrapped(answer);
    }
    void Put(const std::string& member, const AutomationValue& value) override {
        Call([&] {
            object_->Put(member, value);
            return AutomationValue();
        });
    }

private:
    AutomationValue Call(const std::function<AutomationValue()>& call) {
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
            return Around(*object, retry_, onAnswer_);
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
    const AnswerHook& onAnswer_;
};

// Gives the running object of another service, with the calls repeated as above.
class RetryingService : public AutomationService {
public:
    RetryingService(AutomationService& service, BusyRetry& retry)
        : service_(service), retry_(retry) {}

    [[nodiscard]] AutomationObjectPtr GetRunningObject(const std::string& className) override {
        return RetryingObject::Around(service_.GetRunningObject(className), retry_, onAnswer);
    }

    AnswerHook onAnswer;

private:
    AutomationService& service_;
    BusyRetry& retry_;
};
