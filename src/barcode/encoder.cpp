// SPDX-License-Identifier: MIT
#include "barcode/encoder.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "barcode/code_tables.h"

namespace kev {
namespace {

constexpr std::string_view kErrorStart = "/ERRORE=";
constexpr std::string_view kNotNumeric = "/ERRORE=N/";
constexpr std::string_view kWrongLength = "/ERRORE=L/";
constexpr std::string_view kOddDigits = "/ERRORE=D/";
constexpr std::string_view kVerbatimKeyword = "128B";
constexpr std::string_view kEanGuard = "101", kEanMiddle = "01010";
constexpr std::size_t kWideRatio = 3;

// Readers of these patterns know "I" by the bars of "H".
constexpr auto kWidthsOfB = [] {
  auto widths = kCode128;
  widths['I' - ' '] = widths['H' - ' '];
  return widths;
}();
constexpr unsigned kFirstOfB = 32, kLastOfB = 127;

std::string NoPattern(unsigned code) {
  return std::string(kErrorStart) + "P:" + std::to_string(1000 + code).substr(1) + '/';
}

unsigned CodeOf(char character) {
  return static_cast<unsigned char>(character);
}

std::size_t DigitOf(char character) {
  return static_cast<std::size_t>(character - '0');
}

bool IsNumeric(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Elements, bars and spaces in turn, that are wide (1) or narrow (0).
std::string ModulesOf(std::string_view elements) {
  std::string modules;
  for (std::size_t at = 0; at < elements.size(); ++at)
    modules.append(elements[at] == '1' ? kWideRatio : 1, at % 2 == 0 ? '1' : '0');
  return modules;
}

// Widths of bars and spaces in turn.
std::string ModulesOfWidths(std::string_view widths) {
  std::string modules;
  for (std::size_t at = 0; at < widths.size(); ++at)
    modules.append(DigitOf(widths[at]), at % 2 == 0 ? '1' : '0');
  return modules;
}

std::string WithSpacesAsA(std::string modules) {
  std::replace(modules.begin(), modules.end(), '0', 'A');
  return modules;
}

// --- 2 of 5 ---

// Bars of three and of one module with narrow spaces between.
std::string BarsOf(std::string_view wides) {
  std::string modules;
  for (const char wide : wides)
    modules.append(modules.empty() ? 0 : 1, '0').append(wide == '1' ? kWideRatio : 1, '1');
  return modules;
}

std::string TwoOfFive(std::string_view start, std::string_view digits, std::string_view stop) {
  std::string modules = BarsOf(start);
  for (const char digit : digits)
    modules += '0' + BarsOf(kTwoOfFive[DigitOf(digit)]);
  return modules + '0' + BarsOf(stop);
}

std::string TwoOfFiveStandard(std::string_view digits) {
  return TwoOfFive("110", digits, "101");
}

std::string TwoOfFiveIndustrial(std::string_view digits) {
  return TwoOfFive("00", digits, "10");
}

// The first digit of a pair is in the bars, the second in the spaces between them.
std::string TwoOfFiveInterleaved(std::string_view digits) {
  if (digits.size() % 2 != 0) return std::string(kOddDigits);
  std::string elements = "0000";
  for (std::size_t pair = 0; pair < digits.size(); pair += 2) {
    const std::string_view bars = kTwoOfFive[DigitOf(digits[pair])];
    const std::string_view spaces = kTwoOfFive[DigitOf(digits[pair + 1])];
    for (std::size_t at = 0; at < bars.size(); ++at)
      elements.append({bars[at], spaces[at]});
  }
  return ModulesOf(elements + "1000");
}

// --- Code 39 and Code 32 ---

constexpr const Code39Row& kCode39Frame = kCode39.back();

std::string Code39(std::string_view text) {
  std::string elements(kCode39Frame.elements);
  for (const char character : text) {
    const auto row = std::find_if(kCode39.begin(), kCode39.end() - 1,
                                  [&](const Code39Row& known) { return known.character == character; });
    if (row == kCode39.end() - 1) return NoPattern(CodeOf(character));
    elements.append("0").append(row->elements);
  }
  return ModulesOf(elements.append("0").append(kCode39Frame.elements));
}

std::string Code32(std::string_view digits) {
  constexpr std::string_view kAlphabet = "0123456789BCDFGHJKLMNPQRSTUVWXYZ";
  if (digits.size() != 9) return std::string(kWrongLength);
  std::uint32_t value = 0;
  for (const char digit : digits)
    value = value * 10 + static_cast<std::uint32_t>(DigitOf(digit));
  std::string text(6, '0');
  for (auto place = text.rbegin(); place != text.rend(); ++place, value /= 32)
    *place = kAlphabet[value % 32];
  return Code39(text);
}

// --- EAN and UPC ---

std::string SetA(char digit) {
  return std::string(kEanSetA[DigitOf(digit)]);
}

std::string SetC(char digit) {
  std::string modules = SetA(digit);
  for (char& module : modules)
    module = module == '0' ? '1' : '0';
  return modules;
}

std::string SetB(char digit) {
  const std::string modules = SetC(digit);
  return {modules.rbegin(), modules.rend()};
}

std::string AllInA(std::string_view digits) {
  std::string modules;
  for (const char digit : digits)
    modules += SetA(digit);
  return modules;
}

std::string AllInC(std::string_view digits) {
  std::string modules;
  for (const char digit : digits)
    modules += SetC(digit);
  return modules;
}

std::string Guarded(const std::string& left, const std::string& right) {
  std::string modules(kEanGuard);
  return modules.append(left).append(kEanMiddle).append(right).append(kEanGuard);
}

std::string Ean8(std::string_view digits) {
  if (digits.size() != 8) return std::string(kWrongLength);
  return Guarded(AllInA(digits.substr(0, 4)), AllInC(digits.substr(4)));
}

std::string Ean13(std::string_view given) {
  std::string digits(given);
  if (digits.size() == 12) digits += Ean13CheckDigit(digits);
  if (digits.size() != 13) return std::string(kWrongLength);
  const std::string_view sets = kEanParities[DigitOf(digits[0])];
  std::string left;
  for (std::size_t at = 0; at < sets.size(); ++at)
    left += sets[at] == 'A' ? SetA(digits[at + 1]) : SetB(digits[at + 1]);
  return WithSpacesAsA(Guarded(left, AllInC(std::string_view(digits).substr(7))));
}

// `tripled` and every second digit behind it count three times.
char CheckDigit(std::string_view digits, std::size_t tripled) {
  std::size_t sum = 0;
  for (std::size_t at = 0; at < digits.size(); ++at)
    sum += DigitOf(digits[at]) * (at % 2 == tripled ? 3 : 1);
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

std::string UpcA(std::string_view digits) {
  if (digits.size() != 11) return std::string(kWrongLength);
  const char check = CheckDigit(digits, 0);
  const std::string right = AllInC(digits.substr(6)) + SetC(check);
  return WithSpacesAsA(Guarded(AllInA(digits.substr(0, 6)), right)) + "/CD=" + check + '/';
}

// --- Code 128 ---

std::string Code128C(std::string_view given) {
  constexpr std::size_t kLongestPadded = 61;
  std::string digits(given);
  if (digits.size() % 2 != 0 && digits.size() <= kLongestPadded) digits.insert(0, 1, '0');
  std::string widths(kCode128[kCode128StartC]);
  std::size_t total = kCode128StartC;
  for (std::size_t pair = 0; pair < digits.size(); pair += 2) {
    if (pair + 1 == digits.size()) return NoPattern(CodeOf(digits[pair]));
    const std::size_t value = DigitOf(digits[pair]) * 10 + DigitOf(digits[pair + 1]);
    total += (pair / 2 + 1) * value;
    widths += kCode128[value];
  }
  widths += kCode128[total % kCode128Modulus];
  return ModulesOfWidths(widths += kCode128[kCode128Stop]);
}

std::optional<std::string_view> WidthsOfB(unsigned code) {
  if (code < kFirstOfB || code > kLastOfB) return std::nullopt;
  return kWidthsOfB[code - kFirstOfB];
}

std::string WithSpacesAsLetters(std::string widths) {
  for (std::size_t at = 1; at < widths.size(); at += 2)
    widths[at] = static_cast<char>(widths[at] - '1' + 'A');
  return widths;
}

// The check value is found through the character that has it, so there is none above the last character.
std::string Code128B(std::string_view text) {
  std::string widths(kCode128[kCode128StartB]);
  std::size_t total = kCode128StartB;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const unsigned code = CodeOf(text[at]);
    const auto own = WidthsOfB(code);
    if (!own) return NoPattern(code);
    total += (at + 1) * (code - kFirstOfB);
    widths += *own;
  }
  const unsigned checkCode = kFirstOfB + static_cast<unsigned>(total % kCode128Modulus);
  const auto check = WidthsOfB(checkCode);
  if (!check) return NoPattern(checkCode);
  return WithSpacesAsLetters(widths.append(*check).append(kCode128[kCode128Stop]));
}

struct Branch {
  std::string_view keyword;
  bool digitsOnly;
  std::string (*encode)(std::string_view text);
};

constexpr auto kBranches = std::to_array<Branch>({
    {"2/5BARRE", true, TwoOfFiveStandard},
    {"2/5IND", true, TwoOfFiveIndustrial},
    {"2/5INT", true, TwoOfFiveInterleaved},
    {"39", false, Code39},
    {"32", true, Code32},
    {"EAN8", true, Ean8},
    {"EAN13", true, Ean13},
    {"UPC/A", true, UpcA},
    {"128C", true, Code128C},
    {"128B", false, Code128B},
});

const Branch* BranchOf(const CodePage& page, std::string_view keyword) {
  const std::string wanted = page.Upper(keyword);
  const auto branch = std::find_if(kBranches.begin(), kBranches.end(),
                                   [&](const Branch& known) { return known.keyword == wanted; });
  return branch == kBranches.end() ? nullptr : &*branch;
}

}  // namespace

ModuleString BarcodeEncoder::Encode(std::string_view keyword, std::string_view value) const {
  const std::string text = keyword == kVerbatimKeyword ? std::string(value) : page_.Upper(value);
  const Branch* branch = BranchOf(page_, keyword);
  if (branch == nullptr) return {};
  if (branch->digitsOnly && !IsNumeric(text)) return std::string(kNotNumeric);
  return branch->encode(text);
}

bool BarcodeEncoder::Knows(std::string_view keyword) const {
  return BranchOf(page_, keyword) != nullptr;
}

bool IsEncodingError(std::string_view result) {
  return result.starts_with(kErrorStart);
}

char Ean13CheckDigit(std::string_view twelveDigits) {
  return CheckDigit(twelveDigits.substr(0, 12), 1);
}

}  // namespace kev
