// SPDX-License-Identifier: MIT
// Each gesture from its press to its release through the designer, as the window's events drive it.
#include <array>
#include <string_view>

#include "app/designer_fixture.h"
#include "document/kind_defaults.h"
#include "surface/press_rules.h"

namespace kev {
namespace {

// The corner of the object, from which places and distances of a gesture are counted.
constexpr double kX = 2000;
constexpr std::int32_t kYInBody = 1000;
constexpr int kColumnSlot = 1;

struct GestureRow {
  std::string_view Name;
  ObjectKind Kind = ObjectKind::None;  // None: the gesture needs no object
  bool Selected = false;               // before the press
  bool InGroup = false;
  PointerSource Source = PointerSource::Page;
  int Index = 0;
  CanvasPoint From;  // twips from the corner of the object
  bool PointerState::*Flag = nullptr;
};

// All that a press can begin and that changes the document.
constexpr std::array kGestures = {
    GestureRow{"LabelFromThePage",
               ObjectKind::Label,
               false,
               false,
               PointerSource::Page,
               0,
               {40, 40},
               &PointerState::ObjectDrag},
    GestureRow{"LabelByItsOverlay",
               ObjectKind::Label,
               true,
               false,
               PointerSource::Overlay,
               1,
               {40, 40},
               &PointerState::ObjectDrag},
    GestureRow{"LineByItsOverlay",
               ObjectKind::Line,
               true,
               false,
               PointerSource::Overlay,
               1,
               {40, 10},
               &PointerState::ObjectDrag},
    GestureRow{"BoxByASide",
               ObjectKind::Box,
               true,
               false,
               PointerSource::Overlay,
               4,
               {-10, 400},
               &PointerState::ObjectDrag},
    GestureRow{"BoxByItsInside",
               ObjectKind::Box,
               true,
               false,
               PointerSource::Page,
               0,
               {400, 300},
               &PointerState::BoxDrag},
    GestureRow{"EndBarFromThePage",
               ObjectKind::EndOfSubsection,
               false,
               false,
               PointerSource::Page,
               0,
               {40, 40},
               &PointerState::ObjectDrag},
    GestureRow{"EndBarByItsOverlay",
               ObjectKind::EndOfSubsection,
               true,
               false,
               PointerSource::Overlay,
               1,
               {40, 40},
               &PointerState::ObjectDrag},
    GestureRow{"WidthByItsHandle",
               ObjectKind::Picture,
               true,
               false,
               PointerSource::Handle,
               4,
               {1050, 400},
               &PointerState::ResizeDrag},
    GestureRow{"BothSizesByTheirHandle",
               ObjectKind::Picture,
               true,
               false,
               PointerSource::Handle,
               5,
               {1050, 850},
               &PointerState::ResizeDrag},
    GestureRow{"HeightByItsHandle",
               ObjectKind::TextBox,
               true,
               false,
               PointerSource::Handle,
               6,
               {500, 850},
               &PointerState::ResizeDrag},
    GestureRow{"FirstEndOfALine",
               ObjectKind::AnyLine,
               true,
               false,
               PointerSource::LineEnd,
               1,
               {0, 0},
               &PointerState::LineEndDrag},
    GestureRow{"SecondEndOfALine",
               ObjectKind::AnyLine,
               true,
               false,
               PointerSource::LineEnd,
               2,
               {1000, 800},
               &PointerState::LineEndDrag},
    GestureRow{"WholeLine",
               ObjectKind::AnyLine,
               true,
               false,
               PointerSource::LineBody,
               0,
               {500, 400},
               &PointerState::LineEndDrag},
    GestureRow{"WholeLineFromThePage",
               ObjectKind::AnyLine,
               false,
               false,
               PointerSource::Page,
               0,
               {500, 400},
               &PointerState::LineEndDrag},
    GestureRow{"Group",
               ObjectKind::Picture,
               false,
               true,
               PointerSource::Page,
               0,
               {500, 400},
               &PointerState::GroupDrag},
    GestureRow{"Column",
               ObjectKind::None,
               false,
               false,
               PointerSource::ColumnLine,
               kColumnSlot,
               {0, 0},
               &PointerState::ColumnDrag},
};

std::string TallTemplate() {
  std::string lines = "$Col_01=2000\r\n{500;}Alpha{\\n}\r\n";
  for (int line = 0; line < 11; ++line)
    lines += "{\\n}\r\n";
  return lines;
}

class PageGesturesTest : public test::DesignerTest {
 protected:
  PageGesturesTest() : designer_(Start()) {
    EXPECT_TRUE(designer_->OpenFresh(test::TemplateWith(TallTemplate())));
    Objects().CurrentObject = 0;
    designer_->OpenDocument().Columns[kColumnSlot] = {"$Col_01", kX, {}};
    bar_ = RowOf(ObjectKind::Subsection, "DATA]");
    EXPECT_GT(Objects()[bar_].EndsAt, 2500);
    Pointer().BandAllowed = true;
    Pointer().FirstClick = false;
  }

