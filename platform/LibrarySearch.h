#pragma once

// Makes the whole process look for libraries in the system folder only, not beside the program and
// not in the current folder.  What is loaded by its full name, such as the shell's extensions in
// the common dialogs, still finds its own.  To be called before anything else.
void SearchSystemLibrariesOnly() noexcept;
