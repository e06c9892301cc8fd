#pragma once

// The check marks of a menu's entries.
class MenuMarks {
public:
    virtual ~MenuMarks() = default;
    virtual void SetMenuChecked(int command, bool checked) = 0; // command: IDM_ number
};