  DesignSurface& Surface() { return designer_->Surface(); }
  PointerState& Pointer() { return Surface().Pointer(); }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  const ObjectRecord& Record(int row) { return std::as_const(designer_->OpenDocument()).Objects[row]; }
  double Zoom() { return designer_->ZoomFactor(); }

  int RowOf(ObjectKind kind, std::string_view sectionName) {
    int found = 0;
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Record(row).Kind == kind && Record(row).SectionName == sectionName) found = row;
    EXPECT_NE(found, 0);
    return found;
  }
  // An object as its kind makes it, in the body of [DATA].
  int Add(ObjectKind kind, double x = kX) {
    if (kind == ObjectKind::EndOfSubsection) return Record(bar_).EndRow;
    const KindDefaults& defaults = DefaultsOf(kind);
    const int row = Objects().TakeFreeRow();
    ObjectRecord& record = Objects()[row];
    record.Kind = kind;
    record.Content = "Text";
    record.XValue = FormatNumber(x);
    record.X2Value = FormatNumber(x + 1000);
    record.AbsoluteY = Record(bar_).AbsoluteY + kBarHeight + kYInBody;
    record.Width = 1000;
    record.Height = kind == ObjectKind::Line ? 50 : 800;
    record.Align = "L";
    record.FontName = "Arial";
    record.FontSize = 10;
    record.CharSet = "0";
    record.LineWidth = 1;
    record.PrintFlag = kTrue;
    record.Handles = defaults.handles;
    record.MayMoveVertically = defaults.mayMoveVertically;
    record.MayMoveHorizontally = defaults.mayMoveHorizontally;
    record.MayResize = defaults.mayResize;
    Surface().FullRepaint();
    return row;
  }
  void Select(int row) {
    Objects().CurrentObject = row;
    Surface().FullRepaint();
    EXPECT_EQ(Objects().CurrentObject, row);
  }

  static PointerInput Input(PointerButton button, CanvasPoint at, PointerSource source = PointerSource::Page,
                            int index = 0) {
    return {source, index, button, 0, at.X, at.Y};
  }
  // From the press to the last held move.
  void Hold(PointerSource source, int index, CanvasPoint from, CanvasPoint to) {
    Surface().PointerPress(Input(PointerButton::Left, from, source, index));
    Surface().PointerMove(Input(PointerButton::Left, {(from.X + to.X) / 2, (from.Y + to.Y) / 2}));
    Surface().PointerMove(Input(PointerButton::Left, to));
  }
  void Release(CanvasPoint at) { Surface().PointerRelease(Input(PointerButton::Left, at)); }

  std::vector<ObjectRecord> Rows() {
    std::vector<ObjectRecord> rows;
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      rows.push_back(Record(row));
    return rows;
  }
  bool Shows(std::string_view widget) {
    bool shown = false;
    for (const std::string& line : view_.Page.Lines) {
      if (line == "show " + std::string(widget)) shown = true;
      if (line == "hide " + std::string(widget)) shown = false;
    }
    return shown;
  }

  std::unique_ptr<Designer> designer_;
  int bar_ = 0;
};

// --- Every gesture at every zoom
// -----------------------------------------------------------------------------------------

struct GestureCase {
  GestureRow Row;
  int Percent = 100;
};

class EveryGesture : public PageGesturesTest, public testing::WithParamInterface<GestureCase> {
 protected:
  // The page as it is before the press.
  EveryGesture() {
    EXPECT_TRUE(designer_->SetZoom(std::to_string(GetParam().Percent) + "%"));
    const GestureRow& row = GetParam().Row;
    if (row.Kind != ObjectKind::None) row_ = Add(row.Kind);
    if (row.InGroup) Join(row_, Add(row.Kind, kX + 3000));
    if (row.Selected) Select(row_);
    const double x = row_ == 0 ? kX : LeftOf(Record(row_), designer_->OpenDocument());
    const double y = row_ == 0 ? Record(bar_).AbsoluteY + kBarHeight : Record(row_).AbsoluteY;
    from_ = {(x + row.From.X) * Zoom(), (y + row.From.Y) * Zoom()};
    // A multiple of the units of a twip at each zoom.
    to_ = {from_.X + 300 * Zoom(), from_.Y + 200 * Zoom()};
  }

