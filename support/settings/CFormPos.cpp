#include "support/settings/CFormPos.h"

#include "common/ProgramNames.h"
#include "support/settings/FormPosition.h"

#include <algorithm>

namespace {

// Only the left and top edges are looked at; a form wider than the screen keeps its width.
TwipsRect OntoScreen(TwipsRect bounds, const TwipsSize& screen) {
    if (screen.width <= bounds.left)
        bounds.left = screen.width - bounds.width;
    if (screen.height <= bounds.top)
        bounds.top = screen.height - bounds.height;
    bounds.top = std::max(bounds.top, 0.0F);
    bounds.left = std::max(bounds.left, 0.0F);
    return bounds;
}

} // namespace

CFormPos::CFormPos(const modRegistry& registry)
    : registry_(registry), registryPath_(std::string("SOFTWARE\\") + ProgramNames::Title) {}

std::string CFormPos::KeyPath() const {
    return subKey_.empty() ? registryPath_ : registryPath_ + "\\" + subKey_;
}

void CFormPos::CenterForm() const {
    const TwipsSize screen = form_->ScreenSize();
    TwipsRect bounds = form_->Bounds();
    bounds.left = (screen.width - bounds.width) / 2;
    bounds.top = (screen.height - bounds.height) / 2;
    form_->Move(bounds);
}

bool CFormPos::RestoreForm(bool checkAgainstScreen) const {
    const std::string text = registry_.ReadString(rootKey_, KeyPath(), form_->Name());
    if (text.empty())
        return false;
    const FormPosition position = ParseFormPosition(text);
    if (position.state == static_cast<int>(WindowState::Minimised) ||
        position.state == static_cast<int>(WindowState::Maximised)) {
        form_->SetState(static_cast<WindowState>(position.state));
        return true;
    }
    form_->Move(checkAgainstScreen ? OntoScreen(position.bounds, form_->ScreenSize())
                                   : position.bounds);
    return true;
}

void CFormPos::SaveForm() const {
    registry_.WriteString(rootKey_, KeyPath(), form_->Name(),
                          FormatFormPosition(form_->Bounds(), form_->State()));
}
