// Rules: Finding colors
#include "common/CaseFolding.h"

#include "common/Utf8.h"

#include <gtest/gtest.h>

namespace {

// Every letter of the blocks that folds to one other letter, and what it folds to, as another
// implementation of the Unicode Character Database (version 14.0) gives them.
constexpr std::string_view kLetters =
    "µÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞĀĂĄĆĈĊČĎĐĒĔĖĘ"
    "ĚĜĞĠĢĤĦĨĪĬĮĲĴĶĹĻĽĿŁŃŅŇŊŌŎŐŒŔŖŘŚŜŞŠŢŤŦŨŪŬŮŰŲŴ"
    "ŶŸŹŻŽſͰͲͶͿΆΈΉΊΌΎΏΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΪΫς"
    "ϏϐϑϕϖϘϚϜϞϠϢϤϦϨϪϬϮϰϱϴϵϷϹϺϽϾϿЀЁЂЃЄЅІЇЈЉЊЋЌЍЎЏА"
    "БВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯѠѢѤѦѨѪѬѮѰѲѴѶѸ"
    "ѺѼѾҀҊҌҎҐҒҔҖҘҚҜҞҠҢҤҦҨҪҬҮҰҲҴҶҸҺҼҾӀӁӃӅӇӉӋӍӐӒӔӖӘ"
    "ӚӜӞӠӢӤӦӨӪӬӮӰӲӴӶӸӺӼӾԀԂԄԆԈԊԌԎԐԒԔԖԘԚԜԞԠԢԤԦԨԪԬԮ";
constexpr std::string_view kFolded =
    "μàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþāăąćĉċčďđēĕėę"
    "ěĝğġģĥħĩīĭįĳĵķĺļľŀłńņňŋōŏőœŕŗřśŝşšţťŧũūŭůűųŵ"
    "ŷÿźżžsͱͳͷϳάέήίόύώαβγδεζηθικλμνξοπρστυφχψωϊϋσ"
    "ϗβθφπϙϛϝϟϡϣϥϧϩϫϭϯκρθεϸϲϻͻͼͽѐёђѓєѕіїјљњћќѝўџа"
    "бвгдежзийклмнопрстуфхцчшщъыьэюяѡѣѥѧѩѫѭѯѱѳѵѷѹ"
    "ѻѽѿҁҋҍҏґғҕҗҙқҝҟҡңҥҧҩҫҭүұҳҵҷҹһҽҿӏӂӄӆӈӊӌӎӑӓӕӗә"
    "ӛӝӟӡӣӥӧөӫӭӯӱӳӵӷӹӻӽӿԁԃԅԇԉԋԍԏԑԓԕԗԙԛԝԟԡԣԥԧԩԫԭԯ";

TEST(CaseFolding, LettersOfAsciiFoldToSmallOnes) {
    EXPECT_EQ(FoldCase("ABC xyz MNZ @[`{"), "abc xyz mnz @[`{");
}

TEST(CaseFolding, LettersOfTheBlocksFoldAsTheCharacterDatabaseSays) {
    EXPECT_EQ(FoldCase(kLetters), kFolded);
    EXPECT_EQ(FoldCase(kFolded), kFolded);
}

TEST(CaseFolding, AllOtherCharactersOfTheBlocksStay) {
    std::u32string folding;
    for (std::string_view rest = kLetters; !rest.empty();) {
        const Utf8Character letter = FirstCharacterOf(rest);
        folding += letter.value;
        rest.remove_prefix(letter.length);
    }
    for (char32_t character = 0x80; character < 0x530; ++character)
        if (folding.find(character) == std::u32string::npos) {
            EXPECT_EQ(FoldCase(character), character) << static_cast<unsigned>(character);
        }
}

TEST(CaseFolding, GermanWordsAreTheSameInBothCases) {
    EXPECT_EQ(FoldCase("GRÜN"), FoldCase("grün"));
    EXPECT_EQ(FoldCase("ÖLGRÄN"), FoldCase("ölgrän"));
    EXPECT_EQ(FoldCase("WEIẞ"), FoldCase("weiß"));
    EXPECT_NE(FoldCase("weiss"), FoldCase("weiß"));
    EXPECT_NE(FoldCase("grun"), FoldCase("grün"));
}

TEST(CaseFolding, GreekSigmaIsOneLetterAtTheEndOfAWordToo) {
    EXPECT_EQ(FoldCase("ΛΕΥΚΌΣ"), FoldCase("λευκός"));
}

TEST(CaseFolding, BrokenTextAndOtherScriptsStay) {
    EXPECT_EQ(FoldCase("\xC3"), "\xC3");
    EXPECT_EQ(FoldCase("A\xFF\xC3(Ä"), "a\xFF\xC3(ä");
    EXPECT_EQ(FoldCase("日本 😀"), "日本 😀");
    EXPECT_EQ(FoldCase(""), "");
}

TEST(CaseFolding, FoldingIntoATextReplacesWhatItHeld) {
    std::string folded = "a longer text than before";
    FoldCaseInto(folded, "Ä");
    EXPECT_EQ(folded, "ä");
    FoldCaseInto(folded, "Rot");
    EXPECT_EQ(folded, "rot");
}

} // namespace