  void Join(int one, int other) {
    Objects()[one].Selected = Objects()[other].Selected = kTrue;
    Surface().FullRepaint();
    EXPECT_TRUE(Pointer().MultiSelected);
  }
  void HoldIt() { Hold(GetParam().Row.Source, GetParam().Row.Index, from_, to_); }
  bool FlagIsOn() { return Pointer().*(GetParam().Row.Flag); }

  int row_ = 0;
  CanvasPoint from_, to_;
};

TEST_P(EveryGesture, BeginsWithTheMovesAndEndsInOneLevelOfUndo) {
  const std::vector<ObjectRecord> before = Rows();
  const ColumnTable columns = designer_->OpenDocument().Columns;
  HoldIt();
  EXPECT_TRUE(FlagIsOn());
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0) << "nothing is changed on the way";
  EXPECT_FALSE(designer_->Modified());
  Release(to_);
  EXPECT_FALSE(Pointer().InGesture());
  EXPECT_FALSE(Surface().Busy());
  EXPECT_EQ(Surface().Undo().UndoIndex(), 1);
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(Rows() != before || !(designer_->OpenDocument().Columns == columns));
  // The window may send a move behind the release.
  Surface().PointerMove(Input(PointerButton::None, to_));
  EXPECT_EQ(Surface().Undo().UndoIndex(), 1);
}

TEST_P(EveryGesture, EndsAlsoWithAMoveWithoutAButton) {
  HoldIt();
  Surface().PointerMove(Input(PointerButton::None, to_));
  EXPECT_FALSE(Surface().Busy());
  Release(to_);
  EXPECT_EQ(Surface().Undo().UndoIndex(), 1);
}

TEST_P(EveryGesture, IsTakenBackByOneUndo) {
  const std::string x = Record(std::max(row_, 1)).XValue;
  const std::int32_t y = Record(std::max(row_, 1)).AbsoluteY;
  const std::int32_t width = Record(std::max(row_, 1)).Width;
  const std::int32_t height = Record(std::max(row_, 1)).Height;
  HoldIt();
  Release(to_);
  EXPECT_TRUE(designer_->Run(Command::Undo));
  const ObjectRecord& record = Record(std::max(row_, 1));
  EXPECT_EQ(record.XValue, x);
  EXPECT_EQ(record.AbsoluteY, y);
  EXPECT_EQ(record.Width, width);
  EXPECT_EQ(record.Height, height);
  EXPECT_EQ(designer_->OpenDocument().Columns[kColumnSlot].Position, kX);
}

TEST_P(EveryGesture, EscapeLeavesTheRowsAndNoLevel) {
  const std::vector<ObjectRecord> before = Rows();
  HoldIt();
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  EXPECT_FALSE(Pointer().InGesture());
  Release(to_);
  EXPECT_TRUE(Rows() == before);
  EXPECT_EQ(designer_->OpenDocument().Columns[kColumnSlot].Position, kX);
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
  EXPECT_FALSE(designer_->Modified());
}

TEST_P(EveryGesture, ALostWindowLeavesTheRowsAndNoLevel) {
  const std::vector<ObjectRecord> before = Rows();
  HoldIt();
  Surface().CancelGesture();
  EXPECT_FALSE(Surface().Busy());
  Surface().PointerMove(Input(PointerButton::None, to_));
  Release(to_);
  EXPECT_TRUE(Rows() == before);
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
  EXPECT_FALSE(designer_->Modified());
}

TEST_P(EveryGesture, NoCommandAndNoToolRunsOnItsWay) {
  const std::vector<ObjectRecord> before = Rows();
  HoldIt();
  EXPECT_TRUE(designer_->Run(Command::DeleteObject));
  EXPECT_TRUE(designer_->Run(Command::SelectAll));
  EXPECT_FALSE(Surface().KeyDown(kKeyDelete, 0, {}));
  Surface().ToggleTool("LABEL");
  EXPECT_EQ(Pointer().PendingTool, "");
  EXPECT_TRUE(Rows() == before);
  EXPECT_TRUE(FlagIsOn());
  Release(to_);
  EXPECT_EQ(Surface().Undo().UndoIndex(), 1);
}

