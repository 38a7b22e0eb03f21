// SPDX-License-Identifier: MIT
#include "barcode/barcode_kinds.h"

#include <gtest/gtest.h>

#include "document/object_creation.h"
#include "document/symbologies.h"

namespace kev {
namespace {

struct Expected {
  int kind;
  std::string_view name, specimen, keyword;
  BarPainter painter;
};

TEST(BarcodeKinds, EachHasItsNameSpecimenAndPainter) {
  for (const Expected& row : {
           Expected{1, "STANDARD 3-9", "ABCDEF", "", BarPainter::Code39},
           Expected{8, "EAN-8", "12345678", "EAN8", BarPainter::Module},
           Expected{13, "EAN-13", "1234567890123", "EAN13", BarPainter::Module},
           Expected{32, kNoSuchKind, "", "32", BarPainter::Module},
           Expected{250, "2 OF 5 STANDARD", "1234567890", "2/5BARRE", BarPainter::Module},
           Expected{251, "2 OF 5 INTERLEAVE", "1234567890", "2/5INT", BarPainter::Module},
           Expected{252, "2 OF 5 INDUSTRIAL", "1234567890", "2/5IND", BarPainter::Module},
           Expected{1282, "128 B", "123456", "", BarPainter::Code128},
           Expected{1283, "128 C", "123456", "128C", BarPainter::Module},
           Expected{12821, "UCC EAN 128", "(01)12345678", "", BarPainter::Code128},
       }) {
    EXPECT_EQ(KindName(row.kind), row.name);
    EXPECT_EQ(SampleForKind(row.kind), row.specimen) << row.kind;
    EXPECT_EQ(EncoderKeyword(row.kind), row.keyword) << row.kind;
    EXPECT_EQ(BarPainterOf(row.kind), row.painter) << row.kind;
    const bool isNamed = row.name != kNoSuchKind;
    EXPECT_EQ(KindFromName(row.name), isNamed ? std::optional(row.kind) : std::nullopt);
  }
}

TEST(BarcodeKinds, OtherNumbersAndNamesAreNone) {
  for (const int kind : {0, -1, 2, 39, 128, 9999}) {
    EXPECT_EQ(BarPainterOf(kind), BarPainter::None) << kind;
    EXPECT_EQ(EncoderKeyword(kind), "") << kind;
    EXPECT_EQ(KindName(kind), "Barcode not found. ADD IT!") << kind;
  }
  EXPECT_EQ(KindFromName(""), std::nullopt);
  EXPECT_EQ(KindFromName(kNoSuchKind), std::nullopt);
}

TEST(BarcodeKinds, EverySymbologyIsPainted) {
  for (const Symbology& row : kSymbologies)
    EXPECT_NE(BarPainterOf(row.kind), BarPainter::None) << row.kind;
}

}  // namespace
}  // namespace kev
