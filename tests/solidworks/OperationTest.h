#pragma once

#include "solidworks/modSldTools.h"

#include "common/Text.h"
#include "standin/model/StandInService.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"
#include "tests/fakes/FakeWaitingClock.h"
#include "tests/fakes/MemberFault.h"
#include "tests/fakes/RetryingService.h"
#include "tests/fakes/Transcripts.h"
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

// The operations on the stand-in's model in process.  Language texts are their numbers in angle
// brackets.
class OperationTest : public testing::Test {
protected:
    OperationTest() { Start("default"); }

    void Start(const std::string& words) {
        Scenario scenario;
        ApplyScenario(words, scenario);
        Start(scenario);
    }
    void Start(const Scenario& scenario) {
        tools.reset();
        model = std::make_unique<StandInModel>(scenario);
        service = std::make_unique<StandInService>(*model);
        automation = std::make_unique<RetryingService>(*service, retry);
        tools = std::make_unique<modSldTools>(
            modSldTools::Ports{*automation, retry, prompts, texts, progress, events, stopFlag});
    }

    [[nodiscard]] std::shared_ptr<Face> FaceAt(std::size_t index) const {
        return model->Part().FaceAt(index);
    }
    [[nodiscard]] std::shared_ptr<Feature> FeatureAt(std::size_t index) const {
        return model->Part().FeatureAt(index);
    }
    [[nodiscard]] std::shared_ptr<Edge> AnEdge() const { return model->Part().Edges().front(); }
    [[nodiscard]] std::shared_ptr<Component> ComponentNamed(const std::string& name) const {
        for (const auto& child : model->Assembly().Root()->Children())
            if (child->Name() == name)
                return child;
        throw std::out_of_range(name);
    }

    // The next call of the member goes wrong.
    void FailNext(const std::string& member, const std::string& fault) {
        FailAt(member, fault, *automation, model->Gate());
    }

    // The calls that the operation makes, one line for each, and what it returns.
    std::string CallsOf(const std::function<std::string()>& operation) {
        model->Log().Clear();
        const std::string result = operation();
        return LoggedCalls() + (result.empty() ? "=" : "= " + OnOneLine(result)) + "\n";
    }
    std::string CallsOf(std::string (modSldTools::*operation)()) {
        return CallsOf([&] { return ((*tools).*operation)(); });
    }

    // The calls made since the log was cleared, one line for each; also of an operation that
    // failed.
    [[nodiscard]] std::string LoggedCalls() const {
        std::string text;
        for (const std::string& line : model->Log().Lines())
            text += line + "\n";
        return text;
    }

    // The error that the operation raises, as "description (member)".
    static std::string ErrorOf(const std::function<void()>& operation) {
        try {
            operation();
        } catch (const RuntimeError& error) {
            return error.Description() + " (" + error.Member() + ")";
        }
        return "none";
    }

    FakeWaitingClock clock;
    BusyRetry retry{clock};
    FakePrompts prompts;
    FakeTexts texts;
    FakeProgress progress;
    FakeEventPump events;
    bool stopFlag = false;
    std::unique_ptr<StandInModel> model;
    std::unique_ptr<StandInService> service;
    std::unique_ptr<RetryingService> automation;
    std::unique_ptr<modSldTools> tools;
    ColorRecord color{"c", "", "", false, {255, 0, 255, 100, 50, 25, 0, 0, 100}, "c"};

private:
    static std::string OnOneLine(std::string text) {
        for (std::size_t at = 0; (at = text.find(kLineBreak, at)) != std::string::npos;)
            text.replace(at, 2, "\\r\\n");
        return text;
    }
};
