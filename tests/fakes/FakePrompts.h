#pragma once

#include "common/ports/Prompts.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// Answers what the test prepared, in order, and keeps what was asked.
class FakePrompts : public Prompts {
public:
    struct Message {
        std::string prompt;
        int style = 0;
        std::string title;

        bool operator==(const Message&) const = default;
    };
    struct Question {
        std::string prompt;
        std::string title;
        std::string preset;

        bool operator==(const Question&) const = default;
    };

    Answer ShowMessage(const std::string& prompt, int style, const std::string& title) override {
        messages.push_back({prompt, style, title});
        if (onMessage)
            onMessage();
        return Next(answers, Answer::Ok);
    }
    std::string AskText(const std::string& prompt, const std::string& title,
                        const std::string& preset) override {
        questions.push_back({prompt, title, preset});
        return Next(typed, std::string());
    }
    std::optional<std::string> AskOpenFile(const FileDialogRequest& request) override {
        fileRequests.push_back(request);
        return Next(chosenFiles, std::optional<std::string>());
    }
    std::vector<std::string> AskOpenFiles(const FileDialogRequest& request) override {
        fileRequests.push_back(request);
        return Next(chosenFileSets, std::vector<std::string>());
    }
    std::optional<std::string> AskSaveFile(const FileDialogRequest& request) override {
        fileRequests.push_back(request);
        return Next(chosenFiles, std::optional<std::string>());
    }
    std::optional<ColorNumber> AskColor(const std::string& title, ColorNumber initial) override {
        colorRequests.emplace_back(title, initial);
        return Next(chosenColors, std::optional<ColorNumber>());
    }

    // Prepared answers; when they run out: OK, and cancelled for all others.
    std::deque<Answer> answers;
    std::deque<std::string> typed;
    std::deque<std::optional<std::string>> chosenFiles;
    std::deque<std::vector<std::string>> chosenFileSets;
    std::deque<std::optional<ColorNumber>> chosenColors;

    std::function<void()> onMessage; // while a message is shown

    std::vector<Message> messages;
    std::vector<Question> questions;
    std::vector<FileDialogRequest> fileRequests;
    std::vector<std::pair<std::string, ColorNumber>> colorRequests;

private:
    template <typename Value>
    static Value Next(std::deque<Value>& prepared, Value otherwise) {
        if (prepared.empty())
            return otherwise;
        Value next = prepared.front();
        prepared.pop_front();
        return next;
    }
};
