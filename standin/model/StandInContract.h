#pragma once

#include <cstdint>

// What other processes may rely on to find and to ask a running stand-in.  README.md explains it.
namespace StandInContract {

inline constexpr const wchar_t* WindowClass = L"frmStandIn";

// Sent to the window with a Question in wParam.
inline constexpr const wchar_t* AskMessage = L"SwxStandIn.Ask";

enum class Question : std::uint32_t {
    LiveObjects = 1,   // objects that clients hold; the application object itself counts as one
    CallCount = 2,     // calls received
    NameLookups = 3,   // names resolved (GetIDsOfNames)
    RejectedCalls = 4, // calls turned away as busy
    // lParam: a row of the object list.  Where to click on it in the picture: x in the low, y in
    // the high word, in client pixels of the picture; -1 when the picture does not show it.
    PicturePoint = 5,
    RebuildCount = 6, // EditRebuild calls of the active document
    Refreshes = 7     // how often the window was brought up to date
};

// WM_COPYDATA with this number in dwData and an order (see RunOrder) as UTF-8 text.  The answer is
// 1 when it was carried out, 0 when it was not understood.
inline constexpr std::uintptr_t OrderData = 0x53574F31;

// Numbers of the controls.
enum ControlId : int {
    DocumentChoice = 3001, // combo box: Part, Assembly, Drawing, No document
    RevisionLabel = 3002,
    ObjectList = 3003, // list view: everything that can be selected
    Picture = 3004,
    Details = 3005, // its window text holds the values of the selected object
    ColorTable = 3006,
    CallList = 3007, // list view: the last calls, newest at the end
    DocumentLabel = 3008,
    CallsLabel = 3009
};

} // namespace StandInContract
