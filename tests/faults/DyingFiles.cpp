#include "tests/faults/DyingFiles.h"

#include <cstdlib>
#include <utility>
#include <windows.h>

namespace {

class DyingOutput : public OutputFile {
public:
    DyingOutput(DyingFiles& files, std::unique_ptr<OutputFile> file)
        : files_(files), file_(std::move(file)) {}

    bool Write(std::string_view bytes) override {
        if (files_.IsLastStep()) {
            static_cast<void>(file_->Write(bytes.substr(0, bytes.size() / 2)));
            DyingFiles::Die();
        }
        return file_->Write(bytes);
    }
    bool Flush() override {
        if (files_.IsLastStep())
            DyingFiles::Die();
        return file_->Flush();
    }
    bool Close() override {
        if (files_.IsLastStep())
            DyingFiles::Die();
        return file_->Close();
    }

private:
    DyingFiles& files_;
    std::unique_ptr<OutputFile> file_;
};

} // namespace

// As the task manager ends a program: nothing is unwound and nothing is flushed.
void DyingFiles::Die() {
    TerminateProcess(GetCurrentProcess(), kExitCode);
    std::abort(); // not reached
}

std::unique_ptr<OutputFile> DyingFiles::Create(const std::string& path) {
    if (IsLastStep())
        Die();
    std::unique_ptr<OutputFile> file = files_.Create(path);
    return file != nullptr ? std::make_unique<DyingOutput>(*this, std::move(file)) : nullptr;
}

bool DyingFiles::Rename(const std::string& from, const std::string& to) {
    if (IsLastStep())
        Die();
    return files_.Rename(from, to);
}

// Two steps: the platform's own call can end in its middle too.
Exchanged DyingFiles::Exchange(const std::string& from, const std::string& to,
                               const std::string& backup) {
    if (IsLastStep())
        Die();
    if (IsLastStep()) {
        if (!backup.empty())
            static_cast<void>(files_.Replace(to, backup));
        Die();
    }
    return files_.Exchange(from, to, backup);
}

bool DyingFiles::Replace(const std::string& from, const std::string& to) {
    if (IsLastStep())
        Die();
    return files_.Replace(from, to);
}

bool DyingFiles::Remove(const std::string& path) {
    if (IsLastStep())
        Die();
    return files_.Remove(path);
}
