// SPDX-License-Identifier: MIT
// Random runs of what a user does, through the designer: what undo and redo show is held against whole copies
// of the tables and of the template's text, and each snapshot against the recovery file that it leaves.
#include <gmock/gmock.h>

#include <array>
#include <optional>
#include <random>
#include <utility>

#include "app/designer_fixture.h"
#include "app/read_back.h"
#include "base/files.h"
#include "base/numbers.h"
#include "document/sections.h"
#include "surface/press_rules.h"
#include "surface/subsection_dialog.h"
#include "template/reader.h"
#include "template/writer.h"

namespace kev {
namespace {

using testing::SizeIs;

std::string TextOf(const Document& document) {
  Document copy = document;
  WriteReport report;
  return TemplateText(copy, {}, report);
}

// All that an undo must give back, and the text of the template at that moment.
struct Moment {
  std::vector<ObjectRecord> Rows;
  std::vector<std::pair<std::string, double>> Columns;
  std::string Text;

  bool operator==(const Moment&) const = default;
};

Moment MomentOf(const Document& document) {
  Moment moment;
  const ObjectTable& objects = document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    moment.Rows.push_back(objects[row]);
    moment.Rows.back().Selected = kFalse;
    // How wide a bar code is, its last painting says: that of the page, or that of the panel above it.
    if (moment.Rows.back().Kind == ObjectKind::Barcode) moment.Rows.back().Width = 0;
  }
  // A table that has grown holds no more than before.
  while (!moment.Rows.empty() && moment.Rows.back() == ObjectRecord{})
    moment.Rows.pop_back();
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    moment.Columns.emplace_back(document.Columns[slot].Name, document.Columns[slot].Position);
  moment.Text = TextOf(document);
  return moment;
}

// The levels as an array of whole copies.
class PlainLevels {
 public:
  void Push(const Moment& present) {
    Keep(present);
    Drop();
  }
  const Moment& Undo(const Moment& present) {
    if (redone_) {
      levels_.at(Index()) = present;
    } else {
      Keep(present);
      --index_;
    }
    redone_ = false;
    return *levels_.at(static_cast<std::size_t>(index_--));
  }
  const Moment& Redo() {
    redone_ = true;
    return *levels_.at(static_cast<std::size_t>(++index_));
  }
  void Drop() {
    std::fill(levels_.begin() + index_ + 1, levels_.end(), std::nullopt);
    redone_ = false;
  }
  bool CanUndo() const { return index_ > 0; }
  bool CanRedo() const { return index_ < kLast && levels_.at(Index() + 1).has_value(); }

 private:
  static constexpr int kLast = 20;

  std::size_t Index() const { return static_cast<std::size_t>(index_); }
  void Keep(const Moment& present) {
    if (index_ == kLast)
      std::rotate(levels_.begin(), levels_.begin() + 1, levels_.end());
    else
      ++index_;
    levels_.at(Index()) = present;
  }

  std::array<std::optional<Moment>, kLast + 1> levels_;
  int index_ = 0;
  bool redone_ = false;
};

constexpr std::string_view kData =
    "{500;}Alpha{3000;}Beta{\\n}\r\n{Spacing=2500;\\n}\r\n[ITEMS:@code]\r\n{100;}First{\\n}\r\n"
    "{Spacing=1500;\\n}\r\n[TOTALS:@sum]\r\n{Spacing=1200;\\n}\r\n";

class UndoRuns : public test::DesignerTest {
 protected:
  UndoRuns() {
    // A name of its own for each recovery file tells how many were written.
    clock_ = [this] {
      const int second = written_++;
      return ClockTime{second / 3600, second / 60 % 60, second % 60};
    };
    view_.OnColumnsDialog = [this](ColumnsDialogRun& run) { UseColumnsDialog(run); };
    view_.OnSetThisColumn = [this](SetColumnRun& run) { UseSetThisColumn(run); };
    view_.OnSubsection = [this](SubsectionDialog& dialog, const std::function<bool()>& accept) {
      dialog.Name = dialog.Row == 0 ? "SUB" + Number(1, 9) : dialog.Name;
      if (Below(2) == 0) {
        dialog.AtCurrentPosition = false;
        dialog.Start = Number(1, 4000);
      }
      accept();
    };
  }

