// SPDX-License-Identifier: MIT
#include "document/typed_position.h"

#include <gtest/gtest.h>

#include "document/symbologies.h"

namespace kev {
namespace {

TEST(TypedPosition, MustBeAPositionThatATemplateCanHold) {
  Document document;
  document.Columns[1] = {"$Col_01", 100, ""};
  for (const char* text : {"0", "100", "-5", "100abc", "1 440", "$COL_01", "$Col_01 - 5", "5 $Col_01", ".5"})
    EXPECT_TRUE(MayBePosition(text, document)) << text;
  for (const char* text : {"", "0.0", "00", "-0", "$Col_02", "1,5", "1;5", "1=5", "1{5", "1}5", "$Col_01  5"})
    EXPECT_FALSE(MayBePosition(text, document)) << text;
}

TEST(TypedPosition, IsStoredTrimmedAndWithAZeroBeforeItsPoint) {
  EXPECT_EQ(StoredPosition(" $Col_01 + 5 "), "$Col_01 + 5");
  EXPECT_EQ(StoredPosition(".5"), "0.5");
  EXPECT_EQ(StoredPosition(" .25x"), "0.25");
  EXPECT_EQ(StoredPosition("-.5"), "-.5");
  EXPECT_EQ(StoredPosition("100abc"), "100abc");
}

TEST(Symbologies, AreFoundByNumberAndByName) {
  for (const Symbology& row : kSymbologies) {
    EXPECT_EQ(SymbologyOfKind(row.kind), &row);
    if (row.name.empty()) continue;
    EXPECT_EQ(SymbologyOfName(row.name), &row);
  }
  EXPECT_EQ(SymbologyOfKind(0), nullptr);
  EXPECT_EQ(SymbologyOfName(""), nullptr);
  EXPECT_EQ(SymbologyOfName("ean-13"), nullptr);
}

}  // namespace
}  // namespace kev
