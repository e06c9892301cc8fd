#include "support/windows/TextViewer.h"

#include "common/InfoTextNumber.h"
#include "support/language/Languages.h"

#include <algorithm>
#include <vector>

namespace {

// Also the base names of the documents' files.
const std::vector<std::string>& Entries() {
    static const std::vector<std::string> entries = {"readme", "lizenz", "changes", "todo",
                                                     "limitations"};
    return entries;
}

} // namespace

void TextViewer::Show(const std::string& entry) {
    TextViewerView& view = parts_.window.Get();
    view.SetEntries(Entries());
    view.SetNames(parts_.language.GetInfoTextOr(InfoTextNumber::ViewedDocument, "Dokument"),
                  parts_.language.GetInfoTextOr(InfoTextNumber::ViewedText, "Text des Dokuments"));
    view.SetBanner(parts_.banner.Index());
    view.SetTopmost(parts_.settings.alwaysOnTop);
    const auto found = std::ranges::find(Entries(), entry);
    if (found != Entries().end())
        view.SelectEntry(static_cast<int>(found - Entries().begin()));
    view.ShowModeless();
}

void TextViewer::EntryChosen(int index) {
    const std::string file = parts_.programFolder + "\\" +
                             Entries().at(static_cast<std::size_t>(index)) + "_" +
                             LanguageCodeOrNone(parts_.settings.language) + ".txt";
    const auto text =
        parts_.language.FileExists(file) ? parts_.files.ReadWhole(file) : std::nullopt;
    parts_.window.Get().SetText(text ? parts_.codePage.Decode(*text) : file + ": missing file");
}

void TextViewer::BannerClicked() {
    parts_.banner.BannerClicked();
}

TwipsSize TextViewer::TextSize(const TwipsSize& innerArea) const {
    constexpr float marginWidth = 1900;
    constexpr float marginHeight = 625;
    constexpr float smallest = 5;
    return {std::max(innerArea.width - marginWidth, smallest),
            std::max(innerArea.height - marginHeight, smallest)};
}
