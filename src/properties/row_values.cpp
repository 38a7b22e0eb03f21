// SPDX-License-Identifier: MIT
#include "properties/row_values.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "document/colours.h"
#include "document/position.h"
#include "document/sections.h"
#include "document/typed_position.h"
#include "properties/row_editors.h"

namespace kev {
namespace {

struct WordOfCode {
  std::string_view code;
  std::string_view word;
};

// The first word stands for every code that the table does not hold.
constexpr auto kAlignments = std::to_array<WordOfCode>({{"L", "Left"}, {"R", "Right"}, {"C", "Center"}});
constexpr auto kCaseModes =
    std::to_array<WordOfCode>({{"N", "none"}, {"U", "UPPER"}, {"L", "lower"}, {"F", "First Up"}});

std::string WordOf(std::span<const WordOfCode> words, const std::string& code) {
  const std::string capitals = CodePage::Default().Upper(code);
  for (const WordOfCode& row : words)
    if (row.code == capitals) return std::string(row.word);
  return std::string(words.front().word);
}

std::string_view OrZero(std::string_view text) {
  text = Trim(text);
  return text.empty() ? "0" : text;
}

constexpr std::size_t kValueTypeLength = 7;
constexpr int kSmallestFont = 1, kLargestFont = 720;
constexpr int kWidestLine = 10;

}  // namespace

// --- Positions ---

Verdict CheckX(const RowTarget& target, std::string_view text) {
  if (MayBePosition(OrZero(text), target.TheDocument())) return std::nullopt;
  return RefusedWith(kTextPositionRefused);
}

Verdict CheckXNotNegative(const RowTarget& target, std::string_view text) {
  const Document& document = target.TheDocument();
  if (PositionOrZero(OrZero(text), document.Columns, *document.Page) < 0)
    return RefusedWith(kTextNegativeValue);
  return CheckX(target, text);
}

void StoreX(const RowTarget& target, std::string_view text) {
  target.Record().XValue = StoredPosition(OrZero(text));
}

Verdict CheckX2(const RowTarget& target, std::string_view text) {
  if (MayBePosition(Trim(text), target.TheDocument())) return std::nullopt;
  return RefusedWith(kTextPositionRefused);
}

void StoreX2(const RowTarget& target, std::string_view text) {
  target.Record().X2Value = StoredPosition(text);
}

Verdict CheckY(const RowTarget& target, std::string_view text) {
  const std::int32_t y = Int32Of(text);
  const Document& document = target.TheDocument();
  const int owner = OwnerOf(document, target.object);
  const bool below = owner != 0 && y > document.Objects[owner].EndsAt;
  if (y < 0 || below) return RefusedWith(kTextPositionOutsideSection);
  return std::nullopt;
}

Verdict CheckNotNegative(const RowTarget&, std::string_view text) {
  return Int32Of(text) < 0 ? Verdict(RefusedWith(kTextNegativeValue)) : std::nullopt;
}

Verdict CheckLineWidth(const RowTarget&, std::string_view text) {
  return Int32Of(text) > kWidestLine ? Verdict(RefusedWith(kTextLineWidthRefused)) : std::nullopt;
}

// --- Contents ---

Verdict CheckNotBlank(const RowTarget&, std::string_view text) {
  return Trim(text).empty() ? Verdict(RefusedWith(kTextEmptyTextRefused)) : std::nullopt;
}

void StoreContent(const RowTarget& target, std::string_view text) {
  target.Record().Content = text;
  MeasureIfText(target);
}

void MeasureIfText(const RowTarget& target) {
  const ObjectKind kind = target.Record().Kind;
  if (kind == ObjectKind::Label || kind == ObjectKind::Command)
    MeasureText(target.Record(), target.work.page.measurer);
}

// --- Font ---

std::string ReadFont(const RowSource& source) {
  const ObjectRecord& record = source.Record();
  return FontValueText({record.FontName, record.FontSize, record.Bold == kTrue, record.Italic == kTrue});
}

// The chooser gives nothing else; a value that is no font is put back without a word.
Verdict CheckFont(const RowTarget&, std::string_view text) {
  const auto font = ParseFontValue(text);
  const bool good =
      font && !Trim(font->Name).empty() && font->Size >= kSmallestFont && font->Size <= kLargestFont;
  return good ? Verdict() : Refusal();
}

void StoreFont(const RowTarget& target, std::string_view text) {
  const auto font = ParseFontValue(text);
  if (!font) return;
  ObjectRecord& record = target.Record();
  record.FontName = font->Name;
  record.FontSize = font->Size;
  record.Bold = ToFlag(font->Bold);
  record.Italic = ToFlag(font->Italic);
  MeasureIfText(target);
}

std::string ReadCharset(const RowSource& source) {
  const std::string& code = source.Record().CharSet;
  return ItemOfCode(kCharsetList.tail, code.empty() ? "0" : code);
}

void StoreCharset(const RowTarget& target, std::string_view text) {
  target.Record().CharSet = CodeOfItem(text);
  MeasureIfText(target);
}

// --- Words for codes ---

std::string ReadAlignment(const RowSource& source) {
  return WordOf(kAlignments, source.Record().Align);
}

void StoreAlignment(const RowTarget& target, std::string_view text) {
  const std::string letter = CodePage::Default().Upper(Trim(text).substr(0, 1));
  for (const WordOfCode& row : kAlignments)
    if (row.code == letter) target.Record().Align = letter;
}

std::string ReadCaseMode(const RowSource& source) {
  return WordOf(kCaseModes, source.Record().CaseMode);
}

void StoreCaseMode(const RowTarget& target, std::string_view text) {
  for (const WordOfCode& row : kCaseModes)
    if (row.word == Trim(text)) target.Record().CaseMode = row.code;
}

void StoreValueType(const RowTarget& target, std::string_view text) {
  target.Record().ValueType = Trim(text).substr(0, kValueTypeLength);
}

std::string ItemOfCode(std::string_view tail, std::string_view code) {
  for (std::string& item : ListItems(tail))
    if (CodeOfItem(item) == code) return std::move(item);
  return std::string(code);
}

std::string_view CodeOfItem(std::string_view item) {
  return NthToken(Trim(item), 1, kBlank);
}

// --- Colours ---

namespace {

constexpr std::int16_t kNotSet = -1;
constexpr double kNotSetUnsigned = 65535;
constexpr Colour kNoColour = {kNotSet, kNotSet, kNotSet};

bool BeginsWithNumber(std::string_view text) {
  text = Trim(text);
  if (text.starts_with('-') || text.starts_with('+')) text = TrimLeft(text.substr(1));
  if (text.starts_with('.')) text.remove_prefix(1);
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

std::int16_t ParseChannel(std::string_view text) {
  if (!BeginsWithNumber(text)) return kNotSet;
  const double number = RoundToEven(NumericPrefix(text));
  if (number == kNotSet || number == kNotSetUnsigned) return kNotSet;
  return static_cast<std::int16_t>(std::clamp(number, 0.0, 255.0));
}

std::string ColourValue(const Colour& colour) {
  const Colour plain = NormaliseColour(colour);
  return std::to_string(plain.Red) + ',' + std::to_string(plain.Green) + ',' + std::to_string(plain.Blue);
}

}  // namespace

Colour ParseColour(std::string_view text) {
  return NormaliseColour({ParseChannel(NthToken(text, 1, ',')), ParseChannel(NthToken(text, 2, ',')),
                          ParseChannel(NthToken(text, 3, ','))});
}

std::string ReadForeColour(const RowSource& source) {
  return ColourValue(TextColourOf(source.Record()));
}

void StoreForeColour(const RowTarget& target, std::string_view text) {
  const Colour colour = ParseColour(text);
  ObjectRecord& record = target.Record();
  record.ColorR = colour.Red;
  record.ColorG = colour.Green;
  record.ColorB = colour.Blue;
}

// No colour at all is painted white.
std::string ReadBackColour(const RowSource& source) {
  const Colour colour = BackColourOf(source.Record());
  return colour == kNoColour ? "255,255,255" : ColourValue(colour);
}

void StoreBackColour(const RowTarget& target, std::string_view text) {
  const Colour colour = ParseColour(text);
  ObjectRecord& record = target.Record();
  record.BackColorR = colour.Red;
  record.BackColorG = colour.Green;
  record.BackColorB = colour.Blue;
}

}  // namespace kev