TEST_P(EveryGesture, APressWithoutAMoveChangesNothing) {
  HoldIt();
  Surface().CancelGesture();
  const std::vector<ObjectRecord> before = Rows();
  Surface().PointerPress(Input(PointerButton::Left, from_, GetParam().Row.Source, GetParam().Row.Index));
  Surface().PointerMove(Input(PointerButton::Left, {from_.X + 30, from_.Y + 30}));
  EXPECT_FALSE(Pointer().InGesture()) << "two pixels";
  Release(from_);
  EXPECT_TRUE(Rows() == before);
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
}

std::vector<GestureCase> EachGestureAtEachZoom() {
  std::vector<GestureCase> cases;
  for (const GestureRow& row : kGestures)
    for (const int percent : {50, 100, 200})
      cases.push_back({row, percent});
  return cases;
}

INSTANTIATE_TEST_SUITE_P(OfThePage, EveryGesture, testing::ValuesIn(EachGestureAtEachZoom()),
                         [](const testing::TestParamInfo<GestureCase>& gesture) {
                           return std::string(gesture.param.Row.Name) + std::to_string(gesture.param.Percent);
                         });

// --- What some of them come to
// -------------------------------------------------------------------------------------------

TEST_F(PageGesturesTest, DraggedLabelLiesWhereItWasLetGoAndStaysSelected) {
  const int row = Add(ObjectKind::Label);
  const std::int32_t y = Record(row).AbsoluteY;
  const CanvasPoint from{kX + 40, y + 40.0};
  Hold(PointerSource::Page, 0, from, {from.X + 300, from.Y + 200});
  Release({from.X + 300, from.Y + 200});
  EXPECT_EQ(Record(row).XValue, "2300");
  EXPECT_EQ(Record(row).AbsoluteY, y + 200);
  EXPECT_EQ(Objects().CurrentObject, row);
  EXPECT_TRUE(Shows("lblob(1)"));
  EXPECT_TRUE(Shows("dot_1"));
  EXPECT_FALSE(Shows("lnh01"));
}

TEST_F(PageGesturesTest, EndBarMakesItsBodyHigher) {
  const int end = Record(bar_).EndRow;
  const std::int32_t endsAt = Record(bar_).EndsAt;
  const CanvasPoint from{kX, Record(end).AbsoluteY + 40.0};
  Hold(PointerSource::Page, 0, from, {from.X, from.Y + 300});
  Release({from.X, from.Y + 300});
  EXPECT_EQ(Record(bar_).EndsAt, endsAt + 300);
}

TEST_F(PageGesturesTest, RubberBandSelectsWithoutAnUndoLevel) {
  const int one = Add(ObjectKind::Picture), other = Add(ObjectKind::Picture, kX + 2000);
  const CanvasPoint from{kX - 300, Record(one).AbsoluteY - 300.0};
  const CanvasPoint to{kX + 2100, from.Y + 500};
  Hold(PointerSource::Page, 0, from, to);
  EXPECT_TRUE(Pointer().BandActive);
  EXPECT_TRUE(Shows("LineSelectHor01"));
  Release(to);
  EXPECT_EQ(Record(one).Selected, kTrue);
  EXPECT_EQ(Record(other).Selected, kTrue);
  EXPECT_FALSE(Shows("LineSelectHor01"));
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(PageGesturesTest, RowThatMayNotMoveStartsNoDrag) {
  const int row = Add(ObjectKind::Picture);
  Objects()[row].MayMoveVertically = Objects()[row].MayMoveHorizontally = kFalse;
  Select(row);
  const CanvasPoint from{kX + 100, Record(row).AbsoluteY + 100.0};
  for (const PointerSource source : {PointerSource::Overlay, PointerSource::Page}) {
    Hold(source, 1, from, {from.X + 300, from.Y + 200});
    EXPECT_FALSE(Pointer().InGesture());
    Release({from.X + 300, from.Y + 200});
    EXPECT_EQ(Record(row).XValue, "2000");
    EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
  }
}

}  // namespace
}  // namespace kev
