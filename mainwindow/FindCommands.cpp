#include "mainwindow/FindCommands.h"

#include "common/ErrorText.h"
#include "common/InfoTextNumber.h"
#include "common/ShownNumbers.h"
#include "support/settings/modWindowsHandling.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kNameColumn = 1;
constexpr int kGroupColumn = 2;
constexpr int kLibraryColumn = 3;
constexpr int kDecimals = 2;

// Milliseconds between ticks: while there is work, and while there may be some.
constexpr int kWorking = 10;
constexpr int kWatching = 100;

} // namespace

FindCommands::FindCommands(const Parts& parts)
    : parts_(parts), windowPlace_(parts.registry, parts.mainWindow),
      hits_(parts.library, parts.slice) {}

std::string FindCommands::Text(std::int32_t number, const char* builtIn) const {
    return parts_.language.GetInfoTextOr(number, builtIn);
}

void FindCommands::mnuEditFind_Click() {
    FindView& view = parts_.window.Get();
    windowPlace_.Opening(view);
    SetFormOnTop(view, parts_.settings.alwaysOnTop);
    FollowLanguage();
    if (!FollowActiveColor())
        Advance();
    view.ShowModeless();
}

void FindCommands::FindClosing() {
    windowPlace_.Closing();
    ShowState();
}

void FindCommands::TextChanged(const std::string& text) {
    query_ = ParseColorQuery(text);
    Begin();
}

void FindCommands::LikeActiveColorChosen(bool isChosen) {
    likeActiveColor_ = isChosen;
    parts_.window.Get().ShowDifferences(isChosen);
    TakeActiveColor();
    Begin();
}

// The first hits are shown at once.
void FindCommands::Begin() {
    if (likeActiveColor_)
        hits_.SearchNearest(query_, SplitColorNumber(wanted_));
    else
        hits_.Search(query_);
    current_ = 0;
    place_ = 0;
    NoteRevision();
    hits_.Advance();
    ShowAllRows();
    ShowState();
}

// True: it is another one than was noted before.
bool FindCommands::NoteRevision() {
    const std::uint64_t now = parts_.library.Revision();
    return std::exchange(revision_, now) != now;
}

void FindCommands::Ticked() {
    if (FollowLanguage() || FollowActiveColor())
        return;
    // Not in the middle of a change that goes on, as reading a file does.
    isChanging_ = NoteRevision();
    if (isChanging_)
        ShowState();
    else
        Advance();
}

void FindCommands::Advance() {
    isChanging_ = false;
    NoteRevision();
    const bool hadRows = hits_.Count() > 0;
    const FindHits::Change change = hits_.Advance();
    if (change == FindHits::Change::MoreRows && hadRows && !isCurrentMissing_)
        parts_.window.Get().AddRows(hits_.Count());
    else if (change != FindHits::Change::None)
        ShowAllRows();
    ShowState();
}

// True: the search has begun anew.
bool FindCommands::FollowActiveColor() {
    if (followed_ == parts_.editor.ActiveColor())
        return false;
    TakeActiveColor();
    if (likeActiveColor_)
        Begin();
    return likeActiveColor_;
}

void FindCommands::TakeActiveColor() {
    wanted_ = parts_.editor.ActiveColor();
    followed_ = wanted_;
    parts_.window.Get().ShowActiveColor(wanted_);
}

// True: the texts are other ones.
bool FindCommands::FollowLanguage() {
    const std::int32_t language = parts_.settings.language;
    if (language_ == language)
        return false;
    language_ = language;
    ShowTexts();
    return true;
}

void FindCommands::ShowTexts() {
    FindView& view = parts_.window.Get();
    parts_.language.SetAllControlText(view);
    view.SetWindowCaption(Text(InfoTextNumber::FindColors, "Farben suchen"));
    view.SetColumnCaptions({Text(InfoTextNumber::FoundName, "Farbe"),
                            Text(InfoTextNumber::FoundGroup, "Gruppe"),
                            Text(InfoTextNumber::FoundLibrary, "Bibliothek"),
                            Text(InfoTextNumber::FoundDifference, "Abstand")});
    texts_ = {.found = Text(InfoTextNumber::FoundOfColors, "%1 von %2 Farben"),
              .nearest = Text(InfoTextNumber::NearestOfColors, "Die %1 ähnlichsten von %2 Farben"),
              .thousands = Text(InfoTextNumber::ThousandsSign, "."),
              .decimal = Text(InfoTextNumber::DecimalSign, ",")};
    ShowAllRows(); // the differences are written in another way
    ShowState();
}

