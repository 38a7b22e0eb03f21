// SPDX-License-Identifier: MIT
#include "surface/undo.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "support/sample_page.h"
#include "support/template_generator.h"

namespace kev {
namespace {

using test::AddLabel;

std::string Mark(int edits) {
  return "A" + std::to_string(edits);
}

// What a level holds of a document: the rows behind its bound count as blank.
struct Picture {
  std::vector<ObjectRecord> Rows;
  std::vector<std::pair<std::string, double>> Columns;

  bool operator==(const Picture&) const = default;
};

Picture PictureOf(const Document& document) {
  Picture picture;
  int last = ObjectTable::kLastRow;
  while (last > 0 && document.Objects[last] == ObjectRecord{})
    --last;
  for (int row = 1; row <= last; ++row)
    picture.Rows.push_back(document.Objects[row]);
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    picture.Columns.emplace_back(document.Columns[slot].Name, document.Columns[slot].Position);
  return picture;
}

// The same stepping over an array of whole pictures, with nothing shared and nothing spared.
class PlainStore {
 public:
  void Push(const Picture& now) {
    Keep(now);
    DropRedo();
  }
  void Undo(Picture& now) {
    if (index_ == 0) return;
    if (redone_) {
      levels_[index_] = now;
      filled_[index_] = true;
    } else {
      Keep(now);
      --index_;
    }
    now = levels_[index_];
    --index_;
    redone_ = false;
  }
  void Redo(Picture& now) {
    if (!CanRedo()) return;
    now = levels_[++index_];
    redone_ = true;
  }
  void DropRedo() {
    for (std::size_t level = index_ + 1; level <= 20; ++level)
      filled_[level] = false;
    redone_ = false;
  }
  bool CanRedo() const { return index_ < 20 && filled_[index_ + 1]; }
  int UndoIndex() const { return static_cast<int>(index_); }

 private:
  void Keep(const Picture& now) {
    if (++index_ > 20) {
      index_ = 20;
      for (std::size_t level = 1; level <= 20; ++level)
        levels_[level - 1] = levels_[level];
    }
    levels_[index_] = now;
    filled_[index_] = true;
  }

  std::array<Picture, 21> levels_;
  std::array<bool, 21> filled_{};
  std::size_t index_ = 0;
  bool redone_ = false;
};

class Undo : public testing::Test {
 protected:
  Undo() { row_ = AddLabel(document_, "100", 500, Mark(0)); }

  void Edit() {
    store_.Push(document_);
    document_.Objects[row_].Content = Mark(++edits_);
  }
  void Edit(int times) {
    for (int n = 0; n < times; ++n)
      Edit();
  }
  bool PressUndo() { return store_.Undo(document_); }
  bool PressRedo() { return store_.Redo(document_); }
  const std::string& Shown() const { return document_.Objects[row_].Content; }

