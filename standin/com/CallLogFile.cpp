#include "standin/com/CallLogFile.h"

#include "common/RuntimeError.h"
#include "platform/Utf16.h"

#include <filesystem>

CallLogFile::CallLogFile(const std::string& name)
    : file_(std::filesystem::path(ToUtf16(name)), std::ios::binary | std::ios::app) {
    if (!file_)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue, "Cannot write the log " + name);
}

void CallLogFile::Write(const CallRecord& record) {
    file_ << ToText(record) << '\n' << std::flush;
}
