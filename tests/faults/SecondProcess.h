#pragma once

#include <optional>
#include <string>

// What the test program does when it is started once more, as a process of its own:
//     --save-and-die STEP FILE   opens the library, adds a color and saves; killed at that step
//     --save FILE                the same without an end before its time
//     --keep-and-die STEP FOLDER CONTENT   keeps the content as a library in a recovery folder;
//                                killed at that step
//     --save-on-signal FILE      opens it, makes FILE.open, and saves when FILE.go is there
//     --save-often NAME COUNT FILE   when FILE.go is there, saves as many contents "NAME number",
//                                    and lists in FILE.NAME those that were written
//     --save-in-turn NAME OTHER COUNT FILE   the same without a signal, each after one of OTHER;
//                                that which comes first in the alphabet begins
//     --hold FILE                keeps the file open, shared with nobody, until it is ended
// Nothing when the command line asks for none of them; otherwise the exit code.
[[nodiscard]] std::optional<int> RunAsSecondProcess(int count, char** arguments);

// The command line that starts the test program so.
[[nodiscard]] std::string SecondProcess(const std::string& arguments);
