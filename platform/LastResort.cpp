#include "platform/LastResort.h"

#include "platform/Win32Prompts.h"

#include <exception>

int RunWithLastResort(const std::function<int()>& program, const std::string& title) {
    try {
        return program();
    } catch (const std::exception& error) {
        Win32Prompts([] {
            return HWND();
        }).ShowMessage(error.what(), MessageStyle::Critical, title);
        return 1;
    }
}
