// SPDX-License-Identifier: MIT
#include "document/papers.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/code_page.h"
#include "base/text.h"

namespace kev {
namespace {

struct PaperRow {
  std::array<std::string_view, 3> names;  // without blanks, in capitals; unused ones are empty
  std::int32_t width;                     // twips
  std::int32_t length;
};

constexpr std::int32_t In(double inches) {
  return static_cast<std::int32_t>(inches * 1440 + 0.5);
}
constexpr std::int32_t Mm(double millimetres) {
  return In(millimetres / 25.4);
}

// By code, from 1. The sizes that stand as plain numbers are rounded as the viewer rounds them, so they are
// not computed. Codes 48 and 49 have no size of their own on the platform; a page needs one all the same.
constexpr std::array<PaperRow, 80> kPapers = {{
    {{"LETTER"}, 12240, 15840},
    {{"LETTERSMALL"}, In(8.5), In(11)},
    {{"TABLOID"}, In(11), In(17)},
    {{"LEDGER"}, In(17), In(11)},
    {{"LEGAL"}, 12240, 20160},
    {{"STATEMENT"}, In(5.5), In(8.5)},
    {{"EXECUTIVE"}, 10440, 15120},
    {{"A3"}, 16840, 23820},
    {{"A4"}, 11900, 16840},
    {{"A4SMALL"}, Mm(210), Mm(297)},
    {{"A5"}, 8390, 11905},
    {{"B4JIS", "JISB4"}, Mm(257), Mm(364)},
    {{"B5JIS", "B5", "JISB5"}, Mm(182), Mm(257)},
    {{"FOLIO"}, In(8.5), In(13)},
    {{"QUARTO"}, Mm(215), Mm(275)},
    {{"10X14"}, In(10), In(14)},
    {{"11X17"}, In(11), In(17)},
    {{"NOTE"}, In(8.5), In(11)},
    {{"ENVELOPE#9"}, In(3.875), In(8.875)},
    {{"ENVELOPE#10", "ENVELOPE10"}, In(4.125), In(9.5)},
    {{"ENVELOPE#11"}, In(4.5), In(10.375)},
    {{"ENVELOPE#12"}, In(4.75), In(11)},
    {{"ENVELOPE#14"}, In(5), In(11.5)},
    {{"CSIZESHEET"}, In(17), In(22)},
    {{"DSIZESHEET"}, In(22), In(34)},
    {{"ESIZESHEET"}, In(34), In(44)},
    {{"ENVELOPEDL"}, 6236, 12473},
    {{"ENVELOPEC5"}, Mm(162), Mm(229)},
    {{"ENVELOPEC3"}, Mm(324), Mm(458)},
    {{"ENVELOPEC4"}, Mm(229), Mm(324)},
    {{"ENVELOPEC6"}, Mm(114), Mm(162)},
    {{"ENVELOPEC65"}, Mm(114), Mm(229)},
    {{"ENVELOPEB4"}, Mm(250), Mm(353)},
    {{"ENVELOPEB5"}, Mm(176), Mm(250)},
    {{"ENVELOPEB6"}, Mm(176), Mm(125)},
    {{"ENVELOPE"}, Mm(110), Mm(230)},
    {{"ENVELOPEMONARCH"}, In(3.875), In(7.5)},
    {{"63/4ENVELOPE"}, In(3.625), In(6.5)},
    {{"USSTDFANFOLD"}, In(14.875), In(11)},
    {{"GERMANSTDFANFOLD"}, In(8.5), In(12)},
    {{"GERMANLEGALFANFOLD"}, In(8.5), In(13)},
    {{"B4(ISO)"}, Mm(250), Mm(353)},
    {{"JAPANESEPOSTCARD"}, Mm(100), Mm(148)},
    {{"9X11"}, In(9), In(11)},
    {{"10X11"}, In(10), In(11)},
    {{"15X11"}, In(15), In(11)},
    {{"ENVELOPEINVITE"}, Mm(220), Mm(220)},
    {{"RESERVED48"}, In(8.5), In(11)},
    {{"RESERVED49"}, In(8.5), In(11)},
    {{"LETTEREXTRA"}, In(9.5), In(12)},
    {{"LEGALEXTRA"}, In(9.5), In(15)},
    {{"TABLOIDEXTRA"}, In(11.69), In(18)},
    {{"A4EXTRA"}, In(9.27), In(12.69)},
    {{"LETTERTRANSVERSE"}, In(8.5), In(11)},
    {{"A4TRANSVERSE"}, Mm(210), Mm(297)},
    {{"LETTEREXTRATRANSVERSE"}, In(9.5), In(12)},
    {{"SUPERA"}, Mm(227), Mm(356)},
    {{"SUPERB"}, Mm(305), Mm(487)},
    {{"LETTERPLUS"}, In(8.5), In(12.69)},
    {{"A4PLUS"}, Mm(210), Mm(330)},
    {{"A5TRANSVERSE"}, Mm(148), Mm(210)},
    {{"B5(JIS)TRANSVERSE"}, Mm(182), Mm(257)},
    {{"A3EXTRA"}, Mm(322), Mm(445)},
    {{"A5EXTRA"}, Mm(174), Mm(235)},
    {{"B5(ISO)EXTRA"}, Mm(201), Mm(276)},
    {{"A2"}, 23812, 33676},
    {{"A3TRANSVERSE"}, Mm(297), Mm(420)},
    {{"A3EXTRATRANSVERSE"}, Mm(322), Mm(445)},
    {{"JAPANESEDOUBLEPOSTCARD"}, Mm(200), Mm(148)},
    {{"A6"}, Mm(105), Mm(148)},
    {{"JAPANESEENVELOPEKAKU#2", "JKAKU2"}, Mm(240), Mm(332)},
    {{"JAPANESEENVELOPEKAKU#3", "JKAKU3"}, Mm(216), Mm(277)},
    {{"JAPANESEENVELOPECHOU#3", "JCHOU3"}, Mm(120), Mm(235)},
    {{"JAPANESEENVELOPECHOU#4", "JCHOU4"}, Mm(90), Mm(205)},
    {{"LETTERROTATED"}, In(11), In(8.5)},
    {{"A3ROTATED"}, Mm(420), Mm(297)},
    {{"A4ROTATED"}, Mm(297), Mm(210)},
    {{"A5ROTATED"}, Mm(210), Mm(148)},
    {{"B4(JIS)ROTATED"}, Mm(364), Mm(257)},
    {{"B5(JIS)ROTATED"}, Mm(257), Mm(182)},
}};

constexpr std::array<std::string_view, 39> kDisplayNames = {
    "Letter, 8 1/2 x 11 in.",
    "Letter Small, 8 1/2 x 11 in.",
    "Tabloid, 11 x 17 in.",
    "Ledger, 17 x 11 in.",
    "Legal, 8 1/2 x 14 in.",
    "Statement, 5 1/2 x 8 1/2 in.",
    "Executive, 7 1/4 x 10 1/2 in.",
    "A3, 297 x 420 mm",
    "A4, 210 x 297 mm",
    "A4 Small, 210 x 297 mm",
    "A5, 148 x 210 mm",
    "B4 JIS, 257 x 364 mm",
    "B5 JIS, 182 x 257 mm",
    "Folio, 8 1/2 x 13 in.",
    "Quarto, 215 x 275 mm",
    "10x14, 10 x 14 in.",
    "11x17, 11 x 17 in.",
    "Note, 8 1/2 x 11 in.",
    "Envelope #9, 3 7/8 x 8 7/8 in.",
    "Envelope #10, 4 1/8 x 9 1/2 in.",
    "Envelope #11, 4 1/2 x 10 3/8 in.",
    "Envelope #12, 4 3/4 x 11 in.",
    "Envelope #14, 5 x 11 1/2 in.",
    "C Size Sheet, 17 x 22 in.",
    "D Size Sheet, 22 x 34 in.",
    "E Size Sheet, 34 x 44 in.",
    "Envelope DL, 110 x 220 mm",
    "Envelope C5, 162 x 229 mm",
    "Envelope C3, 324 x 458 mm",
    "Envelope C4, 229 x 324 mm",
    "Envelope C6, 114 x 162 mm",
    "Envelope C65, 114 x 229 mm",
    "Envelope B4, 250 x 353 mm",
    "Envelope B5, 176 x 250 mm",
    "Envelope B6, 176 x 125 mm",
    "Envelope, 110 x 230 mm",
    "Envelope Monarch, 3 7/8 x 7 1/2 in.",
    "6 3/4 Envelope, 3 5/8 x 6 1/2 in.",
    "US Std Fanfold, 14 7/8 x 11 in.",
};

std::string Reduced(std::string_view name) {
  std::string reduced(NthToken(name, 1, ','));
  std::erase(reduced, kBlank);
  return CodePage::Default().Upper(reduced);
}

bool HasName(const PaperRow& row, std::string_view name) {
  return std::find(row.names.begin(), row.names.end(), name) != row.names.end();
}

}  // namespace

std::optional<Paper> LookupPaper(std::string_view name) {
  const std::string reduced = Reduced(name);
  if (reduced.empty()) return std::nullopt;
  std::int16_t code = 0;
  for (const PaperRow& row : kPapers) {
    ++code;
    if (HasName(row, reduced) || std::to_string(code) == reduced) return Paper{code, row.width, row.length};
  }
  return std::nullopt;
}

std::span<const std::string_view> PaperDisplayNames() {
  return kDisplayNames;
}

}  // namespace kev
