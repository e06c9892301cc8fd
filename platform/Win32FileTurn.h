#pragma once

#include "common/ports/Files.h"
#include "platform/KernelHandle.h"

#include <memory>
#include <string>
#include <utility>

// A turn as a file that one process can have open.  The system closes it with the process and then
// deletes it, also on the disk of another computer; what remains after a loss of power is used
// again.
class Win32FileTurn : public FileTurn {
public:
    // path: of the turn's own file.  Null: it cannot be opened, or others have had it for as long
    // as anybody wants to wait for a save.
    [[nodiscard]] static std::unique_ptr<FileTurn> Take(const std::string& path);

    explicit Win32FileTurn(KernelHandle file) : file_(std::move(file)) {}

private:
    KernelHandle file_;
};
