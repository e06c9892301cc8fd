#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>

namespace {

constexpr const char* kFile = "a.tnt";

// A name that the format keeps: no separator and no line end.
std::string Name(FuzzedDataProvider& source, const AnsiCodePage& codePage) {
    std::string bytes = source.ConsumeRandomLengthString(12);
    std::erase_if(bytes, [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        const bool hasMeaning = byte < 0x80 || byte >= 0xA0;
        return !hasMeaning || character == '=' || character == ':' || character == '\xF7' ||
               character == '\r' || character == '\n';
    });
    return codePage.Decode(bytes);
}

void MakeLibrary(LibraryOnFakes& fuzz, FuzzedDataProvider& source) {
    fuzz.library.NewMainNode(Name(source, fuzz.codePage));
    const int groups = source.ConsumeIntegralInRange(1, 4);
    for (int group = 0; group < groups; ++group)
        fuzz.library.NewGroupNode("0D", Name(source, fuzz.codePage));
    while (source.remaining_bytes() > 0) {
        for (std::int16_t& value : fuzz.host.activeValues)
            value = source.ConsumeIntegral<std::int16_t>();
        const int group = source.ConsumeIntegralInRange(1, groups);
        fuzz.library.NewColorNode("0DG" + std::to_string(group), Name(source, fuzz.codePage));
    }
}

bool SameButForKeys(ColorRecord left, const ColorRecord& right) {
    left.key = right.key;
    left.isNew = right.isNew;
    return left == right;
}

} // namespace

// A random library survives saving and loading, and a second save gives the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider source(data, size);
    LibraryOnFakes first;
    MakeLibrary(first, source);
    Require(first.libraryFiles.FileWriteColorValues(kFile, "0D"));

    LibraryOnFakes second;
    second.files.contents = first.files.contents;
    Require(second.libraryFiles.FileReadColorValues(kFile));
    Require(second.library.Tree().At("0D").text == first.library.Tree().At("0D").text);
    Require(second.library.Colors().UpperBound() == first.library.Colors().UpperBound());
    for (int index = 1; index <= first.library.Colors().UpperBound(); ++index)
        Require(
            SameButForKeys(first.library.Colors().At(index), second.library.Colors().At(index)));
    Require(second.libraryFiles.FileWriteColorValues(kFile, "0D"));
    Require(second.files.contents.at(kFile) == first.files.contents.at(kFile));
    return 0;
}
