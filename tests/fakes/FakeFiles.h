#pragma once

#include "common/FileNames.h"
#include "common/ports/Files.h"
#include "common/ports/Folders.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// A file system in memory.  Each step can be made to fail, and every step is counted, so that a
// test can let the n-th one fail or end the process there.
class FakeFiles : public Files, public Folders {
public:
    // Thrown by the step at which the process "is killed".
    struct Killed {};

    // FromHereOn: every later step fails as well, as when a medium goes away.
    enum class FailureKind { Reported, FromHereOn, Killed };

    // The step with this number (from 1) fails; 0: none does.
    void FailAtStep(int step, FailureKind kind) {
        failingStep_ = step;
        kind_ = kind;
        steps_ = 0;
    }
    [[nodiscard]] int Steps() const { return steps_; }

    std::string FindNormalFile(const std::string& path) override {
        const auto found = contents.find(path);
        return found == contents.end() ? std::string() : path.substr(path.rfind('\\') + 1);
    }
    bool Exists(const std::string& path) override { return contents.contains(path); }
    bool AreSame(const std::string& path, const std::string& other) override {
        const auto name = otherNames.find(path);
        return Exists(other) &&
               (path == other || (name != otherNames.end() && name->second == other));
    }
    std::optional<std::string> ReadWhole(const std::string& path) override {
        const auto found = contents.find(path);
        if (found == contents.end() || unreadable.contains(path))
            return {};
        return found->second;
    }
    bool IsTaken(const std::string& path) override {
        return contents.contains(path) || folders.contains(path);
    }
    std::unique_ptr<OutputFile> Create(const std::string& path) override {
        if (Fails() || IsTooLong(path) || IsTaken(path))
            return nullptr;
        contents[path].clear();
        return std::make_unique<Output>(*this, path);
    }
    bool Rename(const std::string& from, const std::string& to) override {
        return !Fails() && !IsTaken(to) && Move(from, to);
    }
    bool Replace(const std::string& from, const std::string& to) override {
        return !Fails() && !locked.contains(to) && Move(from, to);
    }
    Exchanged Exchange(const std::string& from, const std::string& to,
                       const std::string& backup) override {
        if (Fails() || locked.contains(to) || locked.contains(backup))
            return Exchanged::Unchanged;
        if (exchanges == Exchanged::NotSupported || exchanges == Exchanged::Unchanged)
            return exchanges;
        if (!backup.empty() && !Move(to, backup))
            return Exchanged::Unchanged;
        contents.erase(to);
        if (exchanges == Exchanged::Done)
            static_cast<void>(Move(from, to));
        else if (!newcomer.empty())
            contents[to] = newcomer;
        return exchanges;
    }
    bool Remove(const std::string& path) override { return !Fails() && contents.erase(path) > 0; }

    std::unique_ptr<FileTurn> TakeTurn(const std::string& path) override {
        if (onTurn)
            onTurn(path);
        return std::make_unique<Turn>(*this);
    }

    bool Make(const std::string& path) override {
        if (Fails() || contents.contains(path))
            return false;
        folders[path] = true;
        return true;
    }
    std::vector<std::string> FileNamesIn(const std::string& path) override {
        std::vector<std::string> names;
        for (const auto& [file, content] : contents)
            if (FilePathPart(file) == path + "\\")
                names.push_back(FileNamePart(file));
        return names;
    }

    std::map<std::string, std::string> contents;   // by path
    std::map<std::string, std::string> otherNames; // and the path that each leads to
    std::map<std::string, bool> unreadable;        // paths that cannot be read
    std::map<std::string, bool> locked;            // paths that cannot be renamed or replaced
    std::map<std::string, bool> folders;           // paths of folders
    Exchanged exchanges = Exchanged::Done;         // how far an exchange that does not fail comes
    std::string newcomer; // what somebody else puts in the place that an exchange left empty

    std::function<void(const std::string&)> onTurn; // when a turn with a path has come
    std::function<void()> onTurnOver;

private:
    class Turn : public FileTurn {
    public:
        explicit Turn(FakeFiles& files) : files_(files) {}
        ~Turn() override {
            if (files_.onTurnOver)
                files_.onTurnOver();
        }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        FakeFiles& files_;
    };
    class Output : public OutputFile {
    public:
        Output(FakeFiles& files, std::string path) : files_(files), path_(std::move(path)) {}
        bool Write(std::string_view bytes) override {
            // A failing disk takes a part of the bytes.
            const bool fails = files_.Fails();
            files_.contents[path_] += bytes.substr(0, fails ? bytes.size() / 2 : bytes.size());
            return !fails;
        }
        bool Flush() override { return !files_.Fails(); }
        bool Close() override { return !files_.Fails(); }

    private:
        FakeFiles& files_;
        std::string path_;
    };

    bool Move(const std::string& from, const std::string& to) {
        if (IsTooLong(to) || !contents.contains(from) || locked.contains(from))
            return false;
        contents[to] = contents.at(from);
        contents.erase(from);
        return true;
    }

    // No file system that matters has longer names.
    static bool IsTooLong(const std::string& path) { return FileNamePart(path).size() > 255; }

    bool Fails() {
        ++steps_;
        const bool later = kind_ == FailureKind::FromHereOn && failingStep_ > 0;
        if (later ? steps_ < failingStep_ : steps_ != failingStep_)
            return false;
        if (kind_ == FailureKind::Killed)
            throw Killed{};
        return true;
    }

    int failingStep_ = 0;
    FailureKind kind_ = FailureKind::Reported;
    int steps_ = 0;
};