  void Begin(unsigned seed) {
    random_.seed(seed);
    designer_ = Start();
    ASSERT_TRUE(designer_->OpenFresh(test::TemplateWith(std::string(kData))));
    designer_->Surface().Pointer().BandAllowed = true;
    ASSERT_TRUE(designer_->SetZoom(Pick<std::string_view>({"50", "100", "200"})));
  }

  // --- Chance
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  int Between(int least, int most) { return least + Below(most - least + 1); }
  std::string Number(int least, int most) { return std::to_string(Between(least, most)); }
  template <typename Value>
  Value Pick(std::initializer_list<Value> values) {
    return *(values.begin() + Below(static_cast<int>(values.size())));
  }

  // --- The document
  Document& Open() { return designer_->OpenDocument(); }
  const ObjectRecord& Record(int row) { return std::as_const(Open()).Objects[row]; }
  DesignSurface& Surface() { return designer_->Surface(); }
  int Current() { return Open().Objects.CurrentObject; }
  // Some row of those; 0 where there is none.
  int RowWhere(const std::function<bool(const ObjectRecord&)>& wanted) {
    std::vector<int> rows;
    for (int row = 1; row <= Open().Objects.LastScanned(); ++row)
      if (wanted(Record(row))) rows.push_back(row);
    return rows.empty() ? 0 : rows[static_cast<std::size_t>(Below(static_cast<int>(rows.size())))];
  }
  int SomeObject() {
    return RowWhere(
        [](const ObjectRecord& record) { return record.Kind != ObjectKind::None && !IsBand(record.Kind); });
  }
  int SomeRow(ObjectKind kind) {
    return RowWhere([kind](const ObjectRecord& record) { return record.Kind == kind; });
  }
  int SomeColumn() {
    std::vector<int> slots;
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
      if (IsColumn(Open().Columns, slot)) slots.push_back(slot);
    return slots.empty() ? 0 : slots[static_cast<std::size_t>(Below(static_cast<int>(slots.size())))];
  }

  // --- The pointer
  PointerInput Input(PointerButton button, CanvasPoint at) const {
    return {source_, index_, button, 0, at.X, at.Y};
  }
  void Click(CanvasPoint at) {
    source_ = PointerSource::Page;
    Surface().PointerPress(Input(PointerButton::Left, at));
    Surface().PointerRelease(Input(PointerButton::Left, at));
  }
  void Drag(PointerSource source, int index, CanvasPoint from) {
    source_ = source;
    index_ = index;
    const CanvasPoint to{from.X + Between(-1500, 1500), from.Y + Between(-900, 900)};
    Surface().PointerPress(Input(PointerButton::Left, from));
    Surface().PointerMove(Input(PointerButton::Left, {(from.X + to.X) / 2, (from.Y + to.Y) / 2}));
    Surface().PointerMove(Input(PointerButton::Left, to));
    Surface().PointerRelease(Input(PointerButton::Left, to));
  }
  CanvasArea AreaNow(int row) { return AreaOf(Record(row), Open(), designer_->ZoomFactor()); }
  CanvasPoint On(int row) {
    const CanvasArea area = AreaNow(row);
    return {area.Left + std::min(area.Width() / 2, 30.0), area.Top + std::min(area.Height() / 2, 30.0)};
  }
  // In the body of a subsection, or outside them all.
  CanvasPoint SomePlace() {
    const int row = SomeRow(ObjectKind::Subsection);
    const double y = Record(row).AbsoluteY + Between(300, 700 + std::max(Record(row).EndsAt, 0));
    return {Between(0, 9000) * designer_->ZoomFactor(), y * designer_->ZoomFactor()};
  }

  // --- What the user does. Selecting is no change, and asked of each of them.
  void SelectRow(int row) {
    const Moment before = MomentOf(Open());
    const int written = written_;
    if (row != 0) Click(On(row));
    EXPECT_EQ(written_, written);
    EXPECT_TRUE(MomentOf(Open()) == before) << "a click has changed something";
  }
  void ClickSomewhere() {
    const int written = written_;
    Click(SomePlace());
    EXPECT_EQ(written_, written);
  }

