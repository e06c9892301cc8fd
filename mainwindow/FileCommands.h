#pragma once

#include "common/Settings.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/EditingCommands.h"
#include "mainwindow/NewNodes.h"
#include "mainwindow/ShownLibraryFiles.h"

#include <string>
#include <vector>

// The file menu but for Quit.  One file dialog serves Open and Save As and keeps the name of the
// last file that it has opened or saved; a failure and a dropped file leave that name.
class FileCommands {
public:
    struct Parts {
        ColorLibrary& library;
        ShownLibraryFiles& files;
        Files& disk;
        NewNodes& newNodes;
        EditingCommands& editing;
        BarsPane& bars;
        Settings& settings;
        Prompts& prompts;
        InfoTexts& texts;
        const AnsiCodePage& codePage; // of the settings
        std::string programFolder;    // without a backslash at its end
    };

    explicit FileCommands(Parts parts) : parts_(std::move(parts)) {}

    void mnuFileNew_Click() { parts_.newNodes.NewMainNode(); }
    void mnuFileOpen_Click();
    // Files dropped onto the window: each library file opens as with Open, one that was dropped
    // alone also with the question about every start; files with another extension are left alone.
    void OpenDropped(const std::vector<std::string>& paths);
    // A library to try the program with; never one for every start.
    void OpenSample(const std::string& path) { OpenLibrary(path); }
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileClose_Click();
    void mnuFileCancelAutoload_Click();

    // Loads the default library at start-up; the file dialog starts from it then.
    void Autoload();

    [[nodiscard]] const std::string& DialogFileName() const noexcept { return dialogFileName_; }

private:
    [[nodiscard]] FileDialogRequest Request(unsigned flags) const;
    [[nodiscard]] std::string Text(std::int32_t number) const;
    [[nodiscard]] bool AreSame(const std::string& path, const std::string& other) const;
    bool OpenLibrary(const std::string& path);
    void TellOpenFailed(const std::string& path);
    void AskAutoload(const std::string& path);
    struct SaveTarget {
        std::string path;     // that is written
        std::string nextPath; // the library's file from then on
        UnknownContent unknown;
    };
    bool SaveTo(const SaveTarget& target, const std::string& mainKey);
    void ShowSaved(const std::string& outcome, const std::string& keptPath);

    Parts parts_;
    std::string dialogFileName_;
};
