#include "palettes/PaletteFormat.h"
#include "palettes/PaletteLimits.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

constexpr int kMostMeasured = 100000;

// Names of 12 to 17 characters, a few with letters beyond ASCII; ten groups.
Palette MadePalette(std::size_t count, bool hasMaterials) {
    std::mt19937 random(7);
    const auto number = [&](int most) {
        return static_cast<std::int16_t>(std::uniform_int_distribution<int>(0, most)(random));
    };
    Palette palette;
    for (int group = 0; group < 10; ++group)
        palette.groups.push_back("Group " + std::to_string(group));
    for (std::size_t index = 0; index < count; ++index) {
        PaletteEntry entry;
        entry.name = (index % 20 == 0 ? "Grünton " : "Color no ") + std::to_string(1000 + index);
        entry.group = static_cast<PaletteGroup>(index * palette.groups.size() / count);
        for (std::size_t value = 0; value < (hasMaterials ? kColorValueCount : 3); ++value)
            entry.Set(value, number(MaximumOfColorValue(value)));
        palette.entries.push_back(entry);
    }
    return palette;
}

// The least that a reader of a text does: looks at each byte, finds the lines and adds the numbers
// up.
std::int64_t PassText(std::string_view bytes) {
    std::int64_t sum = 0;
    std::int64_t number = 0;
    for (const char byte : bytes) {
        if (byte >= '0' && byte <= '9') {
            number = number * 10 + (byte - '0');
            continue;
        }
        sum += number + (byte == '\n' ? 1 : 0);
        number = 0;
    }
    return sum;
}

class PlainBytes {
public:
    explicit PlainBytes(std::string_view bytes) : bytes_(bytes) {}
    [[nodiscard]] bool IsAtEnd() const { return place_ >= bytes_.size(); }
    std::uint32_t Number(int size) {
        std::uint32_t number = 0;
        while (size-- > 0)
            number = number << 8U | static_cast<unsigned char>(bytes_[place_++]);
        return number;
    }
    std::int64_t Units(std::uint32_t count) {
        std::int64_t sum = 0;
        while (count-- > 0)
            sum += Number(2);
        return sum;
    }

private:
    std::string_view bytes_;
    std::size_t place_ = 0;
};

// Finds the blocks and adds up the units of their names and the colors' numbers.
std::int64_t PassSwatchExchange(std::string_view bytes) {
    PlainBytes file(bytes.substr(12));
    double sum = 0;
    while (!file.IsAtEnd()) {
        const std::uint32_t type = file.Number(2);
        if (file.Number(4) == 0)
            continue;
        sum += static_cast<double>(file.Units(file.Number(2)));
        if (type != 1)
            continue;
        sum += file.Number(4);
        for (int component = 0; component < 3; ++component)
            sum += std::bit_cast<float>(file.Number(4));
        sum += file.Number(2);
    }
    return static_cast<std::int64_t>(sum);
}

std::int64_t PassAdobeColor(std::string_view bytes) {
    PlainBytes file(bytes);
    std::int64_t sum = 0;
    while (!file.IsAtEnd()) {
        const bool hasNames = file.Number(2) == 2;
        for (std::uint32_t left = file.Number(2); left > 0; --left) {
            sum += file.Units(5);
            if (hasNames)
                sum += file.Units(file.Number(4));
        }
    }
    return sum;
}

class AsciiPage : public AnsiCodePage {
public:
    std::string Decode(std::string_view bytes) const override { return std::string(bytes); }
    Encoded Encode(std::string_view utf8) const override { return {std::string(utf8), {}}; }
};

struct Measured {
    const char* name;
    PaletteFormat format;
    std::int64_t (*pass)(std::string_view);
    std::size_t most; // entries
};

void Measure(const Measured& format, const BenchSizes& sizes) {
    const std::size_t wanted = static_cast<std::size_t>(std::min(sizes.largest, kMostMeasured));
    const Palette palette =
        MadePalette(std::min(wanted, format.most), format.format == PaletteFormat::Table);
    const std::string bytes = WritePalette(palette, format.format).bytes;
    Times floor;
    Times reading;
    Times writing;
    std::int64_t sum = 0;
    for (int repetition = 0; repetition <= 2 * sizes.repetitions; ++repetition) {
        floor.Measure([&] { sum += format.pass(bytes); });
        PaletteReading read;
        reading.Measure([&] { read = ReadPalette(bytes, AsciiPage()); });
        if (read.palette.entries.size() != palette.entries.size() || !read.faults.IsNothing())
            throw std::runtime_error("The palette was not read");
    }
    for (int repetition = 0; repetition <= 2 * sizes.repetitions; ++repetition)
        writing.Measure([&] { sum += WritePalette(palette, format.format).bytes.back(); });
    if (sum == 0)
        throw std::runtime_error("The floor read nothing");
    std::printf("| %s | %zu | %zu | %.2f | %.2f | %.2f | %.2f |\n", format.name,
                palette.entries.size(), bytes.size() / 1024, floor.Median(), reading.Median(),
                reading.Median() / floor.Median(), writing.Median());
}

} // namespace

void ReportPalettes(const BenchSizes& sizes) {
    std::printf("\n| palette | colors | KiB | plain pass, ms | read, ms | ratio | write, ms |\n"
                "| --- | --- | --- | --- | --- | --- | --- |\n");
    constexpr std::size_t kAny = kMostMeasured;
    for (const Measured& format :
         {Measured{".gpl", PaletteFormat::Gimp, PassText, kAny},
          Measured{".ase", PaletteFormat::SwatchExchange, PassSwatchExchange, kAny},
          Measured{".aco", PaletteFormat::AdobeColor, PassAdobeColor,
                   PaletteLimits::kMostOfAnAdobeColorFile},
          Measured{".csv", PaletteFormat::Table, PassText, kAny}})
        Measure(format, sizes);
    std::printf("\n");
}