  // No COMMAND: without its arguments it does not come back from a template.
  void InsertSomething() {
    constexpr std::array kCommands = {
        Command::InsertLabel,   Command::InsertTextBox, Command::InsertPicture, Command::InsertBox,
        Command::InsertAnyLine, Command::InsertCircle,  Command::InsertBarcode, Command::InsertHorizontalLine,
        Command::InsertChart,   Command::InsertQr};
    if (Below(3) == 0) {
      Surface().ToggleTool(Pick<std::string_view>({"LABEL", "BOX", "LINE", "ANYLINE", "QR", "TEXTBOX"}));
      return Click(SomePlace());
    }
    designer_->Run(kCommands.at(static_cast<std::size_t>(Below(kCommands.size()))));
  }
  void MoveCurrent() {
    if (Current() == 0) return;
    if (Record(Current()).Kind == ObjectKind::AnyLine)
      return Drag(Below(2) == 0 ? PointerSource::LineBody : PointerSource::LineEnd, Between(1, 2),
                  On(Current()));
    Drag(Below(2) == 0 ? PointerSource::Page : PointerSource::Overlay, 1, On(Current()));
  }
  void ResizeCurrent() {
    if (Current() == 0) return;
    const CanvasArea area = AreaNow(Current());
    Drag(PointerSource::Handle, Between(4, 6), {area.Right, area.Bottom});
  }
  void DragEndBar() {
    source_ = PointerSource::Page;
    Drag(PointerSource::Page, 0, On(SomeRow(ObjectKind::EndOfSubsection)));
  }
  void DragGroup() {
    designer_->Run(Command::SelectAll);
    const CanvasArea& bounds = Surface().Pointer().Bounds;
    if (Surface().Pointer().MultiSelected) Drag(PointerSource::Page, 0, {bounds.Left + 20, bounds.Top + 20});
  }
  void EditProperty() {
    const Sheet& sheet = designer_->Sheets().Shown();
    if (sheet.Object == 0 || !sheet.Enabled || sheet.Rows.empty()) return;
    const int row = Between(1, static_cast<int>(sheet.Rows.size()));
    const std::vector<std::string>& items = sheet.Rows[static_cast<std::size_t>(row) - 1].Items;
    std::string text = Pick<std::string>({"Yes", "No", "100", "250", "800", "1500", "3000", "Left", "abc"});
    if (!items.empty()) text = items[static_cast<std::size_t>(Below(static_cast<int>(items.size())))];
    designer_->Sheets().Edited(row, std::move(text));
  }
  void TypeText() {
    if (!Surface().KeyDown('T', 0, "t")) return;
    Surface().FieldTextChanged("text " + Number(1, 99));
    Surface().EndFieldScreen(Below(4) != 0);
  }
  void DragColumn() {
    const int slot = SomeColumn();
    if (slot == 0) return;
    Drag(PointerSource::ColumnLine, slot, {Open().Columns[slot].Position * designer_->ZoomFactor(), 500});
  }
  void RemoveSomeColumn() {
    Surface().Pointer().MenuAt.Slot = SomeColumn();
    designer_->Run(Command::RemoveColumn);
  }
  void InsertSomeColumn() {
    Surface().Pointer().MenuAt.RulerX = Between(0, 9000);
    designer_->Run(Command::InsertColumnHere);
  }
  void SetSomeColumn() {
    Surface().Pointer().MenuAt.Slot = SomeColumn();
    designer_->Run(Command::SetColumn);
  }
  void UseSomeColumn() {
    const int count = static_cast<int>(view_.Columns.Items.size());
    if (count != 0) Surface().ChooseColumn(Below(count));
  }
  void UseColumnsDialog(ColumnsDialogRun& run) {
    const int count = static_cast<int>(run.State().List1.size());
    if (count != 0 && (dialogRemoves_ || Below(2) == 0)) run.Choose(Below(count));
    if (dialogRemoves_) return run.Remove();
    run.TypePosition(Number(0, 6000));
    run.AddOrModify();
  }
  void UseSetThisColumn(SetColumnRun& run) {
    if (Below(3) == 0) run.TypeName("$c" + Number(1, 9));
    if (Below(2) == 0) run.TypePosition(Number(100, 6000));
    run.Accept();
  }
  void ColumnsDialog(bool removes) {
    dialogRemoves_ = removes;
    designer_->Run(Command::SetColumns);
  }

