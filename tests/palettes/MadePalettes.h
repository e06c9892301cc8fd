#pragma once

#include "palettes/Palette.h"

#include <random>
#include <string>

// An entry with a color alone.
[[nodiscard]] inline PaletteEntry MadeEntry(const std::string& name, const RedGreenBlue& color,
                                            PaletteGroup group = kNoGroup) {
    PaletteEntry entry;
    entry.name = name;
    entry.group = group;
    entry.SetColor(color);
    return entry;
}

// Palettes with everything that every format holds: names, and red, green and blue.
class MadePalettes {
public:
    explicit MadePalettes(unsigned seed) : random_(seed) {}

    [[nodiscard]] int Number(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random_);
    }
    [[nodiscard]] std::string Name() {
        static const char* const kParts[] = {
            "Rot", "grün", "Ωmega", " ", "RAL 1018", "\"", ",",  ";", "#",   "😀",
            "'",   "0",    "-",     "=", "\xC3\xB7", "Ж",  "\\", ":", "日本"};
        std::string name = "N";
        for (int left = Number(0, 6); left > 0; --left)
            name += kParts[Number(0, static_cast<int>(std::size(kParts)) - 1)];
        return name + "n";
    }
    [[nodiscard]] RedGreenBlue Color() { return {Number(0, 255), Number(0, 255), Number(0, 255)}; }

    [[nodiscard]] Palette WithoutGroups() {
        Palette palette;
        for (int left = Number(0, 40); left > 0; --left)
            palette.entries.push_back(MadeEntry(Name(), Color()));
        return palette;
    }
    // Those without a group first, then group by group; names of groups differ.
    [[nodiscard]] Palette WithGroups() {
        Palette palette = WithoutGroups();
        const int groups = Number(0, 5);
        for (int group = 0; group < groups; ++group) {
            palette.groups.push_back(Name() + std::to_string(group));
            for (int left = Number(1, 8); left > 0; --left)
                palette.entries.push_back(
                    MadeEntry(Name(), Color(), static_cast<PaletteGroup>(group)));
        }
        return palette;
    }
    // The values behind the first three, each or none.
    void AddMaterials(Palette& palette) {
        for (PaletteEntry& entry : palette.entries)
            for (std::size_t value = 3; value < kColorValueCount; ++value)
                if (Number(0, 3) > 0)
                    entry.Set(value, static_cast<std::int16_t>(Number(0, 100)));
    }

private:
    std::mt19937 random_;
};
