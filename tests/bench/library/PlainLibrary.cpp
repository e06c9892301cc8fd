#include "tests/bench/library/PlainLibrary.h"

#include <charconv>
#include <cstring>
#include <stdexcept>

namespace {

constexpr char kDivision = '\xF7';

std::string NumberedName(const char* start, int number) {
    const std::string digits = std::to_string(number);
    return start + std::string(8 - digits.size(), '0') + digits;
}

// The same sequence on every platform.
class Random {
public:
    int Below(int bound) {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((state_ >> 33U) % static_cast<unsigned>(bound));
    }

private:
    std::uint64_t state_ = 1;
};

// What is left of a line, field by field.
class Fields {
public:
    explicit Fields(std::string_view line) : rest_(line) {}
    std::string_view Next(char separator) {
        const std::size_t end = rest_.find(separator);
        const std::string_view field = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        return field;
    }

private:
    std::string_view rest_;
};

std::int64_t SumOfValues(std::string_view record) {
    Fields fields(record);
    const std::string_view name = fields.Next('=');
    const std::string_view group = fields.Next(':');
    const std::string_view altName = fields.Next(kDivision);
    auto sum = static_cast<std::int64_t>(name.size() + group.size() + altName.size());
    for (std::size_t index = 0; index < kColorValueCount; ++index) {
        const std::string_view text = fields.Next(kDivision);
        std::int16_t value = 0;
        if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc())
            throw std::runtime_error("Not a number");
        sum += value;
    }
    return sum;
}

void AppendNumber(std::string& content, int number) {
    char digits[12];
    content.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

void AppendColor(std::string& content, const PlainColor& color) {
    content.append("\"E#").append(color.name).append("=0DG");
    AppendNumber(content, color.group + 1);
    content.append(":").append(color.name);
    for (const std::int16_t value : color.values) {
        content += kDivision;
        AppendNumber(content, value);
    }
    content.append("\"\r\n");
}

} // namespace

PlainLibrary MakePlainLibrary(int colors, int groups) {
    PlainLibrary library;
    for (int group = 1; group <= groups; ++group)
        library.groups.push_back(NumberedName("Gruppe  ", group));
    Random random;
    for (int color = 1; color <= colors; ++color) {
        // One name in ten has an umlaut.
        PlainColor made{NumberedName(color % 10 == 0 ? "Gr\xFCnton " : "Farbton ", color),
                        random.Below(groups),
                        {}};
        for (std::size_t index = 0; index < kColorValueCount; ++index)
            made.values[index] =
                static_cast<std::int16_t>(random.Below(MaximumOfColorValue(index) + 1));
        library.colors.push_back(std::move(made));
    }
    return library;
}

std::int64_t ReadPlainly(Files& files, const std::string& path) {
    const std::string content = files.ReadWhole(path).value();
    Fields lines(content);
    std::int64_t sum = 0;
    for (std::string_view line = lines.Next('\n'); !line.empty(); line = lines.Next('\n'))
        if (line.substr(0, 3) == "\"E#")
            sum += SumOfValues(line.substr(3, line.size() - 5)); // without quote and CR
    return sum;
}

void WritePlainly(Files& files, const std::string& path, const PlainLibrary& library) {
    std::string content = "\"D#Bench=0D:";
    AppendNumber(content, static_cast<int>(library.groups.size() + library.colors.size()));
    content += "\"\r\n";
    int group = 0;
    for (const std::string& name : library.groups) {
        content.append("\"G#").append(name).append("=0DG");
        AppendNumber(content, ++group);
        content += "\"\r\n";
    }
    for (const PlainColor& color : library.colors)
        AppendColor(content, color);
    files.Remove(path); // a file is made anew only where none has its name
    const auto file = files.Create(path);
    if (!file || !file->Write(content) || !file->Flush() || !file->Close())
        throw std::runtime_error("Cannot write " + path);
}