  // --- One command, held against the copies
  // Takes a snapshot if it changes something, and one at most.
  void Change(const char* name, const std::function<void()>& command) {
    const Document present = Open();
    const Moment before = MomentOf(present);
    const int written = written_;
    command();
    const Moment after = MomentOf(Open());
    const int pushes = written_ - written;
    ASSERT_LE(pushes, 1) << name;
    ASSERT_TRUE(pushes == 1 || after == before) << name << " changed something without a snapshot";
    if (pushes == 1) {
      levels_.Push(before);
      edits_.push_back(after);
      ExpectRecovery(before.Text, present);
    }
    ExpectCommands(name);
  }
  // Takes none; what stands above is forgotten if something changes.
  void ChangeWithout(const char* name, const std::function<void()>& command) {
    const Moment before = MomentOf(Open());
    const int written = written_;
    command();
    ASSERT_EQ(written_, written) << name;
    if (MomentOf(Open()) == before) return ExpectCommands(name);
    levels_.Drop();
    EXPECT_TRUE(designer_->Modified()) << name;
    ExpectCommands(name);
  }
  void PressUndo() {
    const Document standing = Open();
    const Moment present = MomentOf(standing);
    const int written = written_;
    designer_->Run(Command::Undo);
    ASSERT_EQ(written_ - written, levels_.CanUndo() ? 1 : 0);
    if (levels_.CanUndo()) {
      ExpectShown(levels_.Undo(present));
      ExpectRecovery(present.Text, standing);
    }
    ExpectCommands("undo");
  }
  void PressRedo() {
    const int written = written_;
    designer_->Run(Command::Redo);
    ASSERT_EQ(written_ - written, levels_.CanRedo() ? 1 : 0);
    if (levels_.CanRedo()) {
      const Moment& shown = levels_.Redo();
      ExpectShown(shown);
      ExpectRecovery(shown.Text, Open());
    }
    ExpectCommands("redo");
  }

  void ExpectShown(const Moment& expected) {
    const Moment shown = MomentOf(Open());
    EXPECT_EQ(shown.Text, expected.Text);
    ASSERT_EQ(shown.Rows.size(), expected.Rows.size());
    for (std::size_t row = 0; row < shown.Rows.size(); ++row)
      EXPECT_TRUE(shown.Rows[row] == expected.Rows[row]) << "row " << row + 1;
    EXPECT_EQ(shown.Columns, expected.Columns);
  }
  void ExpectCommands(const char* name) {
    EXPECT_EQ(designer_->Enabled(Command::Undo), levels_.CanUndo()) << name;
    EXPECT_EQ(designer_->Enabled(Command::Redo), levels_.CanRedo()) << name;
    EXPECT_EQ(host_.CaptionModified, designer_->Modified()) << name;
  }
  // One file, of this very change, whole, from which the document can be read.
  void ExpectRecovery(const std::string& expected, const Document& document) {
    ASSERT_THAT(CacheNames(), SizeIs(1));
    const int second = written_ - 1;
    const std::string name =
        RecoveryName({second / 3600, second / 60 % 60, second % 60}, designer_->DocumentTitle());
    ASSERT_EQ(CacheNames().front(), name);
    const std::string bytes = *ReadWholeFile(Temp("Cache/" + name));
    ASSERT_EQ(bytes, expected);
    NoPictures pictures;
    Result<ReadOutcome> read = ReadTemplateBytes(bytes, {measurer_, pictures});
    ASSERT_TRUE(read);
    DeriveGeometry(read->Read);
    // Some values do not come back from any template; objects do.
    EXPECT_FALSE(CompareReadBack(document, read->Read).Structure) << bytes;
  }

  void ChangeSomething() {
    switch (Below(16)) {
      case 0:
      case 1:
      case 2:
        ClickSomewhere();
        return Change("insert", [this] { InsertSomething(); });
      case 3:
      case 4:
        SelectRow(SomeObject());
        return Change("move", [this] { MoveCurrent(); });
      case 5:
        SelectRow(SomeObject());
        return Change("resize", [this] { ResizeCurrent(); });
      case 6:
        SelectRow(Below(3) == 0 ? SomeRow(ObjectKind::Subsection) : SomeObject());
        host_.Answers = {BoxAnswer::Yes};
        return Change("delete", [this] { designer_->Run(Command::DeleteObject); });
      case 7:
      case 8:
        SelectRow(Below(4) == 0 ? SomeRow(ObjectKind::Subsection) : SomeObject());
        return Change("property", [this] { EditProperty(); });
      case 9:
        SelectRow(SomeRow(ObjectKind::Label));
        return Change("text", [this] { TypeText(); });
      case 10:
        return Change("end bar", [this] { DragEndBar(); });
      case 11:
        ClickSomewhere();
        return Change("group", [this] { DragGroup(); });
      case 12:
        SelectRow(SomeRow(ObjectKind::Subsection));
        return Change("order", [this] { designer_->Run(Pick({Command::MoveUp, Command::MoveDown})); });
      case 13:
        return Change("subsection", [this] { designer_->Run(Command::NewSubsection); });
      case 14:
        return Change("column", [this] { Below(2) == 0 ? DragColumn() : ColumnsDialog(false); });
      default:
        SelectRow(SomeObject());
        return Change("column", [this] { Below(3) == 0 ? RemoveSomeColumn() : UseSomeColumn(); });
    }
  }
  void ChangeColumnsWithout() {
    host_.Answers = {BoxAnswer::Yes};
    switch (Below(5)) {
      case 0:
      case 1:
        return ChangeWithout("insert column", [this] { InsertSomeColumn(); });
      case 2:
        return ChangeWithout("set column", [this] { SetSomeColumn(); });
      case 3:
        return ChangeWithout("organise", [this] { designer_->Run(Command::OrganizeColumns); });
      default:
        return ChangeWithout("remove column", [this] { ColumnsDialog(true); });
    }
  }

