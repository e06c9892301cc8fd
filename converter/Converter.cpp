#include "converter/Converter.h"

#include "converter/ListedColors.h"
#include "converter/TerminalProgress.h"
#include "library/SafeFileWriter.h"

#include <exception>
#include <utility>

namespace {

// A line of standard error.
std::string Told(const std::string& about, const std::string& what) {
    std::string line = "tnt-convert: ";
    return line.append(about).append(": ").append(what).append("\n");
}

// A file's name without its folder and its ending.
std::string StemOf(const std::string& path) {
    const std::string name = path.substr(path.find_last_of("/\\") + 1); // npos + 1 is 0
    return name.substr(0, name.rfind('.'));
}

void NoteChangedColors(Notes& notes, const ReadColors& colors) {
    AddNote(notes, "colors with values beyond their range, brought into it", colors.changedColors);
}

std::string Description(const ReadColors& colors) {
    return "kind: " + NameOfKind(colors.kind) + "\nname: " + OnALine(colors.palette.name) +
           "\ngroups: " + std::to_string(colors.palette.groups.size()) +
           "\ncolors: " + std::to_string(colors.palette.entries.size()) + "\n";
}

} // namespace

ExitCode Converter::Run() {
    codePage_ = platform_.codePageOf(asked_.codePage);
    if (!codePage_)
        return Refuse(ExitCode::WrongUsage, "--code-page",
                      std::to_string(asked_.codePage.value_or(0)) + " is not known here");
    return asked_.task == ConverterArguments::Task::Convert ? Convert() : Describe();
}

ExitCode Converter::Convert() {
    const std::optional<FileKind> kind = KindOfEnding(asked_.out);
    if (!kind)
        return Refuse(ExitCode::WrongUsage, asked_.out,
                      "the ending is none of .tnt, .gpl, .ase, .aco, .csv, .txt");
    if (!asked_.force && platform_.files.IsTaken(asked_.out))
        return Refuse(ExitCode::NotWritten, asked_.out, "exists; --force replaces it");
    std::optional<ReadColors> colors = Read();
    return colors ? Write(Compose(*colors, *kind)) : ExitCode::Unreadable;
}

ExitCode Converter::Describe() {
    std::optional<ReadColors> colors = Read();
    if (!colors)
        return ExitCode::Unreadable;
    FillIn(colors->palette, asked_.values);
    Notes notes;
    NoteChangedColors(notes, *colors);
    Tell(asked_.in, notes);
    const bool isList = asked_.task == ConverterArguments::Task::List;
    if (!platform_.console.Write(isList ? ListedColors(colors->palette) : Description(*colors)))
        return Refuse(ExitCode::NotWritten, "standard output", "cannot be written");
    return Verdict();
}

std::optional<ReadColors> Converter::Read() {
    const std::optional<std::string> bytes = platform_.files.ReadWhole(asked_.in);
    if (!bytes) {
        static_cast<void>(Refuse(ExitCode::Unreadable, asked_.in, "cannot be read"));
        return {};
    }
    std::optional<ReadColors> colors = Understand(*bytes);
    if (colors)
        Tell(asked_.in, colors->notes);
    else
        static_cast<void>(Refuse(ExitCode::Unreadable, asked_.in,
                                 "is neither a color library nor a palette that is known"));
    return colors;
}

std::optional<ReadColors> Converter::Understand(const std::string& bytes) {
    TerminalProgress progress(platform_.console, "reading");
    return ReadAnyColors(bytes, *codePage_, progress);
}

WrittenColors Converter::Compose(ReadColors& colors, const FileKind& kind) {
    WritingWishes wishes{asked_.name.value_or(colors.palette.name), asked_.values};
    if (!kind.palette) {
        if (wishes.name.empty() && !asked_.name)
            wishes.name = StemOf(asked_.in);
        TerminalProgress progress(platform_.console, "writing");
        return WriteAsLibrary(colors, *codePage_, wishes, progress);
    }
    WrittenColors written = WriteAsPalette(colors, *kind.palette, wishes);
    NoteChangedColors(written.notes, colors);
    return written;
}

ExitCode Converter::Write(const WrittenColors& written) {
    const Exchanged outcome = asked_.force ? Replace(written.bytes) : WriteNew(written.bytes);
    if (outcome == Exchanged::OldIsGone)
        return Refuse(ExitCode::NotWritten, asked_.out,
                      "is gone; the new content is beside it, whole, with .saving in its name");
    if (outcome != Exchanged::Done)
        return Refuse(ExitCode::NotWritten, asked_.out, "cannot be written");
    Tell(asked_.out, written.notes);
    return Verdict();
}

Exchanged Converter::WriteNew(const std::string& bytes) {
    return SafeFileWriter(platform_.files).WriteNew(asked_.out, bytes) ? Exchanged::Done
                                                                       : Exchanged::Unchanged;
}

// Not while the program with the window saves that file.
Exchanged Converter::Replace(const std::string& bytes) {
    std::unique_ptr<FileTurn> turn;
    return SafeFileWriter(platform_.files).Write(asked_.out, bytes, false, [&] {
        turn = platform_.files.TakeTurn(asked_.out);
        return true;
    });
}

ExitCode Converter::Refuse(ExitCode exitCode, const std::string& about, const std::string& why) {
    platform_.console.Tell(Told(about, why));
    return exitCode;
}

void Converter::Tell(const std::string& path, const Notes& notes) {
    isLossy_ = isLossy_ || !notes.empty();
    for (const std::string& note : notes)
        platform_.console.Tell(Told(path, note));
}

ExitCode RunConverter(const std::vector<std::string>& arguments, const std::string& version,
                      const ConverterPlatform& platform) {
    try {
        const std::variant<ConverterArguments, ConverterReply> parsed =
            ParseConverterArguments(arguments, version);
        if (const auto* asked = std::get_if<ConverterArguments>(&parsed))
            return Converter(platform, *asked).Run();
        const auto& reply = std::get<ConverterReply>(parsed);
        if (reply.exitCode == ExitCode::Done)
            return platform.console.Write(reply.text) ? ExitCode::Done : ExitCode::NotWritten;
        platform.console.Tell(reply.text);
        return reply.exitCode;
    } catch (const std::exception& error) {
        platform.console.Tell(Told("error", error.what()));
        return ExitCode::Failed;
    }
}
