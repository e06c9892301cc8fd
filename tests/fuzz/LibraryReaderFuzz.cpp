#include "common/RuntimeError.h"
#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fuzz/Require.h"

#include <cstdint>

// Any bytes as a library file: loaded, refused with its message, or a conversion error; whatever
// was kept is consistent, and the progress window is gone.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    LibraryOnFakes fuzz;
    fuzz.files.contents["a.tnt"] = std::string(data, data + size);
    bool loaded = false;
    bool raised = false;
    try {
        loaded = fuzz.libraryFiles.FileReadColorValues("a.tnt");
    } catch (const RuntimeError&) {
        raised = true;
    }
    Require(loaded || raised || fuzz.prompts.messages.size() == 1);
    Require(!fuzz.progress.isShown);
    const ColorTable& colors = fuzz.library.Colors();
    for (int index = 1; index <= colors.UpperBound(); ++index) {
        Require(fuzz.library.Tree().Find(colors.At(index).groupKey) != nullptr);
        Require(colors.IndexOfKey(colors.At(index).key) == index);
    }
    return 0;
}
