#include "common/SingleByteCodePage.h"
#include "tests/bench/library/BenchPlatform.h"
#include "tests/bench/library/Timing.h"

#include <cstdio>
#include <ctime>
#include <filesystem>

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

class StandardOutputFile : public OutputFile {
public:
    explicit StandardOutputFile(OpenFile file) : file_(std::move(file)) {}
    bool Write(std::string_view bytes) override {
        return std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
    }
    bool Flush() override { return std::fflush(file_.get()) == 0; }
    bool Close() override { return std::fclose(file_.release()) == 0; }

private:
    OpenFile file_;
};

class StandardFiles : public Files {
public:
    std::unique_ptr<FileTurn> TakeTurn(const std::string&) override { return nullptr; }
    std::string FindNormalFile(const std::string& path) override {
        return Exists(path) ? std::filesystem::path(path).filename().string() : std::string();
    }
    bool Exists(const std::string& path) override { return std::filesystem::exists(path); }
    bool AreSame(const std::string& path, const std::string& other) override {
        std::error_code error;
        return std::filesystem::equivalent(path, other, error);
    }
    std::optional<std::string> ReadWhole(const std::string& path) override {
        const OpenFile file(std::fopen(path.c_str(), "rb"));
        if (!file)
            return {};
        std::string content(std::filesystem::file_size(path), '\0');
        content.resize(std::fread(content.data(), 1, content.size(), file.get()));
        return content;
    }
    bool IsTaken(const std::string& path) override { return Exists(path); }
    std::unique_ptr<OutputFile> Create(const std::string& path) override {
        OpenFile file(std::fopen(path.c_str(), "wbx"));
        if (!file)
            return nullptr;
        return std::make_unique<StandardOutputFile>(std::move(file));
    }
    bool Rename(const std::string& from, const std::string& to) override {
        return !Exists(to) && Replace(from, to);
    }
    Exchanged Exchange(const std::string&, const std::string&, const std::string&) override {
        return Exchanged::NotSupported;
    }
    bool Replace(const std::string& from, const std::string& to) override {
        std::error_code error;
        std::filesystem::rename(from, to, error);
        return !error;
    }
    bool Remove(const std::string& path) override {
        std::error_code error;
        return std::filesystem::remove(path, error);
    }
};

std::string CharacterOf(unsigned char byte) {
    if (byte < 0x80)
        return std::string(1, static_cast<char>(byte));
    return {static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
}

} // namespace

struct BenchPlatform::Parts {
    StandardFiles files;
    SingleByteCodePage codePage{CharacterOf, [](unsigned char) { return true; }};
};

BenchPlatform::BenchPlatform() : parts_(std::make_unique<Parts>()) {}
BenchPlatform::~BenchPlatform() = default;

Files& BenchPlatform::FileSystem() {
    return parts_->files;
}
const AnsiCodePage& BenchPlatform::CodePage() const {
    return parts_->codePage;
}
ProgressView* BenchPlatform::ProgressWindow() {
    return nullptr;
}
std::string BenchPlatform::Folder() const {
    return (std::filesystem::temp_directory_path() / "").string();
}

double ProcessorMilliseconds() {
    return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}
