#pragma once

#include "library/FileCommands.h"
#include "library/LibraryHost.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class FakeLibraryHost : public LibraryHost {
public:
    ColorValueArray ActiveColorValues() override { return activeValues; }
    void ShowColorNodes(const std::optional<std::string>& groupKey,
                        const std::optional<std::string>& selectKey) override {
        shown.emplace_back(groupKey, selectKey);
    }
    std::string SelectedColorKey() override { return selectedColor; }

    ColorValueArray activeValues{255, 255, 255, 100, 100, 100, 30, 0, 0};
    std::string selectedColor;
    std::vector<std::pair<std::optional<std::string>, std::optional<std::string>>> shown;
};

class FakeFileCommandsHost : public FileCommandsHost {
public:
    void ShowStatus(const std::string& text) override { status.push_back(text); }
    void DeleteSelectedNode() override {
        ++deletions;
        if (onDelete)
            onDelete();
    }

    std::vector<std::string> status;
    int deletions = 0;
    std::function<void()> onDelete;
};
