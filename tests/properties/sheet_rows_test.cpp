// SPDX-License-Identifier: MIT
// Every row of every sheet is typed into, stored and shown again.
#include "properties/sheet_fixture.h"

namespace kev {
namespace {

using test::SheetTest;

struct RowCase {
  std::string_view caption;
  std::string typed;
  std::string shown;  // empty: as typed
};

class SheetRowsTest : public SheetTest {
 protected:
  // Each row in turn, on an object of its own; the whole sheet must be walked.
  void TryRows(ObjectKind kind, const std::vector<RowCase>& rows) {
    Make(kind);
    const Sheet sheet = Shown();
    ASSERT_EQ(sheet.Rows.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      ASSERT_EQ(sheet.Rows[i].Caption, rows[i].caption);
      Make(kind);
      TryRow(rows[i]);
    }
  }
  void TryRow(const RowCase& row) {
    const Sheet before = Shown();
    EXPECT_NE(ValueOf(row.caption), row.typed) << row.caption;
    EXPECT_EQ(Type(row.caption, row.typed), "push, repaint") << row.caption;
    EXPECT_EQ(ValueOf(row.caption), row.shown.empty() ? row.typed : row.shown) << row.caption;
    EXPECT_EQ(outcome_.Shown, Shown()) << row.caption;
  }
  void TryInBothPlaces(ObjectKind kind, const std::vector<RowCase>& rows) {
    for (const SheetPlace place : {SheetPlace::Docked, SheetPlace::Floating}) {
      place_ = place;
      TryRows(kind, rows);
    }
  }
};

TEST_F(SheetRowsTest, Label) {
  std::vector<RowCase> rows = {{"Expression", " Sum ", " Sum "},
                               {"X/Column", " $col_01 + 120 ", "$col_01 + 120"},
                               {"Y position", "1 000 twips", "1000"},
                               {"Alignment", "Center", ""},
                               {"Hyperlink", "  a b ", "a b"},
                               {"Align to grid", "No", ""},
                               {"Print at runtime", " Yes ", "Yes"},
                               {"Font", "Courier New|12|0|1", ""},
                               {"Font underline", "No", ""},
                               {"Font strike", "Yes", ""},
                               {"Charset", "204 - Cyrillic", ""},
                               {"Font color", "1,2,3", ""},
                               {"Format", " 0.0 ", "0.0"},
                               {"Text conversion", "UPPER", ""},
                               {"XLS field type", "Text", ""},
                               {"Modifyable by EU", "No", ""},
                               {"Stretch Text", " 80 ", "80"}};
  TryRows(ObjectKind::Label, rows);
  place_ = SheetPlace::Floating;
  rows[9].caption = "Font Strike";
  TryRows(ObjectKind::Label, rows);
}

TEST_F(SheetRowsTest, TextBox) {
  std::vector<RowCase> rows = {{"Initial expression", " Sum ", " Sum "},
                               {"@Variable", " @other ", "@other"},
                               {"X/Column", ".5", "0.5"},
                               {"Y position", "", "0"},
                               {"Width", "-12", ""},
                               {"Alignment", "Right", ""},
                               {"Align to grid", "No", ""},
                               {"Print at runtime", "Yes", ""},
                               {"Font", "Odd|Name|8|1|1", ""},
                               {"Font underline", "No", ""},
                               {"Font Strike", "Yes", ""},
                               {"Charset", "2 - Symbol", ""},
                               {"Font color", "4", "128,0,0"},
                               {"Border style", "2 - 3D border", ""},
                               {"Back color", "300,0,0", "255,0,0"},
                               {"XLS field type", "Number", ""},
                               {"Modifyable by EU", "No", ""},
                               {"Password field", "Yes", ""}};
  TryRows(ObjectKind::TextBox, rows);
  place_ = SheetPlace::Floating;
  rows.pop_back();
  TryRows(ObjectKind::TextBox, rows);
}

TEST_F(SheetRowsTest, Picture) {
  pictures_.Pictures = {{"logo.png", {1000, 500}}, {"other.png", {300, 150}}};
  TryInBothPlaces(ObjectKind::Picture, {{"File", " other.png ", "other.png"},
                                        {"X/Column", "-100", ""},
                                        {"Y position", "-5", ""},
                                        {"Width", "0", ""},
                                        {"Height", "77", ""},
                                        {"Calculate width at runtime", "Yes", ""},
                                        {"Calculate height at runtime", "No", ""},
                                        {"Print at runtime", "Yes", ""},
                                        {"Hyperlink", " b ", "b"},
                                        {"Align to grid", "No", ""},
                                        {"Modifyable by EU", "No", ""}});
}

TEST_F(SheetRowsTest, Box) {
  TryInBothPlaces(ObjectKind::Box, {{"X/Column", "", "0"},
                                    {"Y position", "0", ""},
                                    {"Width", "-3", ""},
                                    {"Height", "x", "0"},
                                    {"Line width", "10", ""},
                                    {"Color", "0,0,255", ""},
                                    {"Filled box", "No", ""},
                                    {"Dashed line", "Yes", ""},
                                    {"Align to grid", "No", ""},
                                    {"Print at runtime", "Yes", ""},
                                    {"Modifyable by EU", "No", ""}});
}

TEST_F(SheetRowsTest, Line) {
  TryInBothPlaces(ObjectKind::Line, {{"X/Column", "100abc", ""},
                                     {"X2 /Column", " $Col_01 ", "$Col_01"},
                                     {"Y position", "999", ""},
                                     {"Line width", "-1", ""},
                                     {"Forecolor", "0,0,255", ""},
                                     {"Dashed line", "No", ""},
                                     {"Align to grid", "No", ""},
                                     {"Print at runtime", "Yes", ""},
                                     {"Modifyable by EU", "No", ""}});
}

TEST_F(SheetRowsTest, AnyLine) {
  TryInBothPlaces(ObjectKind::AnyLine, {{"X/Column", "5 $Col_01", ""},
                                        {"Y position", "-20", ""},
                                        {"X plus:", "-1 200", "-1200"},
                                        {"Y plus:", "0", ""},
                                        {"Line width", "99", ""},
                                        {"Dashed line", "No", ""},
                                        {"Forecolor", "0,0,255", ""},
                                        {"Align to grid", "No", ""},
                                        {"Print at runtime", "Yes", ""},
                                        {"Modifyable by EU", "No", ""}});
}

TEST_F(SheetRowsTest, Circle) {
  TryInBothPlaces(ObjectKind::Circle, {{"X/Column", "1 440", ""},
                                       {"Y position", "1000", ""},
                                       {"Diameter", "500", ""},
                                       {"Line width", "99", ""},
                                       {"Color", "0,0,255", ""},
                                       {"Align to grid", "No", ""},
                                       {"Print at runtime", "Yes", ""}});
}

TEST_F(SheetRowsTest, Barcode) {
  TryInBothPlaces(ObjectKind::Barcode, {{"Barcode type", "128 C", ""},
                                        {"X/Column", "-7", ""},
                                        {"Y position", "5", ""},
                                        {"Expression", " @Other ", " @Other "},
                                        {"Sample value", "typed", "1234567890123"},
                                        {"Height", "9999", ""},
                                        {"Barwidth", "70", ""},
                                        {"Color", "0,0,255", ""},
                                        {"Vertical", "No", ""},
                                        {"Align to grid", "No", ""},
                                        {"Print at runtime", "Yes", ""},
                                        {"Modifyable by EU", "No", ""}});
}

TEST_F(SheetRowsTest, Qr) {
  TryInBothPlaces(ObjectKind::Qr, {{"Text", " other ", " other "},
                                   {"X/Column", "9", ""},
                                   {"Y position", "8", ""},
                                   {"Height/width", "700", ""},
                                   {"Color", "0,0,255", ""},
                                   {"Align to grid", "No", ""},
                                   {"Print at runtime", "Yes", ""},
                                   {"Modifyable by EU", "No", ""}});
}

TEST_F(SheetRowsTest, Command) {
  std::vector<RowCase> rows = {{"Command", " @@postshow ", "@@postshow"},
                               {"Execute", " any program ", "any program"},
                               {"Mode", "Always", ""},
                               {"Context", "Printer", ""},
                               {"Value", "77", "12"},
                               {"X/Column", "9", ""},
                               {"Y position", "8", ""},
                               {"Align to grid", "No", ""},
                               {"Modifyable by EU", "No", ""}};
  TryRows(ObjectKind::Command, rows);
  place_ = SheetPlace::Floating;
  std::swap(rows[7], rows[8]);
  TryRows(ObjectKind::Command, rows);
}

TEST_F(SheetRowsTest, Section) {
  for (const SheetPlace place : {SheetPlace::Docked, SheetPlace::Floating}) {
    place_ = place;
    document_.Objects.CurrentObject = bar_;
    Bar().EndsAt = 1000;
    Bar().SectionCursorY = 700;
    EXPECT_EQ(Type("Height", "800"), "push, bands");
    EXPECT_EQ(ValueOf("Height"), "800");
    EXPECT_EQ(Type("Section ends at", "1500"), "push, bands");
    EXPECT_EQ(ValueOf("Section ends at"), "1500");
    EXPECT_EQ(ValueOf("Height"), "800");
  }
}

TEST_F(SheetRowsTest, Document) {
  const std::vector<RowCase> rows = {{"Report_title", "Sales", ""},
                                     {"Orientation", "2 - Landscape", ""},
                                     {"Sample Kex/Ked file", folder_ / "a.kex", ""},
                                     {"Papersize", "A3, 297 x 420 mm", ""},
                                     {"Send Paper to Printer", "A4", ""},
                                     {"Always fit to paper", "Yes", ""},
                                     {"Top margin", "-10", ""},
                                     {"Left margin", "1 440 twips", "1440"},
                                     {"Printed top margin", "30.5", ""},
                                     {"Printed left margin", "", "0"},
                                     {"Maxy", "15000", ""},
                                     {"Decimal point", ",", ""},
                                     {"Conversion", " c ", "c"},
                                     {"Data conversion", "d", ""},
                                     {"Save allowed", "no", "No"},
                                     {"Print allowed", "maybe", ""},
                                     {"Export allowed", "Never", "No"},
                                     {"Link tips", "n", "No"},
                                     {"Open", "<", ""},
                                     {"Close", " > ", ">"},
                                     {"MailTo", " me ", "me"},
                                     {"PageLenght", "20000", ""},
                                     {"PageWidth", "100", ""},
                                     {"Copies", "3", ""},
                                     {"Spacing", "240", ""},
                                     {"PagAux", "5", ""},
                                     {"ZoomToPrint", "90", ""},
                                     {"Viewer options", "-q", ""},
                                     {"Printer", "Laser", ""},
                                     {"Preview on print server", "Yes", ""},
                                     {"Preview at", "75%", ""},
                                     {"PDF from Print Server", "Yes", ""},
                                     {"PDF filename from Print Server", "a.pdf", ""}};
  test::WriteBytes(folder_ / "a.kex", "TEMPLATE=x\r\n|A|1|\r\n");
  const DocumentSettings fresh = Settings();
  for (const SheetPlace place : {SheetPlace::Docked, SheetPlace::Floating}) {
    place_ = place;
    ASSERT_EQ(Shown().Rows.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      Settings() = fresh;
      const RowCase& row = rows[i];
      ASSERT_EQ(Shown().Rows[i].Caption, row.caption);
      const bool redraws =
          i + 1 == 2 || i + 1 == 4 || i + 1 == 8 || i + 1 == 22 || i + 1 == 23 || i + 1 == 25;
      EXPECT_EQ(Type(row.caption, row.typed), redraws ? "push, repaint, rulers" : "push") << row.caption;
      EXPECT_EQ(ValueOf(row.caption), row.shown.empty() ? row.typed : row.shown) << row.caption;
    }
  }
}

}  // namespace
}  // namespace kev
