#include "tests/e2e/RemoteStandIn.h"

#include "standin/model/StandInContract.h"
#include "tests/e2e/RealInput.h"
#include "tests/platform/PollUntil.h"

#include <stdexcept>

RemoteList RemoteStandIn::Objects() const {
    return RemoteList(window_.Child(StandInContract::ObjectList));
}

POINT RemoteStandIn::PointOf(const std::string& name) const {
    static const UINT ask = RegisterWindowMessageW(StandInContract::AskMessage);
    const int row = Objects().FindRow(name);
    const LRESULT point = SendMessageW(
        window_.Handle(), ask, static_cast<WPARAM>(StandInContract::Question::PicturePoint), row);
    if (point == -1)
        throw std::runtime_error("The picture does not show " + name);
    return window_.Child(StandInContract::Picture)
        .ToScreen({static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))});
}

// A window that is just coming to the front can swallow a click.
void RemoteStandIn::ClickObject(const std::string& name) const {
    const std::vector<std::string> expected = {name};
    const auto isSelected = [&] { return SelectedObjects() == expected; };
    static_cast<void>(ActUntil([&] { RealInput::Click(PointOf(name)); }, isSelected));
}

void RemoteStandIn::CtrlClickObject(const std::string& name) const {
    RealInput::ClickWithCtrl(PointOf(name));
}

std::vector<std::string> RemoteStandIn::SelectedObjects() const {
    return Objects().SelectedNames();
}

void RemoteStandIn::ChooseNextDocument() const {
    const RemoteWindow box = window_.Child(StandInContract::DocumentChoice);
    box.Click();
    if (!PollUntil([&] { return box.FocusedChild() == box.Handle(); }))
        throw std::runtime_error("The document box takes no focus");
    RealInput::PressKey(VK_DOWN);
    RealInput::PressKey(VK_RETURN);
}

std::string RemoteStandIn::ChosenDocument() const {
    return window_.Child(StandInContract::DocumentChoice).Text();
}
