#pragma once

#include "common/ColorRecord.h"
#include "common/ports/InfoTexts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/NewNodes.h"
#include "mainwindow/MainActivity.h"
#include "mainwindow/OperationReport.h"
#include "solidworks/modSldTools.h"

#include <string>
#include <vector>

// The main window's ten SolidWorks commands: each prepares its input, runs an operation and turns
// the result key into a message, a status text or an update of editor and library.
class SolidWorksCommands {
public:
    struct Parts {
        modSldTools& tools;
        ColorLibrary& library;
        NewNodes& newNodes;
        ColorList& list;
        LibraryPanes& panes;
        ColorEditor& editor;
        const OperationReport& report;
        InfoTexts& texts;
        const MainActivity& activity;
    };

    explicit SolidWorksCommands(const Parts& parts) : parts_(parts) {}

    void mnuSWXGetColor_Click();
    void mnuSWXNewColorUpdate_Click() { NewColorNodeFromSWX(); }
    void mnuSWXSetColor_Click();
    void mnuSWXSetColorComponent_Click();
    void mnuSWXClearColorFromSelection_Click();
    void mnuSWXClearComponentColorFromSelection_Click();
    void mnuSWXClearColorPart_Click();
    void mnuSWXClearColorAssembly_Click();
    void mnuSWXGetStandardColor_Click();
    void mnuSWXSetStandardColor_Click();

    // A new color with a name asked from the user and the color of SolidWorks's selection.  The
    // color is read and written also when the user cancelled the name, on purpose.
    void NewColorNodeFromSWX();

private:
    bool ShowSelectedColor(); // in the editor; false: refused, and told so
    [[nodiscard]] ColorRecord ColorOfEditor() const;
    // colors: get the values that the table does not have from the texts of the editor.
    void ImportStandardColors(std::vector<ColorRecord>& colors, const ColorEditor::Texts& editor);

    Parts parts_;
};
