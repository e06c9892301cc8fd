#pragma once

#include "tests/e2e/Job.h"

#include <string>

// Opens About window, text viewer and progress window in both languages and closes them by keyboard
// alone, so that their pictures can be looked at.
class WindowsJob : public Job {
public:
    using Job::Job;

private:
    void Work() override;

    void Start();
    void SpeakGerman();
    void OpenAbout(const std::string& systemInformation);
    void CloseAbout();
    void OpenViewer(const std::string& firstLine);
    void CloseViewer();
    void ClearWholePart(const std::string& stop);
    void Stop();

    void Choose(int command);
    [[nodiscard]] RemoteWindow Wait(const wchar_t* className) const; // of the program
    void CheckGone(const RemoteWindow& window);

    RemoteWindow about_;
    RemoteWindow viewer_;
    RemoteWindow progress_;
};
