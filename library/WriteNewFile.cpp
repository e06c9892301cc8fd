#include "library/WriteNewFile.h"

namespace {

constexpr int kMostChoices = 1000;

bool WriteAll(OutputFile& file, std::string_view content) {
    const bool written = file.Write(content) && file.Flush();
    return file.Close() && written;
}

} // namespace

std::optional<std::string> WriteNewFile(Files& files, const PathChoices& choices,
                                        std::string_view content) {
    for (int number = 1; number <= kMostChoices; ++number) {
        const std::string path = choices(number);
        const std::unique_ptr<OutputFile> file = files.IsTaken(path) ? nullptr : files.Create(path);
        if (file && WriteAll(*file, content))
            return path;
        if (file)
            files.Remove(path);
        // A name that was taken just now is no reason to give up.
        if (file || !files.IsTaken(path))
            return {};
    }
    return {};
}
