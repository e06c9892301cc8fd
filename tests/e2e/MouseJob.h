#pragma once

#include "mainwindow/ToolbarTable.h"
#include "tests/e2e/Job.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

// What the mouse does in the main window: colors are dragged onto groups, the splitter, the menus
// of the toolbar's buttons, every bar, the list's views and the window's sizes; at the end in
// German.
class MouseJob : public Job {
public:
    // As of Job.
    MouseJob(std::string programFolder, std::string pictureFolder);

private:
    void Work() override;
    void WorkDrags();
    void WorkBars();
    void WorkSizes();
    void WorkInGerman();

    using Names = std::vector<std::string>;

    // Place and size of the window, pixels.
    static constexpr int kMargin = 20;
    static constexpr int kWidth = 1000;
    static constexpr int kHeight = 640;

    void StartAndOpen();
    void PlaceMain();
    void Open(const std::string& path);
    void ClickGroup(const std::string& group);
    void CheckGroup(const std::string& group);

    void PickUp(const std::string& group, const std::string& color);
    void CarryTo(POINT to);
    void CarryToGroup(const std::string& group);
    void Drop();
    void CheckDropped();
    void CarryOverAGroup();
    void DropOnTheGroup();
    void CopyWithCtrl();
    void DropOnTheLibrary();
    void CheckNote(const std::string& title, const std::string& text);
    void CloseTheNote();
    void DropBelowTheNodes();
    void GiveUpWithEscape();
    void RestOnAClosedLibrary();
    void CarryToTheTreesEdge();

    void DragSplitterBy(int pixels);
    void DragSplitterBack();
    void SwitchBar(const std::string& entry, ToolbarGroup group);
    void SwitchWhole(const std::string& entry, int control);
    void ShowView(int command);

    // The step's picture shows the menu that is opened; it is closed afterwards.
    void MenuStep(const std::string& name, const std::function<void()>& open);
    void WaitForMenu();
    void OpenButtonMenu(int button);
    void ChooseFromButtonMenu(int button, char accessKey);
    void ChooseNewEntries();
    void ChooseDeleteEntries();
    void OpenColorMenuByMouse();

    void MakeTiny();
    void Maximise();
    void Restore();
    void ShowLargeEditor(bool shown);
    [[nodiscard]] std::vector<RECT> PanePlaces() const;

    void ChooseGerman();
    void AskToDeleteTheGroup();

    [[nodiscard]] static float Twips(int pixels);

    std::string libraryPath_;
    std::map<std::string, Names> groups_; // what the program must hold
    POINT pointer_{};
    std::vector<RECT> normalPlaces_; // of the panes, before the window was maximised
};
