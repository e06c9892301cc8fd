#pragma once

#include "standin/model/CallLog.h"

#include <fstream>

// Appends every call to a file, one line each, complete before the call is carried out.
class CallLogFile {
public:
    // name: UTF-8.  Throws RuntimeError when the file cannot be opened.
    explicit CallLogFile(const std::string& name);

    void Write(const CallRecord& record);

private:
    std::ofstream file_;
};
