#pragma once

#include "common/ports/Files.h"
#include "platform/KernelHandle.h"

// One file that is open for writing.  After Close every call fails.
class Win32OutputFile : public OutputFile {
public:
    explicit Win32OutputFile(KernelHandle file) noexcept : file_(std::move(file)) {}

    [[nodiscard]] bool Write(std::string_view bytes) override;
    [[nodiscard]] bool Flush() override;
    [[nodiscard]] bool Close() override { return file_.Close(); }

private:
    KernelHandle file_;
};
