#pragma once

#include "tests/fakes/FakeProgram.h"

#include <string>
#include <vector>

// What a program did to the world around it, in the order in which it did it: one line for each
// effect.
using Effects = std::vector<std::string>;

class RecordingRegistry : public FakeRegistry {
public:
    explicit RecordingRegistry(Effects& effects) : effects_(effects) {}

    std::optional<RegistryValue> Query(std::uint32_t root, const std::string& keyPath,
                                       const std::string& valueName,
                                       std::uint32_t rights) override {
        effects_.push_back("read " + valueName);
        return FakeRegistry::Query(root, keyPath, valueName, rights);
    }
    bool Set(std::uint32_t root, const std::string& keyPath, const std::string& valueName,
             const RegistryValue& value, std::uint32_t rights) override {
        effects_.push_back("write " + valueName);
        return FakeRegistry::Set(root, keyPath, valueName, value, rights);
    }

private:
    Effects& effects_;
};

class RecordingFiles : public FakeFiles {
public:
    explicit RecordingFiles(Effects& effects) : effects_(effects) {}

    std::optional<std::string> ReadWhole(const std::string& path) override {
        effects_.push_back("load " + path);
        return FakeFiles::ReadWhole(path);
    }

private:
    Effects& effects_;
};

class RecordingWindow : public FakeFormWindow {
public:
    explicit RecordingWindow(Effects& effects) : effects_(effects) {}

    void Move(const TwipsRect& newBounds) override {
        effects_.emplace_back("move window");
        FakeFormWindow::Move(newBounds);
    }
    void SetTopmost(bool onTop) override {
        effects_.emplace_back(onTop ? "window on top" : "window not on top");
        FakeFormWindow::SetTopmost(onTop);
    }

private:
    Effects& effects_;
};

// Asked for its controls when its texts are applied.
class RecordingForm : public FakeForm {
public:
    explicit RecordingForm(Effects& effects) : FakeForm("frmMain"), effects_(effects) {}

    std::vector<FormControl*> Controls() override {
        effects_.emplace_back("texts of the window");
        return FakeForm::Controls();
    }

private:
    Effects& effects_;
};

class RecordingView : public FakeMainView {
public:
    explicit RecordingView(Effects& effects) : effects_(effects) {}

    void NodeAdded(const LibraryNode& node, const std::string& previousKey) override {
        effects_.push_back("node " + node.text);
        FakeMainView::NodeAdded(node, previousKey);
    }
    void AddColumns(const std::vector<ListColumn>& added) override {
        effects_.emplace_back("columns");
        FakeMainView::AddColumns(added);
    }
    void SetListViewMode(ListViewMode mode) override {
        effects_.push_back("list view " + std::to_string(static_cast<int>(mode)));
        FakeMainView::SetListViewMode(mode);
    }
    void SetColorName(const std::string& name) override {
        effects_.push_back("color " + name);
        FakeMainView::SetColorName(name);
    }
    void SetMenuChecked(int command, bool checked) override {
        effects_.push_back("mark " + std::to_string(command) + (checked ? " on" : " off"));
        FakeMainView::SetMenuChecked(command, checked);
    }
    void SetBanner(int index) override {
        effects_.push_back("banner " + std::to_string(index));
        FakeMainView::SetBanner(index);
    }
    void ShowWindow() override {
        effects_.emplace_back("show window");
        FakeMainView::ShowWindow();
    }
    void StopBannerTimer() override {
        effects_.emplace_back("stop banner");
        FakeMainView::StopBannerTimer();
    }
    void EndProgram() override {
        effects_.emplace_back("end");
        FakeMainView::EndProgram();
    }

private:
    Effects& effects_;
};

// The program on fakes that write down, in one list, what it does from its start to its end.  The
// parts without an effect of their own come from a FakeProgram that is never started.
class RecordedProgram {
public:
    RecordedProgram() {
        files.contents = rest.files.contents;
        effects.clear(); // the marks of the window as designed
    }

    FakeProgram rest;
    Effects effects;
    RecordingRegistry registry{effects};
    RecordingFiles files{effects};
    RecordingWindow window{effects};
    RecordingForm form{effects};
    RecordingView view{effects};
    clsMultiLanguage language{rest.profile, files, rest.codePage};
    ErrorReporter errors{rest.prompts, language};
    Application application{
        {files, rest.codePage, registry, rest.prompts, rest.clipboard, rest.collation, rest.shell,
         rest.events, rest.service, rest.retry, language, errors, rest.calendar, rest.files,
         rest.copies, rest.background},
        {view.View(), window, form, rest.aboutWindow, rest.textViewerWindow, rest.progress,
         rest.progressWindow, rest.recoverWindow, rest.findWindow, rest.levelsWindow},
        {"C:\\prog", "1.2.7", {"https://www.example.org/1"}, "C:\\prog"}};
};
