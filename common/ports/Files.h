#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

// A file that is being written.  Destroying it without Close discards nothing by itself.
class OutputFile {
public:
    virtual ~OutputFile() = default;

    // Each returns false when the platform reports a failure (disk full, lost connection, ...).
    [[nodiscard]] virtual bool Write(std::string_view bytes) = 0;
    [[nodiscard]] virtual bool Flush() = 0; // down to the medium
    [[nodiscard]] virtual bool Close() = 0;
};

// The turn of one process with a file; it ends with this object, or with the process.
class FileTurn {
public:
    FileTurn() = default;
    FileTurn(const FileTurn&) = delete;
    FileTurn& operator=(const FileTurn&) = delete;
    virtual ~FileTurn() = default;
};

// What became of a file that was to take another's place.
enum class Exchanged {
    Done,
    Unchanged,    // both have their names
    OldIsBackup,  // only the first half: the old file has its backup name, the new one its own
    OldIsGone,    // the old file is not there any more, the new one has its own name still
    NotSupported, // nothing changed: the file system cannot do it in one call
};

// The file system.  Paths are UTF-8; contents are bytes.  Every failure is a result, never an
// exception.
class Files {
public:
    virtual ~Files() = default;

    // The name of the first normal file (no directory, not hidden, not system) that matches the
    // path; its last component may hold wildcards.  Empty when there is none or on any error.
    [[nodiscard]] virtual std::string FindNormalFile(const std::string& path) = 0;

    // True for a file of any attributes under exactly this name; false for a directory.
    [[nodiscard]] virtual bool Exists(const std::string& path) = 0;

    // Whether both names lead to one file that is there: in another letter case, by a short name,
    // by a link or by way of a shared folder.  True also for two files of which
    // nobody can tell.
    [[nodiscard]] virtual bool AreSame(const std::string& path, const std::string& other) = 0;

    // The whole content; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> ReadWhole(const std::string& path) = 0;

    // True when anything has this name: a file of any attributes, a folder.
    [[nodiscard]] virtual bool IsTaken(const std::string& path) = 0;

    // A new empty file.  Null when it cannot be made, also because its name is taken.
    [[nodiscard]] virtual std::unique_ptr<OutputFile> Create(const std::string& path) = 0;

    // Gives the file another name in one step.  False also when that name is taken, or the file is
    // marked read-only.
    [[nodiscard]] virtual bool Rename(const std::string& from, const std::string& to) = 0;

    // As Rename, but a file that has that name already is replaced, if it is not marked read-only.
    [[nodiscard]] virtual bool Replace(const std::string& from, const std::string& to) = 0;

    // Puts a new file in the place of an existing one, from which it takes over what belongs to the
    // place: access rights, creation time, attributes, alternate streams.  backup: the name that
    // the old file gets, replacing a file of that name; empty: the old file goes.  Unchanged also
    // when one of the files that would go is marked read-only.
    [[nodiscard]] virtual Exchanged Exchange(const std::string& from, const std::string& to,
                                             const std::string& backup) = 0;

    virtual bool Remove(const std::string& path) = 0;

    // Waits until this process is the only one that has its turn with the file, also where others
    // work on it from other computers.  It binds those alone that ask for theirs.  Null: there is
    // none, or it did not come within a few seconds.
    [[nodiscard]] virtual std::unique_ptr<FileTurn> TakeTurn(const std::string& path) = 0;
};
