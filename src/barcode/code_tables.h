// SPDX-License-Identifier: MIT
// The published symbol tables: ISO/IEC 16388 (Code 39), ISO/IEC 15417 (Code 128), ISO/IEC 15420 (EAN and
// UPC).
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kev {

// Nine elements, bars and spaces in turn: 1 is wide, 0 narrow.
struct Code39Row {
  char character;
  std::string_view elements;
};

// "*" comes last: not every reader of the table knows it.
inline constexpr auto kCode39 = std::to_array<Code39Row>({
    {'0', "000110100"}, {'1', "100100001"}, {'2', "001100001"}, {'3', "101100000"}, {'4', "000110001"},
    {'5', "100110000"}, {'6', "001110000"}, {'7', "000100101"}, {'8', "100100100"}, {'9', "001100100"},
    {'A', "100001001"}, {'B', "001001001"}, {'C', "101001000"}, {'D', "000011001"}, {'E', "100011000"},
    {'F', "001011000"}, {'G', "000001101"}, {'H', "100001100"}, {'I', "001001100"}, {'J', "000011100"},
    {'K', "100000011"}, {'L', "001000011"}, {'M', "101000010"}, {'N', "000010011"}, {'O', "100010010"},
    {'P', "001010010"}, {'Q', "000000111"}, {'R', "100000110"}, {'S', "001000110"}, {'T', "000010110"},
    {'U', "110000001"}, {'V', "011000001"}, {'W', "111000000"}, {'X', "010010001"}, {'Y', "110010000"},
    {'Z', "011010000"}, {'-', "010000101"}, {'.', "110000100"}, {' ', "011000100"}, {'$', "010101000"},
    {'/', "010100010"}, {'+', "010001010"}, {'%', "000101010"}, {'*', "010010100"},
});

// Widths of bars and spaces in turn, by value. 103 to 105 start with code set A, B and C.
inline constexpr auto kCode128 = std::to_array<std::string_view>({
    "212222", "222122", "222221", "121223", "121322", "131222", "122213",  "122312", "132212", "221213",
    "221312", "231212", "112232", "122132", "122231", "113222", "123122",  "123221", "223211", "221132",
    "221231", "213212", "223112", "312131", "311222", "321122", "321221",  "312212", "322112", "322211",
    "212123", "212321", "232121", "111323", "131123", "131321", "112313",  "132113", "132311", "211313",
    "231113", "231311", "112133", "112331", "132131", "113123", "113321",  "133121", "313121", "211331",
    "231131", "213113", "213311", "213131", "311123", "311321", "331121",  "312113", "312311", "332111",
    "314111", "221411", "431111", "111224", "111422", "121124", "121421",  "141122", "141221", "112214",
    "112412", "122114", "122411", "142112", "142211", "241211", "221114",  "413111", "241112", "134111",
    "111242", "121142", "121241", "114212", "124112", "124211", "411212",  "421112", "421211", "212141",
    "214121", "412121", "111143", "111341", "131141", "114113", "114311",  "411113", "411311", "113141",
    "114131", "311141", "411131", "211412", "211214", "211232", "2331112",
});
inline constexpr std::size_t kCode128StartB = 104;
inline constexpr std::size_t kCode128StartC = 105;
inline constexpr std::size_t kCode128Stop = 106;
inline constexpr std::size_t kCode128Modulus = 103;

// Modules of the set A, by digit: 1 is a bar. The set C is its complement, the set B is C from right to left.
inline constexpr auto kEanSetA =
    std::to_array<std::string_view>({"0001101", "0011001", "0010011", "0111101", "0100011", "0110001",
                                     "0101111", "0111011", "0110111", "0001011"});
// The sets of the digits 2 to 7 of an EAN-13, by its first digit.
inline constexpr auto kEanParities = std::to_array<std::string_view>(
    {"AAAAAA", "AABABB", "AABBAB", "AABBBA", "ABAABB", "ABBAAB", "ABBBAA", "ABABAB", "ABABBA", "ABBABA"});

// Elements of a digit of the 2 of 5 family; each has two that are wide.
inline constexpr auto kTwoOfFive = std::to_array<std::string_view>(
    {"00110", "10001", "01001", "11000", "00101", "10100", "01100", "00011", "10010", "01010"});

}  // namespace kev
