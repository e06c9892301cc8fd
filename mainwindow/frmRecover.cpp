#include "mainwindow/frmRecover.h"

#include "platform/controls/ListLayout.h"
#include "platform/ModalDisplay.h"
#include "platform/Utf16.h"
#include "resources/controls.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace {

constexpr const char* kRowIcon = "Colfile";

// Design pixels.
constexpr std::array kColumnWidths = {150, 250, 130, 70};

FormDesign DesignFor(HWND owner) {
    return {
        L"frmRecover",       L"TNT4SWX", (WS_OVERLAPPEDWINDOW & ~WS_MINIMIZEBOX) | WS_CLIPCHILDREN,
        WS_EX_CONTROLPARENT, owner,      {660, 360},
        {520, 240}};
}

} // namespace

frmRecover::frmRecover(HWND owner, ErrorSink& errors)
    : FormOf(DesignFor(owner), errors), imlLarge_("imlLarge", {kRowIcon}),
      imlSmall_("imlSmall", {kRowIcon}), lblRecover_(Add<Label>(At("lblRecover", IDC_lblRecover))),
      lvRecover_(Add<ListView>(At("lvRecover", IDC_lvRecover),
                               ListView::Images{imlLarge_, imlSmall_, kRowIcon})),
      cmdOpen_(Add<CommandButton>(At("cmdOpen", IDC_cmdOpen), ButtonRole::Default)),
      cmdOpenAll_(Add<CommandButton>(At("cmdOpenAll", IDC_cmdOpenAll))),
      cmdDelete_(Add<CommandButton>(At("cmdDelete", IDC_cmdDelete))),
      cmdEmpty_(Add<CommandButton>(At("cmdEmpty", IDC_cmdEmpty))),
      cmdClose_(Add<CommandButton>(At("cmdClose", IDC_cmdClose))) {
    lblRecover_.SetText("Bibliotheken, die geändert und nicht gespeichert wurden. Öffnen bringt "
                        "eine zurück, so wie sie war.");
    cmdOpen_.SetText("Öffnen");
    cmdOpenAll_.SetText("Alle öffnen");
    cmdDelete_.SetText("Löschen ...");
    cmdEmpty_.SetText("Alle löschen ...");
    cmdClose_.SetText("Schließen");
    lvRecover_.cellText = [this](int row, int column) {
        return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column) - 1);
    };
    lvRecover_.mayEdit = [] { return false; };
    lvRecover_.onClick = [this](int) { ShowWhatCanBeDone(); };
    lvRecover_.onDoubleClick = [this] { ChooseSelected(); };
    cmdOpen_.onClick = [this] { ChooseSelected(); };
    cmdOpenAll_.onClick = [this] { ChooseAll(); };
    cmdDelete_.onClick = [this] { ReportDelete(); };
    cmdClose_.onClick = [this] { done_ = true; };
    SetDefaultButton(IDC_cmdOpen);
    frmRecover::OnLayout();
}

void frmRecover::Attach(RecoverEvents& events) {
    events_ = &events;
    cmdEmpty_.onClick = [&events] { events.EmptyClicked(); };
}

void frmRecover::SetWindowCaption(const std::string& caption) {
    SetWindowTextW(Handle(), ToUtf16(caption).c_str());
}

void frmRecover::SetColumnCaptions(const RecoverRow& captions) {
    for (std::size_t index = 0; index < captions.size(); ++index)
        if (hasColumns_)
            lvRecover_.SetColumnCaption(static_cast<int>(index) + 1, captions.at(index));
        else
            lvRecover_.AddColumn(captions.at(index), Scale().FromDesign(kColumnWidths.at(index)));
    hasColumns_ = true;
}

void frmRecover::SetRows(const std::vector<RecoverRow>& rows) {
    const int selected = std::max(lvRecover_.SelectedRow(), 0);
    rows_ = rows;
    lvRecover_.SetRowCount(static_cast<int>(rows_.size()));
    if (!rows_.empty())
        lvRecover_.SelectRow(std::min(selected, static_cast<int>(rows_.size()) - 1));
    ShowWhatCanBeDone();
}

void frmRecover::ShowWhatCanBeDone() {
    const bool isSelected = lvRecover_.SelectedRow() >= 0;
    if (!isSelected && IsWindowVisible(Handle()) != FALSE)
        lvRecover_.Focus(); // before a button that has it turns grey
    cmdOpen_.SetEnabled(isSelected);
    cmdOpenAll_.SetEnabled(!rows_.empty());
    cmdDelete_.SetEnabled(isSelected);
    cmdEmpty_.SetEnabled(!rows_.empty());
}

void frmRecover::ChooseSelected() {
    if (lvRecover_.SelectedRow() < 0)
        return;
    chosen_ = {lvRecover_.SelectedRow()};
    done_ = true;
}

void frmRecover::ChooseAll() {
    chosen_.resize(rows_.size());
    std::iota(chosen_.begin(), chosen_.end(), 0);
    done_ = true;
}

void frmRecover::ReportDelete() {
    if (events_ != nullptr && lvRecover_.SelectedRow() >= 0)
        events_->DeleteClicked(lvRecover_.SelectedRow());
}

std::vector<int> frmRecover::ShowModal() {
    OnLayout();
    done_ = false;
    chosen_.clear();
    if (!rows_.empty())
        lvRecover_.SelectRow(0);
    {
        const ModalDisplay display(Handle(), TakeShowCommand());
        lvRecover_.Focus();
        ModalDisplay::Run([this] { return done_; });
        if (events_ != nullptr)
            events_->RecoverUnloading();
    }
    return chosen_;
}

MessageResult frmRecover::OnMessage(const WindowMessage& message) {
    if (message.id == WM_SIZE) {
        OnLayout();
        return 0;
    }
    return Form::OnMessage(message);
}

bool frmRecover::TranslateShortcut(MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_DELETE ||
        GetFocus() != lvRecover_.Handle())
        return false;
    ReportDelete();
    return true;
}

void frmRecover::OnLayout() {
    ListLayout{
        lblRecover_, lvRecover_, {&cmdOpen_, &cmdOpenAll_, &cmdDelete_, &cmdEmpty_, &cmdClose_}}
        .Place(ClientArea(), Scale());
}
