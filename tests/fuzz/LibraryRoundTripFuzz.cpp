#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <string_view>

namespace {

constexpr const char* kFile = "a.tnt";

// Names that the format keeps: a ":" may stand in them, an "=" and the sign between the values may
// not.  A line end can be typed nowhere.
constexpr const char* kKept = "\r\n=\xF7";
constexpr const char* kAnything = "\r\n";

std::string Name(FuzzedDataProvider& source, const AnsiCodePage& codePage, const char* without) {
    std::string bytes = source.ConsumeRandomLengthString(12);
    std::erase_if(bytes, [&](char character) {
        const auto byte = static_cast<unsigned char>(character);
        const bool hasMeaning = byte < 0x80 || byte >= 0xA0;
        return !hasMeaning || std::string_view(without).find(character) != std::string_view::npos;
    });
    return codePage.Decode(bytes);
}

void MakeLibrary(LibraryOnFakes& fuzz, FuzzedDataProvider& source, const char* without) {
    fuzz.library.NewMainNode(Name(source, fuzz.codePage, without));
    const int groups = source.ConsumeIntegralInRange(1, 4);
    for (int group = 0; group < groups; ++group)
        fuzz.library.NewGroupNode("0D", Name(source, fuzz.codePage, without));
    while (source.remaining_bytes() > 0) {
        ColorValueArray values{};
        for (std::int16_t& value : values)
            value = source.ConsumeIntegral<std::int16_t>();
        const int group = source.ConsumeIntegralInRange(1, groups);
        fuzz.library.NewColorNode("0DG" + std::to_string(group),
                                  Name(source, fuzz.codePage, without), values);
    }
}

bool SameButForKeys(ColorRecord left, const ColorRecord& right) {
    left.key = right.key;
    left.isNew = right.isNew;
    return left == right;
}

void RequireSameLibraries(const LibraryOnFakes& left, const LibraryOnFakes& right) {
    Require(left.library.Tree().At("0D").text == right.library.Tree().At("0D").text);
    const auto groups = left.library.GetGroupInMainnode("0D");
    Require(groups == right.library.GetGroupInMainnode("0D"));
    for (const std::string& group : groups)
        Require(left.library.Tree().At(group).text == right.library.Tree().At(group).text);
    const ColorTable& colors = left.library.Colors();
    Require(colors.UpperBound() == right.library.Colors().UpperBound());
    for (int index = 1; index <= colors.UpperBound(); ++index)
        Require(SameButForKeys(colors.At(index), right.library.Colors().At(index)));
}

// Another program reads the file and writes it again.
void RequireSameBytesFromASecondSave(LibraryOnFakes& saved) {
    LibraryOnFakes second;
    second.files.contents = saved.files.contents;
    Require(second.libraryFiles.FileReadColorValues(kFile));
    RequireSameLibraries(saved, second);
    Require(second.libraryFiles.FileWriteColorValues(kFile, "0D").isWritten);
    Require(second.files.contents.at(kFile) == saved.files.contents.at(kFile));
}

// The file may read as another library or be refused; what was taken from it survives from then on.
void RequireStableAfterOneReading(const LibraryOnFakes& saved) {
    LibraryOnFakes reader;
    reader.files.contents = saved.files.contents;
    const bool loaded = reader.libraryFiles.FileReadColorValues(kFile);
    Require(loaded == reader.prompts.messages.empty());
    if (reader.library.Tree().MainNodes().empty() ||
        reader.library.GetGroupInMainnode("0D").empty())
        return;
    Require(reader.libraryFiles.FileWriteColorValues(kFile, "0D").isWritten);
    RequireSameBytesFromASecondSave(reader);
}

} // namespace

// A random library survives saving and loading, and a second save gives the same bytes.  One
// input in two makes names that hold separators, which the format does not keep.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider source(data, size);
    const bool hasSeparators = source.ConsumeBool();
    LibraryOnFakes first;
    MakeLibrary(first, source, hasSeparators ? kAnything : kKept);
    Require(first.libraryFiles.FileWriteColorValues(kFile, "0D").isWritten);
    if (hasSeparators)
        RequireStableAfterOneReading(first);
    else
        RequireSameBytesFromASecondSave(first);
    return 0;
}
