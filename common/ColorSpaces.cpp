#include "common/ColorSpaces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

constexpr double kHighestValue = 255;

// The transfer function of sRGB.
constexpr double kSrgbLinearPart = 12.92;
constexpr double kSrgbEndOfLinearPart = 0.04045;
constexpr double kSrgbOffset = 0.055;
constexpr double kSrgbExponent = 2.4;

using Row = std::array<double, 3>;
using Matrix = std::array<Row, 3>;

// From linear sRGB to XYZ, as the standard prints it.
constexpr Matrix kXyzOfLinear = {
    {{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};

constexpr double Cofactor(const Matrix& of, std::size_t row, std::size_t column) {
    const std::size_t row1 = (row + 1) % 3;
    const std::size_t row2 = (row + 2) % 3;
    const std::size_t column1 = (column + 1) % 3;
    const std::size_t column2 = (column + 2) % 3;
    return of[row1][column1] * of[row2][column2] - of[row1][column2] * of[row2][column1];
}

constexpr Matrix Inverse(const Matrix& of) {
    double determinant = 0;
    for (std::size_t column = 0; column < 3; ++column)
        determinant += of[0][column] * Cofactor(of, 0, column);
    Matrix inverse{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            inverse[column][row] = Cofactor(of, row, column) / determinant;
    return inverse;
}

// Not the rounded one that the standard prints, so that there and back is where one came from.
constexpr Matrix kLinearOfXyz = Inverse(kXyzOfLinear);

constexpr double Sum(const Row& row) {
    return row[0] + row[1] + row[2];
}

// XYZ of the white of this matrix, so that white and all grays have no a and b.
constexpr Row kWhite = {Sum(kXyzOfLinear[0]), Sum(kXyzOfLinear[1]), Sum(kXyzOfLinear[2])};

constexpr double Product(const Row& row, double first, double second, double third) {
    return row[0] * first + row[1] * second + row[2] * third;
}

// CIELAB in the exact fractions of CIE 15:2004.
constexpr double kLabEpsilon = 216.0 / 24389.0; // (6/29)^3
constexpr double kLabKappa = 24389.0 / 27.0;    // (29/3)^3

double LabFunction(double ratio) {
    return ratio > kLabEpsilon ? std::cbrt(ratio) : (kLabKappa * ratio + 16) / 116;
}

double InverseLabFunction(double value) {
    const double cube = value * value * value;
    return cube > kLabEpsilon ? cube : (116 * value - 16) / kLabKappa;
}

double DecodeSrgb(double value) {
    return value <= kSrgbEndOfLinearPart
               ? value / kSrgbLinearPart
               : std::pow((value + kSrgbOffset) / (1 + kSrgbOffset), kSrgbExponent);
}

double EncodeSrgb(double linear) {
    return linear * kSrgbLinearPart <= kSrgbEndOfLinearPart
               ? linear * kSrgbLinearPart
               : (1 + kSrgbOffset) * std::pow(linear, 1 / kSrgbExponent) - kSrgbOffset;
}

int SrgbValueOf(double linear) {
    const double inGamut = std::clamp(linear, 0.0, 1.0);
    return static_cast<int>(std::lround(EncodeSrgb(inGamut) * kHighestValue));
}

using Table = std::array<double, 256>;

Table MakeDecodedValues() {
    Table table{};
    for (std::size_t value = 0; value < table.size(); ++value)
        table[value] = DecodeSrgb(static_cast<double>(value) / kHighestValue);
    return table;
}

} // namespace

double LinearOfSrgb(int value) noexcept {
    static const Table table = MakeDecodedValues();
    return table[static_cast<std::size_t>(std::clamp(value, 0, 255))];
}

LinearColor LinearOfSrgb(const RedGreenBlue& color) noexcept {
    return {LinearOfSrgb(color.red), LinearOfSrgb(color.green), LinearOfSrgb(color.blue)};
}

RedGreenBlue SrgbOfLinear(const LinearColor& color) noexcept {
    return {SrgbValueOf(color.red), SrgbValueOf(color.green), SrgbValueOf(color.blue)};
}

XyzColor XyzOfLinear(const LinearColor& color) noexcept {
    return {Product(kXyzOfLinear[0], color.red, color.green, color.blue),
            Product(kXyzOfLinear[1], color.red, color.green, color.blue),
            Product(kXyzOfLinear[2], color.red, color.green, color.blue)};
}

LinearColor LinearOfXyz(const XyzColor& color) noexcept {
    return {Product(kLinearOfXyz[0], color.x, color.y, color.z),
            Product(kLinearOfXyz[1], color.x, color.y, color.z),
            Product(kLinearOfXyz[2], color.x, color.y, color.z)};
}

LabColor LabOfXyz(const XyzColor& color) noexcept {
    const double x = LabFunction(color.x / kWhite[0]);
    const double y = LabFunction(color.y / kWhite[1]);
    const double z = LabFunction(color.z / kWhite[2]);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

XyzColor XyzOfLab(const LabColor& color) noexcept {
    const double y = (color.lightness + 16) / 116;
    return {InverseLabFunction(y + color.a / 500) * kWhite[0], InverseLabFunction(y) * kWhite[1],
            InverseLabFunction(y - color.b / 200) * kWhite[2]};
}

LabColor LabOfSrgb(const RedGreenBlue& color) noexcept {
    return LabOfXyz(XyzOfLinear(LinearOfSrgb(color)));
}

RedGreenBlue SrgbOfLab(const LabColor& color) noexcept {
    return SrgbOfLinear(LinearOfXyz(XyzOfLab(color)));
}

double LuminanceOfLightness(double lightness) noexcept {
    return InverseLabFunction((lightness + 16) / 116) * kWhite[1];
}

double LightnessOfLuminance(double luminance) noexcept {
    return 116 * LabFunction(luminance / kWhite[1]) - 16;
}

double LuminanceOfRed(int value) noexcept {
    return kXyzOfLinear[1][0] * LinearOfSrgb(value);
}

double LuminanceOfGreen(int value) noexcept {
    return kXyzOfLinear[1][1] * LinearOfSrgb(value);
}

double LuminanceOfBlue(int value) noexcept {
    return kXyzOfLinear[1][2] * LinearOfSrgb(value);
}
