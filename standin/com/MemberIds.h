#pragma once

#include <map>
#include <string>
#include <vector>
#include <windows.h>
#include <oaidl.h>

// Numbers for member names, the same for all objects, from 1 in the order of their first use.
class MemberIds {
public:
    [[nodiscard]] DISPID IdOf(const std::string& name);

    // Null for a number that was never given.
    [[nodiscard]] const std::string* NameOf(DISPID id) const noexcept;

private:
    std::map<std::string, DISPID> ids_;
    std::vector<std::string> names_;
};
