#include "standin/com/frmStandIn.h"

#include "platform/Utf16.h"
#include "platform/WindowGeometry.h"
#include "resources/controls.h"
#include "standin/model/CommandLine.h"
#include "standin/model/StandInContract.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

namespace Contract = StandInContract;

constexpr FormDesign kDesign{Contract::WindowClass,
                             L"SolidWorks stand-in",
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                             WS_EX_CONTROLPARENT,
                             nullptr,
                             {1120, 780},
                             {900, 640}};

constexpr UINT_PTR kRefreshTimer = 1;
constexpr UINT kShortestDelay = 15;  // milliseconds; many changes are shown at once
constexpr UINT kShareOfPainting = 4; // one part painting, three parts for the clients

// All lengths in design pixels.
constexpr int kMargin = 12;
constexpr int kLeftWidth = 344;
constexpr int kLineHeight = 26;
constexpr int kDetailsHeight = 180;
constexpr int kTableWidth = 270;
constexpr int kCallsHeight = 110;

struct DocumentEntry {
    const char* caption;
    std::optional<DocumentType> type;
};

constexpr std::array<DocumentEntry, 4> kDocuments{{
    {"Part", DocumentType::Part},
    {"Assembly", DocumentType::Assembly},
    {"Drawing", DocumentType::Drawing},
    {"No document", std::nullopt},
}};

std::optional<DocumentType> TypeOf(const DocumentPtr& document) {
    return document ? std::optional(document->Type()) : std::nullopt;
}

} // namespace

frmStandIn::frmStandIn(StandInModel& model, const ServedObjects& objects, ErrorSink& errors)
    : Form(kDesign, errors), model_(model), objects_(objects),
      askMessage_(RegisterWindowMessageW(Contract::AskMessage)),
      documentLabel_(Add<Label>(ControlPlace{"lblDocument", Contract::DocumentLabel, Handle()})),
      documentChoice_(
          Add<ComboBox>(ControlPlace{"cmbDocument", Contract::DocumentChoice, Handle()})),
      revision_(Add<Label>(ControlPlace{"lblRevision", Contract::RevisionLabel, Handle()})),
      list_(Add<ObjectList>(ControlPlace{"lvObjects", Contract::ObjectList, Handle()})),
      picture_(Add<PicturePane>(ControlPlace{"picDocument", Contract::Picture, Handle()})),
      details_(Add<DetailsPane>(ControlPlace{"picDetails", Contract::Details, Handle()})),
      colorTable_(
          Add<ColorTablePane>(ControlPlace{"picColorTable", Contract::ColorTable, Handle()})),
      callsLabel_(Add<Label>(ControlPlace{"lblCalls", Contract::CallsLabel, Handle()})),
      calls_(Add<CallList>(ControlPlace{"lvCalls", Contract::CallList, Handle()},
                           std::as_const(model.Log()))) {
    Connect();
    LoadStandInIcons();
    documentLabel_.SetText("&Document");
    callsLabel_.SetText("Last &calls received");
    picture_.SetText("Picture of the document");
    for (const DocumentEntry& entry : kDocuments)
        documentChoice_.Add(entry.caption);
    ShowDocument();
    ShowNames();
    OnLayout(); // also while the window is hidden: tests click into the picture
    model_.Events().Add(*this);
}

frmStandIn::~frmStandIn() {
    model_.Events().Remove(*this);
}

void frmStandIn::Connect() {
    documentChoice_.onChoose = [this](int index) { ChooseDocument(index); };
    list_.onSelect = [this](const SelectionChange& change) { ChangeSelection(change); };
    picture_.onPick = [this](const SelectedItem& item, bool append) { Pick(item, append); };
}

void frmStandIn::LoadStandInIcons() {
    const auto load = [this](int designPixels, WPARAM kind, IconHandle& icon) {
        const int size = Scale().FromDesign(designPixels);
        IconHandle loaded(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr),
                                                        MAKEINTRESOURCEW(IDI_swx_standin),
                                                        IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
        SendMessageW(Handle(), WM_SETICON, kind, reinterpret_cast<LPARAM>(loaded.Get()));
        icon = std::move(loaded);
    };
    load(32, ICON_BIG, standInBigIcon_);
    load(16, ICON_SMALL, standInSmallIcon_);
}

void frmStandIn::Open() {
    CentreOnOwner(Handle());
    Show();
    list_.Focus();
}

MessageResult frmStandIn::OnMessage(const WindowMessage& message) {
    if (message.id == askMessage_)
        return AnswerQuestion(message.wParam, message.lParam);
    switch (message.id) {
    case WM_SIZE:
        OnLayout();
        return 0;
    case WM_TIMER:
        Refresh();
        return 0;
    case WM_COPYDATA:
        return TakeOrder(*reinterpret_cast<const COPYDATASTRUCT*>(message.lParam));
    default:
        return Form::OnMessage(message);
    }
}

void frmStandIn::ChooseDocument(int index) {
    model_.Activate(kDocuments.at(static_cast<std::size_t>(index)).type);
    Refresh();
}

// Ctrl adds an object, or takes a selected one off; the background selects nothing.
void frmStandIn::Pick(const SelectedItem& item, bool append) {
    const DocumentPtr document = model_.ActiveDocument();
    if (!document)
        return;
    if (!item.entity) {
        if (!append)
            document->ClearSelection();
    } else if (append && document->CurrentSelection().Contains(item)) {
        document->Deselect(item);
    } else {
        document->SelectItem(item, append);
    }
    Refresh();
}

// What stays selected keeps its place; what is new follows.
void frmStandIn::ChangeSelection(const SelectionChange& change) {
    const DocumentPtr document = model_.ActiveDocument();
    if (!document)
        return;
    for (const SelectedItem& item : change.removed)
        document->Deselect(item);
    for (const SelectedItem& item : change.added)
        document->SelectItem(item, true);
    Refresh();
}

