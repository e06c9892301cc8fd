// Rules: Console program
#include "converter/linux/LinuxCodePages.h"

#include <gtest/gtest.h>

namespace {

TEST(LinuxCodePagesTest, WithoutANumberItIsTheWesternOne) {
    EXPECT_EQ(LinuxCodePage({})->Decode("\x80\xF7\x81"), "€÷\xC2\x81");
    EXPECT_EQ(LinuxCodePage(1252)->Encode("€").bytes, "\x80");
}

TEST(LinuxCodePagesTest, OthersOfWindowsAreKnown) {
    EXPECT_EQ(LinuxCodePage(1251)->Decode("\xC6\xE8\xF7"), "Жич");
    EXPECT_EQ(LinuxCodePage(1251)->Encode("Ж÷").bytes, "\xC6?");
    EXPECT_EQ(LinuxCodePage(1250)->Decode("\xE8\xF7"), "č÷");
    for (const unsigned number : {874U, 1253U, 1254U, 1255U, 1256U, 1257U, 1258U})
        EXPECT_EQ(LinuxCodePage(number)->Decode("az"), "az") << number;
}

TEST(LinuxCodePagesTest, EachByteOfEachOneComesBackOrIsToldAsNone) {
    for (const unsigned number : {874U, 1250U, 1251U, 1253U, 1254U, 1255U, 1256U, 1257U, 1258U}) {
        const auto codePage = LinuxCodePage(number);
        for (int value = 0; value < 0x100; ++value) {
            const std::string byte(1, static_cast<char>(value));
            const std::string character = codePage->Decode(byte);
            EXPECT_EQ(codePage->Encode(character).bytes, character == "\xEF\xBF\xBD" ? "?" : byte)
                << number << " " << value;
        }
    }
}

TEST(LinuxCodePagesTest, ThoseWithCharactersOfSeveralBytesAreNot) {
    for (const unsigned number : {0U, 437U, 932U, 1249U, 1259U, 65001U})
        EXPECT_EQ(LinuxCodePage(number), nullptr) << number;
}

} // namespace
