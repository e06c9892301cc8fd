#include "mainwindow/EmptyListHint.h"

#include "common/ErrorText.h"
#include "common/FileNames.h"
#include "common/InfoTextNumber.h"
#include "resources/controls.h"

#include <algorithm>
#include <iterator>

std::vector<HintLine> EmptyListHint::HintLines() const {
    const LibraryTree& tree = parts_.library.Tree();
    if (tree.MainNodes().empty())
        return LinesWithoutLibrary();
    if (tree.Selected().empty())
        return {};
    return parts_.library.SelectedGroup().empty() ? LinesOfLibrary() : LinesOfGroup();
}

std::vector<HintLine> EmptyListHint::LinesWithoutLibrary() const {
    std::vector<HintLine> lines = {
        {.text = Text(InfoTextNumber::NoLibraryOpen, "Es ist keine Bibliothek offen.")},
        {.text = Text(InfoTextNumber::HintOpen, "Bibliothek öffnen ..."),
         .command = IDM_mnuFileOpen},
        {.text = Text(InfoTextNumber::HintNewLibrary, "Neue Bibliothek anlegen ..."),
         .command = IDM_mnuFileNew},
        {.text = Text(InfoTextNumber::HintImport, "Farbpalette importieren ..."),
         .command = IDM_mnuFileImport}};
    if (parts_.canRecover()) // first: who lost work looks for nothing else
        lines.insert(lines.begin() + 1,
                     {.text = Text(InfoTextNumber::HintRecover,
                                   "Nicht gespeicherte Bibliotheken wiederherstellen ..."),
                      .command = IDM_mnuFileRecover});
    std::ranges::move(Samples(), std::back_inserter(lines));
    lines.push_back(
        {.text = Text(InfoTextNumber::HintDropFiles, "Dateien lassen sich auch hierher ziehen.")});
    return lines;
}

std::vector<HintLine> EmptyListHint::Samples() const {
    std::vector<std::string> names = parts_.folders.FileNamesIn(parts_.sampleFolder);
    std::erase_if(names, [](const std::string& name) { return !HasExtension(name, ".tnt"); });
    std::ranges::sort(names);
    names.resize(std::min(names.size(), kMostSamples));
    const std::string text = Text(InfoTextNumber::HintSample, "Beispiel öffnen: %1");
    std::vector<HintLine> lines;
    lines.reserve(names.size());
    for (const std::string& name : names)
        lines.push_back({.text = WithArguments(text, {FileNameStem(name)}),
                         .file = parts_.sampleFolder + "\\" + name});
    return lines;
}

std::vector<HintLine> EmptyListHint::LinesOfLibrary() const {
    return {{.text = Text(InfoTextNumber::LibraryIsEmpty, "Diese Bibliothek hat keine Gruppen.")},
            {.text = Text(InfoTextNumber::HintNewGroup, "Neue Gruppe anlegen ..."),
             .command = IDM_mnuColorNewGroup},
            {.text = Text(InfoTextNumber::HintImportGroups,
                          "Farbpalette in die Bibliothek importieren ..."),
             .command = IDM_mnuFileImportGroups}};
}

std::vector<HintLine> EmptyListHint::LinesOfGroup() const {
    return {{.text = Text(InfoTextNumber::GroupIsEmpty, "Diese Gruppe hat noch keine Farben.")},
            {.text = Text(InfoTextNumber::HintNewColor, "Neue Farbe anlegen ..."),
             .command = IDM_mnuColorNewColor},
            {.text = Text(InfoTextNumber::HintPickUp, "Neue Farbe aus SolidWorks holen"),
             .command = IDM_mnuSWXNewColorUpdate},
            {.text = Text(InfoTextNumber::HintPaste,
                          "Mit Strg+V lassen sich kopierte Farben einfügen. Gezogene Farben "
                          "nimmt die Gruppe im Baum auf.")}};
}
