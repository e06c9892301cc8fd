#pragma once

#include "tests/e2e/Job.h"
#include "tests/e2e/StandInReader.h"

#include <string>
#include <vector>

// Opens About window, text viewer, progress window, the list of kept libraries, the window that
// finds colors and the one that tells which is seen in both languages and works and closes them by
// keyboard alone, so that their pictures can be looked at.
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

    static void LeaveLibraries();
    static void LeaveLibrary(const std::string& id, const std::string& name,
                             const std::string& file);
    void ClickRecover();
    void SeeRecover(const std::string& deleteCaption);
    void CloseRecover(WORD key, LRESULT newNodes);
    [[nodiscard]] LRESULT CountNodes() const; // of the tree
    void OpenSample();
    void Find();
    void GoToHit();
    void GoToNextHit();
    void FindLikeActiveColor();
    void GrowFind();
    void FindInGerman();
    void CloseFind();
    void SelectFace();
    void SeeLevels(const std::string& caption, const std::string& sentence);
    void GrowLevels();
    void CloseLevels();
    void CheckHits(const std::vector<RemoteList::Row>& rows);
    void Choose(int command);
    [[nodiscard]] RemoteWindow Wait(const wchar_t* className) const; // of the program
    void CheckGone(const RemoteWindow& window);

    RemoteWindow about_;
    RemoteWindow viewer_;
    RemoteWindow progress_;
    RemoteWindow recover_;
    RemoteWindow find_;
    RemoteWindow levels_;
    StandInReader reader_;
    LRESULT nodesBefore_ = 0; // the list of kept libraries was opened
};
