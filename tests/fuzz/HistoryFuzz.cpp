#include "tests/fakes/RandomUser.h"
#include "tests/fuzz/Require.h"

#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>

// Any sequence of commands: taken back it is the start, done again it is the end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider source(data, size);
    RandomUser user([&](unsigned bound) { return source.ConsumeIntegralInRange(0U, bound - 1); });
    const bool worksWithFiles = source.ConsumeBool();
    while (source.remaining_bytes() > 0) {
        user.DoStep();
        if (source.ConsumeBool())
            user.LookAround();
        if (worksWithFiles && source.ConsumeBool())
            user.OpenOrSave();
    }
    const std::string end = user.Libraries();
    const std::vector<std::string> bytes = user.SavedBytes();
    while (user.library.History().NextUndo())
        user.Undo();
    if (!worksWithFiles)
        Require(user.Libraries().empty());
    while (user.library.History().NextRedo())
        user.Redo();
    if (!worksWithFiles) {
        Require(user.Libraries() == end);
        Require(user.SavedBytes() == bytes);
    }
    return 0;
}
