// SPDX-License-Identifier: MIT
#include "barcode/encoder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kev {
namespace {

std::string Encode(std::string_view keyword, std::string_view value) {
  return BarcodeEncoder().Encode(keyword, value);
}

std::string SpacesAsA(std::string modules) {
  std::replace(modules.begin(), modules.end(), '0', 'A');
  return modules;
}

constexpr const char* kNotNumeric = "/ERRORE=N/";
constexpr const char* kWrongLength = "/ERRORE=L/";

TEST(BarcodeEncoder, UnknownKeywordGivesNothing) {
  EXPECT_EQ(Encode("", "123"), "");
  EXPECT_EQ(Encode("2/5", "123"), "");
  EXPECT_EQ(Encode("EAN13 ", "123"), "");
  EXPECT_FALSE(BarcodeEncoder().Knows("EAN 13"));
}

TEST(BarcodeEncoder, KeywordIsComparedInUpperCase) {
  EXPECT_EQ(Encode("ean8", "12345670"), Encode("EAN8", "12345670"));
  EXPECT_TRUE(BarcodeEncoder().Knows("upc/a"));
}

TEST(BarcodeEncoder, NumericBranchesTakeDigitsOnly) {
  for (const char* keyword : {"2/5BARRE", "2/5IND", "2/5INT", "32", "EAN8", "EAN13", "UPC/A", "128C"})
    for (const char* value : {"1234567A", "1234.567", "1234,567", "-1234567", "+1234567", "1234 567"})
      EXPECT_EQ(Encode(keyword, value), kNotNumeric) << keyword << ' ' << value;
}

TEST(BarcodeEncoder, NumericTestComesBeforeTheLengthAndHasNoLimitOfItsOwn) {
  EXPECT_EQ(Encode("EAN8", "A"), kNotNumeric);
  EXPECT_EQ(Encode("EAN8", ""), kWrongLength);
  EXPECT_FALSE(IsEncodingError(Encode("2/5IND", std::string(100, '5'))));
}

// --- 2 of 5

TEST(BarcodeEncoder, TwoOfFiveStandardAndIndustrialDifferInStartAndStop) {
  EXPECT_EQ(Encode("2/5BARRE", "1"),
            "111011101"
            "0"
            "1110101010111"
            "0"
            "111010111");
  EXPECT_EQ(Encode("2/5IND", "1"),
            "101"
            "0"
            "1110101010111"
            "0"
            "11101");
}

TEST(BarcodeEncoder, TwoOfFiveOfNoDigitsIsStartAndStop) {
  EXPECT_EQ(Encode("2/5BARRE", ""),
            "111011101"
            "0"
            "111010111");
  EXPECT_EQ(Encode("2/5IND", ""),
            "101"
            "0"
            "11101");
  EXPECT_EQ(Encode("2/5INT", ""),
            "1010"
            "11101"
            "0");
}

TEST(BarcodeEncoder, InterleavedTakesTheSecondDigitOfAPairIntoTheSpaces) {
  // 1 is LSSSL in the bars, 2 is SLSSL in the spaces.
  EXPECT_EQ(Encode("2/5INT", "12"),
            "1010"
            "1110"
            "1000"
            "10"
            "10"
            "111000"
            "111010");
}

TEST(BarcodeEncoder, InterleavedRefusesAnOddNumberOfDigits) {
  EXPECT_EQ(Encode("2/5INT", "123"), "/ERRORE=D/");
}

// --- Code 39 and Code 32

TEST(BarcodeEncoder, Code39HasItsFramesAndNoCheckDigit) {
  EXPECT_EQ(Encode("39", ""),
            "100010111011101"
            "0"
            "100010111011101");
  EXPECT_EQ(Encode("39", "A").size(), 3U * 15 + 2);
  EXPECT_EQ(Encode("39", "A"),
            "100010111011101"
            "0"
            "111010100010111"
            "0"
            "100010111011101");
}

TEST(BarcodeEncoder, Code39TakesLowerCaseAndRefusesWhatItDoesNotHold) {
  EXPECT_EQ(Encode("39", "kev-1"), Encode("39", "KEV-1"));
  EXPECT_EQ(Encode("39", "A,B"), "/ERRORE=P:044/");
  EXPECT_EQ(Encode("39", "*"), "/ERRORE=P:042/");
  EXPECT_EQ(Encode("39", "#"), "/ERRORE=P:035/");
  // Small e acute, in upper case.
  EXPECT_EQ(Encode("39", "\xE9"), "/ERRORE=P:201/");
}

TEST(BarcodeEncoder, Code32IsCode39OfTheNumberInBase32) {
  EXPECT_EQ(Encode("32", "026089019"), Encode("39", "0SW5KV"));
  EXPECT_EQ(Encode("32", "000000000"), Encode("39", "000000"));
  EXPECT_EQ(Encode("32", "000000031"), Encode("39", "00000Z"));
  EXPECT_EQ(Encode("32", "999999999"), Encode("39", "XTPLHZ"));
}

TEST(BarcodeEncoder, Code32TakesNineDigits) {
  EXPECT_EQ(Encode("32", "12345678"), kWrongLength);
  EXPECT_EQ(Encode("32", "1234567890"), kWrongLength);
}

// --- EAN and UPC

TEST(BarcodeEncoder, Ean8) {
  EXPECT_EQ(Encode("EAN8", "96385074"),
            "101"
            "0001011"
            "0101111"
            "0111101"
            "0110111"
            "01010"
            "1001110"
            "1110010"
            "1000100"
            "1011100"
            "101");
}

TEST(BarcodeEncoder, Ean8DoesNotTestItsLastDigitAndDoesNotMakeOne) {
  EXPECT_EQ(Encode("EAN8", "1234567"), kWrongLength);
  EXPECT_EQ(Encode("EAN8", "12345678").size(), 67U);
  EXPECT_EQ(Encode("EAN8", "12345670").size(), 67U);
}

constexpr const char* kEan13 =
    "101"
    "0001011"
    "0100111"
    "0110011"
    "0010011"
    "0111101"
    "0011101"
    "01010"
    "1100110"
    "1101100"
    "1000010"
    "1011100"
    "1001110"
    "1000100"
    "101";

TEST(BarcodeEncoder, Ean13HasAForASpace) {
  EXPECT_EQ(Encode("EAN13", "5901234123457"), SpacesAsA(kEan13));
}

TEST(BarcodeEncoder, Ean13AddsTheCheckDigitOfTwelveAndTestsNone) {
  EXPECT_EQ(Encode("EAN13", "123456789012"), Encode("EAN13", "1234567890128"));
  EXPECT_EQ(Encode("EAN13", "1234567890123").size(), 95U);
  EXPECT_NE(Encode("EAN13", "1234567890123"), Encode("EAN13", "1234567890128"));
  for (const char* value : {"", "1234567890", "12345678901", "12345678901234"})
    EXPECT_EQ(Encode("EAN13", value), kWrongLength) << value;
}

TEST(BarcodeEncoder, UpcATellsItsCheckDigit) {
  EXPECT_EQ(Encode("UPC/A", "03600029145"), SpacesAsA("101"
                                                      "0001101"
                                                      "0111101"
                                                      "0101111"
                                                      "0001101"
                                                      "0001101"
                                                      "0001101"
                                                      "01010"
                                                      "1101100"
                                                      "1110100"
                                                      "1100110"
                                                      "1011100"
                                                      "1001110"
                                                      "1101100"
                                                      "101") +
                                                "/CD=2/");
  EXPECT_EQ(Encode("UPC/A", "036000291452"), kWrongLength);
}

TEST(BarcodeEncoder, CheckDigitOfAMultipleOfTenIsZero) {
  EXPECT_EQ(Ean13CheckDigit("000000000000"), '0');
  EXPECT_EQ(Ean13CheckDigit("700000000030"), '0');
  EXPECT_EQ(Ean13CheckDigit("590123412345"), '7');
  EXPECT_EQ(Ean13CheckDigit("123456789012"), '8');
  EXPECT_TRUE(Encode("UPC/A", "00000000000").ends_with("/CD=0/"));
  EXPECT_TRUE(Encode("UPC/A", "10000000007").ends_with("/CD=6/"));
  EXPECT_TRUE(Encode("UPC/A", "10000000070").ends_with("/CD=0/"));
}

// --- Code 128

TEST(BarcodeEncoder, Code128C) {
  // 105 + 12 + 2 * 34 = 185, which leaves 82.
  EXPECT_EQ(Encode("128C", "1234"),
            "11010011100"
            "10110011100"
            "10001011000"
            "10010011110"
            "1100011101011");
}

TEST(BarcodeEncoder, Code128CPadsAnOddTextToSixtyOneDigits) {
  EXPECT_EQ(Encode("128C", "123"), Encode("128C", "0123"));
  EXPECT_FALSE(IsEncodingError(Encode("128C", std::string(61, '7'))));
  EXPECT_FALSE(IsEncodingError(Encode("128C", std::string(62, '7'))));
  EXPECT_EQ(Encode("128C", std::string(63, '7')), "/ERRORE=P:055/");
}

TEST(BarcodeEncoder, Code128BStaysInWidths) {
  // 104 + 33 = 137, which leaves 34.
  EXPECT_EQ(Encode("128B", "A"),
            "2A1B1D"
            "1A1C2C"
            "1C1A2C"
            "2C3A1A2");
}

TEST(BarcodeEncoder, Code128BGivesIThePatternOfH) {
  const std::string both = Encode("128B", "HI");
  EXPECT_EQ(both.substr(6, 6), "2C1A1C");
  EXPECT_EQ(both.substr(12, 6), "2C1A1C");
  // The check value of "H" alone is that of "I".
  EXPECT_EQ(Encode("128B", "H").substr(12, 6), "2C1A1C");
}

TEST(BarcodeEncoder, Code128BKeepsTheCaseForItsExactKeywordAlone) {
  EXPECT_NE(Encode("128B", "a"), Encode("128B", "A"));
  EXPECT_EQ(Encode("128b", "a"), Encode("128B", "A"));
}

TEST(BarcodeEncoder, Code128BTakesTheCode127AndNoneBeside) {
  EXPECT_EQ(Encode("128B",
                   "\x7F"
                   "A")
                .substr(6, 6),
            "1A4A1C");
  EXPECT_EQ(Encode("128B", "\x1F"), "/ERRORE=P:031/");
  EXPECT_EQ(Encode("128B", "\x80"), "/ERRORE=P:128/");
  EXPECT_EQ(Encode("128B", "\xFF"), "/ERRORE=P:255/");
}

TEST(BarcodeEncoder, Code128BHasNoCheckValueAboveNinetyFive) {
  // 104 + 95 leaves 96, and the character of that has the code 128; 104 + 94 leaves 95.
  EXPECT_EQ(Encode("128B", "\x7F"), "/ERRORE=P:128/");
  EXPECT_EQ(Encode("128B", "~").substr(12, 6), "1A4A1C");
}

TEST(BarcodeEncoder, EveryErrorIsTold) {
  for (const char* error : {"/ERRORE=N/", "/ERRORE=L/", "/ERRORE=D/", "/ERRORE=P:044/"})
    EXPECT_TRUE(IsEncodingError(error));
  EXPECT_FALSE(IsEncodingError("101"));
  EXPECT_FALSE(IsEncodingError(""));
}

}  // namespace
}  // namespace kev
