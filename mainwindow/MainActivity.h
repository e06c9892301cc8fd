#pragma once

#include "mainwindow/DragPane.h"

// What goes on in the main window and must not be disturbed.
struct MainActivity {
    bool operationRuns = false; // calls to SolidWorks, which let the window handle events
    bool endRequested = false;  // the user wants the program to end as soon as it is over
    // What the dragged color will be.  A drop that hit no node leaves it as it was until the list
    // is pressed the next time, on purpose.
    DragMode drag = DragMode::None;
};
