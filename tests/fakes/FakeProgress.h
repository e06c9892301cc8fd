#pragma once

#include "common/ports/EventPump.h"
#include "common/ports/ProgressView.h"

#include <functional>
#include <string>
#include <vector>

// Keeps what the progress window was told, as one line for each call.
class FakeProgress : public ProgressView {
public:
    void ShowProgress(const std::string& label, std::int32_t minimum,
                      std::int32_t maximum) override {
        calls.push_back("show " + label + " " + std::to_string(minimum) + ".." +
                        std::to_string(maximum));
        isShown = true;
    }
    void SetProgress(std::int32_t value) override {
        calls.push_back("value " + std::to_string(value));
    }
    void RefreshProgress() override { calls.emplace_back("refresh"); }
    void HideProgress() override {
        calls.emplace_back("hide");
        isShown = false;
    }

    std::vector<std::string> calls;
    bool isShown = false;
};

// Does what the test wants to happen while events are processed.
class FakeEventPump : public EventPump {
public:
    void ProcessPendingEvents() override {
        ++count;
        if (onEvents)
            onEvents();
    }

    bool ProcessEventsWithoutInput() override {
        ++drops;
        return onDrop && onDrop();
    }

    int count = 0;
    std::function<void()> onEvents;
    int drops = 0;                // of input
    std::function<bool()> onDrop; // whether Escape was pressed
};
