#include "common/RuntimeError.h"
#include "mainwindow/ClipboardLine.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Any text on the clipboard: a color, nothing, or a conversion error; a color that is copied
// again is pasted as the same one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    if (!ClipboardLine::IsColor(text))
        return 0;
    try {
        const auto pasted = ClipboardLine::Parse(text);
        if (!pasted)
            return 0;
        const ColorRecord color{pasted->name, "0DG1E1", "0DG1", true, pasted->values, "second"};
        const auto again = ClipboardLine::Parse(ClipboardLine::Format(color));
        if (!again || again->name != pasted->name || again->values != pasted->values)
            std::abort();
    } catch (const RuntimeError&) {
        return 0;
    }
    return 0;
}
