#pragma once

#include "common/ColorRecord.h"

#include <array>

// The columns of the nine values wherever colors are listed, in every language.
struct ValueColumn {
    const char* caption;
    const char* key;
};

inline constexpr std::array<ValueColumn, kColorValueCount> kValueColumns{{
    {"R", "red"},
    {"G", "green"},
    {"B", "blue"},
    {"Amb", "Ambient"},
    {"Dif", "Diffuse"},
    {"Spe", "Specular"},
    {"Shi", "Shininess"},
    {"Tra", "Transparency"},
    {"Emi", "Emission"},
}};
