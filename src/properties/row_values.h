// SPDX-License-Identifier: MIT
// Values of object rows that are more than a field: positions, contents, colours, fonts, words for codes.
#pragma once

#include <string>
#include <string_view>

#include "properties/sheet_table.h"

namespace kev {

inline Refusal RefusedWith(int text, BoxIcon icon = BoxIcon::Critical) {
  return {.Text = text, .Icon = icon};
}

// --- Positions. An empty row counts as 0. ---
Verdict CheckX(const RowTarget& target, std::string_view text);
Verdict CheckXNotNegative(const RowTarget& target, std::string_view text);
void StoreX(const RowTarget& target, std::string_view text);
Verdict CheckX2(const RowTarget& target, std::string_view text);
void StoreX2(const RowTarget& target, std::string_view text);
// From 0 to the end of the owner's body.
Verdict CheckY(const RowTarget& target, std::string_view text);
Verdict CheckNotNegative(const RowTarget& target, std::string_view text);
Verdict CheckLineWidth(const RowTarget& target, std::string_view text);

// --- Contents, stored as typed; a LABEL or COMMAND is measured again ---
Verdict CheckNotBlank(const RowTarget& target, std::string_view text);
void StoreContent(const RowTarget& target, std::string_view text);
// LABEL and COMMAND are as wide and high as their text; other kinds stay.
void MeasureIfText(const RowTarget& target);

// --- Font ---
std::string ReadFont(const RowSource& source);
Verdict CheckFont(const RowTarget& target, std::string_view text);
void StoreFont(const RowTarget& target, std::string_view text);
std::string ReadCharset(const RowSource& source);
void StoreCharset(const RowTarget& target, std::string_view text);

// --- Words for codes ---
std::string ReadAlignment(const RowSource& source);
// By the first letter; another one leaves the alignment as it is.
void StoreAlignment(const RowTarget& target, std::string_view text);
std::string ReadCaseMode(const RowSource& source);
void StoreCaseMode(const RowTarget& target, std::string_view text);
void StoreValueType(const RowTarget& target, std::string_view text);
// The item of a list whose text in front of the blank is the code; the code itself where there is none.
std::string ItemOfCode(std::string_view tail, std::string_view code);
std::string_view CodeOfItem(std::string_view item);

// --- Colours, as "red,green,blue" ---
std::string ReadForeColour(const RowSource& source);
void StoreForeColour(const RowTarget& target, std::string_view text);
std::string ReadBackColour(const RowSource& source);
void StoreBackColour(const RowTarget& target, std::string_view text);
// A part that is missing, unreadable, -1 or 65535 makes red the number of a basic colour; parts beyond their
// range are clamped.
Colour ParseColour(std::string_view text);

}  // namespace kev
