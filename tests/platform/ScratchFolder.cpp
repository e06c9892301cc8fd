#include "tests/platform/ScratchFolder.h"

#include "platform/Utf16.h"

#include <atomic>
#include <fstream>
#include <iterator>
#include <windows.h>

ScratchFolder::ScratchFolder() {
    static std::atomic<int> number = 0;
    folder_ = std::filesystem::temp_directory_path() /
              ("tnt" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number));
    std::filesystem::create_directories(folder_);
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string ScratchFolder::Path() const {
    return ToUtf8(std::filesystem::path(folder_).make_preferred().wstring());
}

std::string ScratchFolder::File(std::string_view name) const {
    return Path() + "\\" + std::string(name);
}

void ScratchFolder::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(std::filesystem::path(ToUtf16(File(name))), std::ios::binary) << bytes;
}

std::string ScratchFolder::Read(std::string_view name) const {
    std::ifstream file(std::filesystem::path(ToUtf16(File(name))), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void ScratchFolder::SetAttributes(std::string_view name, unsigned long attributes) const {
    SetFileAttributesW(ToUtf16(File(name)).c_str(), attributes);
}