void FindCommands::ShowAllRows() {
    const std::optional<int> row = current_ != 0 ? hits_.RowOf(current_) : std::optional<int>();
    const int count = hits_.Count();
    isCurrentMissing_ = current_ != 0 && !row;
    place_ = row.value_or(place_);
    parts_.window.Get().ShowRows(count, std::min(place_, count - 1));
}

void FindCommands::ShowState() {
    FindView& view = parts_.window.Get();
    const bool isWorking = isChanging_ || !hits_.IsDone();
    const int pace = isWorking ? kWorking : (windowPlace_.IsOpen() ? kWatching : 0);
    if (std::exchange(pace_, pace) != pace)
        view.TickEvery(pace);
    std::string status = StatusText();
    if (status != status_)
        view.SetStatus(status_ = std::move(status));
}

std::string FindCommands::StatusText() const {
    const auto shown = [this](int number) { return WithThousands(number, texts_.thousands); };
    return WithArguments(likeActiveColor_ ? texts_.nearest : texts_.found,
                         {shown(hits_.Count()), shown(parts_.library.Colors().UpperBound())}) +
           (hits_.IsDone() ? "" : " ...");
}

void FindCommands::RowSelected(int row) {
    current_ = hits_.At(row);
    place_ = row;
}

void FindCommands::RowChosen(int row) {
    RowSelected(row);
    if (GoTo(current_))
        parts_.list.FocusRows();
}

void FindCommands::GoOn(int direction) {
    do // the libraries may have changed: the next hit is that of all
        Advance();
    while (!hits_.IsDone());
    if (hits_.Count() == 0) {
        mnuEditFind_Click();
        return;
    }
    RowSelected(RowFrom(direction));
    parts_.window.Get().SelectRow(place_);
    GoTo(current_);
}

// A hit that is none any more, as after it was renamed, has left its place to the one after it.
int FindCommands::RowFrom(int direction) const {
    const int count = hits_.Count();
    const bool isThere = current_ != 0 && hits_.RowOf(current_).has_value();
    const int next = direction > 0 ? place_ + (isThere ? 1 : 0) : place_ - 1;
    return (next % count + count) % count;
}

// As a click would: an operation is not disturbed, and what stands in the box of a label is meant.
// The color is the active one then, but the hits stay those of the one before, so that the next
// can be gone to.
bool FindCommands::GoTo(ColorId color) {
    if (parts_.activity.operationRuns)
        return false;
    parts_.drag.DragCancelled();
    parts_.panes.FinishLabelEdit();
    const bool isThere = parts_.panes.ShowColor(color);
    if (likeActiveColor_)
        followed_ = parts_.editor.ActiveColor();
    return isThere;
}

std::optional<ColorView> FindCommands::ColorAt(int row) const {
    const ColorTable& colors = parts_.library.Colors();
    const int index = row >= 0 && row < hits_.Count() ? colors.IndexOfId(hits_.At(row)) : 0;
    return index > 0 ? std::optional<ColorView>(colors.ViewAt(index)) : std::nullopt;
}

std::string FindCommands::CellText(int row, int column) const {
    const std::optional<ColorView> color = ColorAt(row);
    if (!color)
        return {};
    const LibraryTree& tree = parts_.library.Tree();
    const LibraryNode& group = tree.At(color->groupKey);
    switch (column) {
    case kNameColumn:
        return color->color.name;
    case kGroupColumn:
        return group.text;
    case kLibraryColumn:
        return tree.At(group.parent).text;
    default:
        return WithDecimals(hits_.DifferenceAt(row).value_or(0), kDecimals, texts_.decimal);
    }
}

ColorNumber FindCommands::ColorOfRow(int row) const {
    const std::optional<ColorView> color = ColorAt(row);
    if (!color)
        return 0;
    const ColorValueArray& values = color->color.values;
    return MakeColorNumber(PaintedColor(values[0], values[1], values[2]));
}
