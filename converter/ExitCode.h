#pragma once

// What the program tells whoever has started it.
enum class ExitCode {
    Done = 0,
    Lossy = 1,      // done, but something was left out or changed; stderr says what
    WrongUsage = 2, // nothing was done
    Unreadable = 3, // the file that is read
    NotWritten = 4, // the file that is written, also because it exists; or standard output
    Failed = 5      // such as a lack of memory
};