  std::mt19937 random_;
  std::unique_ptr<Designer> designer_;
  PlainLevels levels_;
  std::vector<Moment> edits_;  // what stood behind each snapshot's change
  int written_ = 0;
  PointerSource source_ = PointerSource::Page;
  int index_ = 0;
  bool dialogRemoves_ = false;
};

class RandomRun : public UndoRuns, public testing::WithParamInterface<unsigned> {};

TEST_P(RandomRun, OfTwoHundredCommandsShowsWhatWholeCopiesHold) {
  Begin(GetParam());
  for (int command = 0; command < 200 && !HasFailure(); ++command) {
    SCOPED_TRACE("command " + std::to_string(command));
    const int what = Below(10);
    if (what < 2) {
      PressUndo();
    } else if (what < 4) {
      PressRedo();
    } else if (what == 4) {
      ChangeColumnsWithout();
    } else {
      ChangeSomething();
    }
    host_.Answers.clear();
    host_.Messages.clear();
  }
}

INSTANTIATE_TEST_SUITE_P(Undo, RandomRun, testing::Range(1U, 13U));

class EditRun : public UndoRuns, public testing::WithParamInterface<unsigned> {
 protected:
  void Edit(std::size_t count) {
    edits_ = {MomentOf(Open())};
    while (edits_.size() <= count && !HasFailure()) {
      ChangeSomething();
      host_.Answers.clear();
    }
  }
};

TEST_P(EditRun, UpToNineteenEditsGoBackAndComeBackOneByOne) {
  Begin(GetParam());
  const int count = Between(1, 19);
  Edit(static_cast<std::size_t>(count));
  const auto state = [this](int edit) -> const Moment& { return edits_.at(static_cast<std::size_t>(edit)); };
  const int undos = Between(1, count);
  for (int undo = 1; undo <= undos; ++undo) {
    designer_->Run(Command::Undo);
    ExpectShown(state(count - undo));
  }
  EXPECT_EQ(designer_->Enabled(Command::Undo), undos < count);
  designer_->Run(Command::Redo);
  ExpectShown(state(count - undos));
  for (int redo = 2; redo <= undos + 1; ++redo) {
    EXPECT_TRUE(designer_->Enabled(Command::Redo));
    designer_->Run(Command::Redo);
    ExpectShown(state(count - undos + redo - 1));
  }
  EXPECT_FALSE(designer_->Enabled(Command::Redo));
}

TEST_P(EditRun, BehindTheLimitNineteenUndosAndTwentyRedosArePossible) {
  Begin(GetParam());
  const int count = Between(20, 26);
  Edit(static_cast<std::size_t>(count));
  int undos = 0, redos = 0;
  for (; designer_->Enabled(Command::Undo) && undos < 100; ++undos)
    designer_->Run(Command::Undo);
  EXPECT_EQ(undos, 19);
  ExpectShown(edits_.at(static_cast<std::size_t>(count - 19)));
  for (; designer_->Enabled(Command::Redo) && redos < 100; ++redos)
    designer_->Run(Command::Redo);
  EXPECT_EQ(redos, 20);
  ExpectShown(edits_.back());
}

INSTANTIATE_TEST_SUITE_P(Undo, EditRun, testing::Range(1U, 13U));

}  // namespace
}  // namespace kev