void frmStandIn::OnCancelKey() {
    Pick({}, false);
}

void frmStandIn::ModelChanged() noexcept {
    if (!std::exchange(refreshRequested_, true))
        SetTimer(Handle(), kRefreshTimer, std::max(refreshDelay_, kShortestDelay), nullptr);
}

void frmStandIn::ShowNames() {
    const std::string title = shownDocument_ ? " - " + shownDocument_->Title() : "";
    if (std::exchange(shownTitle_, title) != title || title.empty())
        SetWindowTextW(Handle(), ToUtf16("SolidWorks stand-in" + title).c_str());
    const std::string revision = "Revision " + model_.Revision();
    if (revision_.Text() != revision)
        revision_.SetText(revision);
}

void frmStandIn::ShowDocument() {
    shownDocument_ = model_.ActiveDocument();
    const auto entry =
        std::find_if(kDocuments.begin(), kDocuments.end(), [&](const DocumentEntry& each) {
            return each.type == TypeOf(shownDocument_);
        });
    documentChoice_.SetListIndex(static_cast<std::int32_t>(entry - kDocuments.begin()));
    list_.SetRows(ObjectRows(shownDocument_));
    picture_.SetDocument(shownDocument_);
    details_.SetDocument(shownDocument_);
    colorTable_.SetDocument(shownDocument_);
}

void frmStandIn::Refresh() {
    KillTimer(Handle(), kRefreshTimer);
    refreshRequested_ = false;
    ++refreshes_;
    const ULONGLONG start = GetTickCount64();
    if (model_.ActiveDocument() != shownDocument_)
        ShowDocument();
    ShowNames();
    if (shownDocument_)
        list_.ShowSelection(shownDocument_->CurrentSelection());
    picture_.Repaint();
    details_.Refresh();
    colorTable_.Refresh();
    calls_.Refresh();
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    refreshDelay_ = static_cast<UINT>(GetTickCount64() - start) * (kShareOfPainting - 1);
}

LRESULT frmStandIn::AnswerQuestion(WPARAM question, LPARAM row) {
    const auto number = [](std::size_t count) { return static_cast<LRESULT>(count); };
    switch (static_cast<Contract::Question>(question)) {
    case Contract::Question::LiveObjects:
        return number(model_.Gate().LiveObjects());
    case Contract::Question::CallCount:
        return number(model_.Log().Total());
    case Contract::Question::NameLookups:
        return number(objects_.NameLookups());
    case Contract::Question::RejectedCalls:
        return number(model_.Gate().RejectedCalls());
    case Contract::Question::PicturePoint:
        return PointOfRow(row);
    case Contract::Question::Refreshes:
        return number(refreshes_);
    case Contract::Question::RebuildCount: {
        const DocumentPtr document = model_.ActiveDocument();
        return document ? document->RebuildCount() : 0;
    }
    }
    return 0;
}

LRESULT frmStandIn::PointOfRow(LPARAM row) {
    const auto& rows = list_.Rows();
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        return -1;
    const std::optional<POINT> point = picture_.PointOf(rows[static_cast<std::size_t>(row)]);
    return point ? MAKELRESULT(point->x, point->y) : -1;
}

LRESULT frmStandIn::TakeOrder(const COPYDATASTRUCT& data) {
    if (data.dwData != Contract::OrderData)
        return FALSE;
    try {
        RunOrder(std::string(static_cast<const char*>(data.lpData), data.cbData), model_);
    } catch (const RuntimeError&) {
        return FALSE;
    }
    Refresh();
    return TRUE;
}

void frmStandIn::OnLayout() {
    RECT area = ClientArea();
    InflateRect(&area, -Scale().FromDesign(kMargin), -Scale().FromDesign(kMargin));
    RECT left = area;
    left.right = left.left + Scale().FromDesign(kLeftWidth);
    LayOutLeft(left);
    area.left = left.right + Scale().FromDesign(kMargin);
    LayOutRight(area);
}

void frmStandIn::LayOutLeft(const RECT& area) {
    const int line = Scale().FromDesign(kLineHeight);
    const int label = documentLabel_.TextSize().cx + Scale().FromDesign(8);
    const int textTop = area.top + Scale().FromDesign(4);
    const int choiceRight = area.left + label + Scale().FromDesign(130);
    documentLabel_.Place({area.left, textTop, area.left + label, area.top + line});
    documentChoice_.Place({area.left + label, area.top, choiceRight, area.top + 8 * line});
    revision_.Place({choiceRight + Scale().FromDesign(14), textTop, area.right, area.top + line});
    list_.Place({area.left, area.top + line + Scale().FromDesign(8), area.right, area.bottom});
}

void frmStandIn::LayOutRight(const RECT& area) {
    const int gap = Scale().FromDesign(kMargin);
    const int callsTop = area.bottom - Scale().FromDesign(kCallsHeight);
    const int labelTop = callsTop - Scale().FromDesign(22);
    const int detailsBottom = labelTop - Scale().FromDesign(8);
    const int detailsTop = detailsBottom - Scale().FromDesign(kDetailsHeight);
    const int tableLeft = area.right - Scale().FromDesign(kTableWidth);
    picture_.Place({area.left, area.top, area.right, detailsTop - gap});
    details_.Place({area.left, detailsTop, tableLeft - gap, detailsBottom});
    colorTable_.Place({tableLeft, detailsTop, area.right, detailsBottom});
    callsLabel_.Place({area.left, labelTop, area.right, callsTop - Scale().FromDesign(2)});
    calls_.Place({area.left, callsTop, area.right, area.bottom});
}