  Document document_;
  UndoStore store_;
  int row_ = 0;
  int edits_ = 0;
};

TEST_F(Undo, AFreshStoreHasNothingToDo) {
  EXPECT_FALSE(store_.CanUndo());
  EXPECT_FALSE(store_.CanRedo());
  EXPECT_FALSE(PressUndo());
  EXPECT_FALSE(PressRedo());
  EXPECT_EQ(Shown(), "A0");
  EXPECT_EQ(store_.UndoIndex(), 0);
  EXPECT_EQ(store_.UndoTop(), 0);
  EXPECT_EQ(store_.RowsHeld(), 0U);
}

TEST_F(Undo, TheFirstPushMakesLevelOne) {
  Edit();
  EXPECT_EQ(store_.UndoIndex(), 1);
  EXPECT_EQ(store_.UndoTop(), 1);
  EXPECT_TRUE(store_.CanUndo());
  EXPECT_FALSE(store_.CanRedo());
}

// U presses after N edits show A(N-U); then the first press of redo is blind and the others come forward.
TEST_F(Undo, PressesFollowTheFormulaUpToNineteenEdits) {
  for (int edits = 1; edits <= 19; ++edits) {
    for (int undos = 1; undos <= edits; ++undos) {
      SCOPED_TRACE(testing::Message() << edits << " edits, " << undos << " undos");
      store_.Clear();
      edits_ = 0;
      document_.Objects[row_].Content = Mark(0);
      Edit(edits);
      for (int pressed = 1; pressed <= undos; ++pressed) {
        ASSERT_TRUE(PressUndo());
        ASSERT_EQ(Shown(), Mark(edits - pressed));
        ASSERT_TRUE(store_.CanRedo());
      }
      ASSERT_EQ(store_.CanUndo(), undos < edits);
      for (int pressed = 1; pressed <= undos + 1; ++pressed) {
        ASSERT_TRUE(PressRedo());
        ASSERT_EQ(Shown(), Mark(edits - undos + pressed - 1));
        ASSERT_TRUE(store_.CanUndo());
      }
      ASSERT_FALSE(store_.CanRedo());
      ASSERT_FALSE(PressRedo());
    }
  }
}

TEST_F(Undo, AtTheLimitNineteenUndosAndTwentyRedosArePossible) {
  for (const int edits : {20, 21, 57}) {
    store_.Clear();
    edits_ = 0;
    Edit(edits);
    EXPECT_EQ(store_.UndoIndex(), 20);
    for (int pressed = 1; pressed <= 19; ++pressed) {
      ASSERT_TRUE(PressUndo());
      ASSERT_EQ(Shown(), Mark(edits - pressed));
    }
    EXPECT_FALSE(store_.CanUndo());
    EXPECT_FALSE(PressUndo());
    for (int pressed = 1; pressed <= 20; ++pressed) {
      ASSERT_TRUE(PressRedo());
      ASSERT_EQ(Shown(), Mark(edits - 19 + pressed - 1));
    }
    EXPECT_FALSE(store_.CanRedo());
    EXPECT_EQ(store_.UndoIndex(), 20);
  }
}

TEST_F(Undo, TheTwentyFirstChangeDropsTheOldest) {
  Edit(21);
  EXPECT_EQ(store_.UndoIndex(), 20);
  EXPECT_EQ(store_.UndoTop(), 20);
  while (PressUndo()) {
  }
  EXPECT_EQ(Shown(), "A2");
}

TEST_F(Undo, UndoFromOneTakesLevelOneAndNeverLevelZero) {
  Edit();
  ASSERT_TRUE(PressUndo());
  EXPECT_EQ(Shown(), "A0");
  EXPECT_EQ(store_.UndoIndex(), 0);
  EXPECT_EQ(store_.UndoTop(), 2);
  document_.Objects[row_].Content = "typed since";
  EXPECT_FALSE(PressUndo());
  EXPECT_EQ(Shown(), "typed since");
  EXPECT_EQ(store_.UndoTop(), 2);
}

TEST_F(Undo, UndoBehindARedoIsBlindAndLosesNothing) {
  Edit(5);
  PressUndo();
  PressRedo();
  EXPECT_EQ(Shown(), "A4");
  ASSERT_TRUE(PressUndo());
  EXPECT_EQ(Shown(), "A4");
  EXPECT_EQ(store_.UndoTop(), 5);
  PressRedo();
  EXPECT_EQ(Shown(), "A4");
  ASSERT_TRUE(PressRedo());
  EXPECT_EQ(Shown(), "A5");
  EXPECT_FALSE(store_.CanRedo());
}

TEST_F(Undo, UndoBehindAllRedosWritesNoLevelAbove) {
  Edit(5);
  PressUndo();
  PressRedo();
  PressRedo();
  ASSERT_EQ(Shown(), "A5");
  PressUndo();
  EXPECT_EQ(Shown(), "A5");
  PressUndo();
  EXPECT_EQ(Shown(), "A4");
  PressRedo();
  PressRedo();
  EXPECT_EQ(Shown(), "A5");
  EXPECT_FALSE(store_.CanRedo());
}

TEST_F(Undo, UndoBehindARedoAtTheLimitShiftsNothing) {
  Edit(25);
  for (int pressed = 0; pressed < 3; ++pressed)
    PressUndo();
  for (int pressed = 0; pressed < 4; ++pressed)
    PressRedo();
  ASSERT_EQ(Shown(), "A25");
  ASSERT_EQ(store_.UndoIndex(), 20);
  int visible = 0;
  for (std::string before = Shown(); PressUndo(); before = Shown())
    visible += Shown() != before ? 1 : 0;
  EXPECT_EQ(visible, 19);
  EXPECT_EQ(Shown(), "A6");
}

TEST_F(Undo, AnEditBehindAnUndoForgetsWhatWasUndone) {
  Edit(5);
  PressUndo();
  PressUndo();
  ASSERT_TRUE(store_.CanRedo());
  Edit();
  EXPECT_FALSE(store_.CanRedo());
  EXPECT_FALSE(PressRedo());
  PressUndo();
  EXPECT_EQ(Shown(), "A3");
  PressUndo();
  EXPECT_EQ(Shown(), "A2");
}

TEST_F(Undo, AChangeWithoutAPushForgetsTheLevelsAbove) {
  Edit(5);
  PressUndo();
  PressUndo();
  document_.Columns[1] = {"$A", 100, {}};
  store_.DropRedo();
  EXPECT_FALSE(store_.CanRedo());
  ASSERT_TRUE(PressUndo());
  EXPECT_EQ(Shown(), "A2");
  EXPECT_EQ(document_.Columns[1], Column());
  PressRedo();
  ASSERT_TRUE(PressRedo());
  EXPECT_EQ(Shown(), "A3");
  EXPECT_EQ(document_.Columns[1].Name, "$A");
  EXPECT_FALSE(store_.CanRedo());
}

TEST_F(Undo, AChangeWithoutAPushBehindARedoCanBeUndone) {
  Edit(3);
  PressUndo();
  PressRedo();
  document_.Columns[7] = {"$B", 1440, {}};
  store_.DropRedo();
  ASSERT_TRUE(PressUndo());
  EXPECT_EQ(document_.Columns[7], Column());
  EXPECT_EQ(Shown(), "A2");
}

TEST_F(Undo, ClearingEmptiesEveryLevel) {
  Edit(30);
  PressUndo();
  store_.Clear();
  EXPECT_EQ(store_.UndoIndex(), 0);
  EXPECT_EQ(store_.UndoTop(), 0);
  EXPECT_EQ(store_.RowsHeld(), 0U);
  EXPECT_FALSE(PressUndo());
  EXPECT_FALSE(PressRedo());
  Edit();
  EXPECT_FALSE(store_.CanRedo());
}

TEST_F(Undo, AGrownTableLeavesNothingBehind) {
  Edit();
  while (document_.Objects.ObjectCount < 200)
    AddLabel(document_, "5", 900, "new");
  ASSERT_TRUE(PressUndo());
  EXPECT_EQ(document_.Objects.ObjectCount, 200);
  for (int row = 2; row <= ObjectTable::kLastRow; ++row)
    ASSERT_EQ(document_.Objects[row], ObjectRecord{}) << row;
  // Freed rows are used again.
  EXPECT_EQ(document_.Objects.TakeFreeRow(), 2);
  PressRedo();
  PressRedo();
  EXPECT_EQ(document_.Objects[150].Content, "new");
}

TEST_F(Undo, ALevelWithMoreRowsThanTheTableGrowsIt) {
  while (document_.Objects.ObjectCount < 120)
    AddLabel(document_, "5", 900, "old");
  const Picture before = PictureOf(document_);
  store_.Push(document_);
  document_.Objects.Restart();
  PressUndo();
  EXPECT_EQ(document_.Objects.ObjectCount, 120);
  EXPECT_EQ(PictureOf(document_), before);
}

TEST_F(Undo, TheLastRowOfTheTableIsKept) {
  document_.Objects.ObjectCount = 2010;
  document_.Objects[ObjectTable::kLastRow] = document_.Objects[row_];
  Edit();
  document_.Objects[ObjectTable::kLastRow].Content = "changed";
  PressUndo();
  EXPECT_EQ(document_.Objects[ObjectTable::kLastRow].Content, "A0");
  EXPECT_EQ(document_.Objects.ObjectCount, 2010);
}

TEST_F(Undo, EveryFieldComesBackAndSettingsStay) {
  test::TemplateGenerator random(7);
  document_ = random.SaneDocument();
  document_.Columns[100] = {"$Last", 0.5, "old name"};
  const Picture before = PictureOf(document_);
  store_.Push(document_);
  const std::string paper = document_.Settings[Setting::PAPERSIZE];
  document_.Settings[Setting::PAPERSIZE] = "A0";
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
    document_.Objects[row] = ObjectRecord{};
  document_.Columns.Clear();
  PressUndo();
  EXPECT_EQ(PictureOf(document_), before);
  EXPECT_EQ(document_.Settings[Setting::PAPERSIZE], "A0");
  EXPECT_NE(paper, "A0");
}

TEST_F(Undo, EqualRowsLieInMemoryOnce) {
  while (document_.Objects.ObjectCount < 2000)
    AddLabel(document_, "5", 900, "text");
  const auto rows = static_cast<std::size_t>(document_.Objects.LastScanned());
  Edit();
  EXPECT_EQ(store_.RowsHeld(), rows);
  Edit(19);
  EXPECT_LT(store_.RowsHeld(), rows + 20 * 32);
}

// Two hundred random presses and edits, in several seeds, against the plain array.
TEST(UndoStepping, RandomCommandsDoWhatAPlainArrayDoes) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    std::mt19937 random(seed);
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    Document document;
    UndoStore store;
    PlainStore plain;
    Picture expected = PictureOf(document);
    for (int command = 0; command < 200; ++command) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << " command " << command);
      switch (const int choice = below(20); choice) {
        case 0:
          document.Columns[1 + below(100)] = {"$C" + std::to_string(command), command * 1.5, {}};
          store.DropRedo();
          plain.DropRedo();
          expected = PictureOf(document);
          break;
        default:
          if (choice < 9) {
            store.Push(document);
            plain.Push(expected);
            const int row = choice < 5 ? document.Objects.TakeFreeRow() : 1 + below(30);
            document.Objects[row].Kind = ObjectKind::Label;
            document.Objects[row].Content = std::to_string(command);
            if (choice == 8) document.Objects.ClearRow(1 + below(40));
            expected = PictureOf(document);
          } else if (choice < 15) {
            store.Undo(document);
            plain.Undo(expected);
          } else {
            store.Redo(document);
            plain.Redo(expected);
          }
      }
      ASSERT_EQ(PictureOf(document), expected);
      ASSERT_EQ(store.UndoIndex(), plain.UndoIndex());
      ASSERT_EQ(store.CanRedo(), plain.CanRedo());
    }
  }
}

}  // namespace
}  // namespace kev
