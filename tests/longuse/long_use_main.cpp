// SPDX-License-Identifier: MIT
// A long life with a designer: random commands, the tables looked at after each one, undo held to what it
// puts back, memory at the end of each chapter.
//   long_use [COMMANDS [SEED]]
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>

#include "app/designer_fixture.h"
#include "longuse/random_user.h"
#include "longuse/table_faults.h"

#if defined(__SANITIZE_ADDRESS__)
// The compiler's package leaves out the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace kev::test {
namespace {

struct Plan {
  int Commands = 2000;
  std::uint32_t Seed = 1;
};

// Bytes that the process holds and has not given back.
std::size_t LiveBytes() {
#if defined(__SANITIZE_ADDRESS__)
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

constexpr int kChapter = 1000;   // commands
constexpr int kFullEvery = 10;   // chapters: one begins with a full table
constexpr int kUndoEvery = 7;    // commands: one is taken back
constexpr int kSafeLevels = 17;  // beyond, the oldest levels may be gone
// Bytes. Within them lie a table that was full once, and a clipboard with all of it.
constexpr std::size_t kMostHeld = 16U << 20U;
constexpr std::size_t kMostGrowth = 1U << 20U;

class LongUse : public DesignerTest {
 public:
  explicit LongUse(const Plan& plan) : plan_(plan) {}

 protected:
  void TestBody() override {
    // The fixture's program folder has no tools, so that no QR image is waited for.
    RandomUser user(host_, view_, root_ / "work", plan_.Seed);
    const std::unique_ptr<Designer> designer = Start();
    for (command_ = 0; command_ < plan_.Commands && !HasFailure(); ++command_) {
      if (command_ % kChapter == 0) BeginChapter(*designer, user);
      Step(*designer, user);
    }
    EndChapter(*designer);
    HoldToLevel();
    Report();
    designer->ShutDown();
  }

 private:
  void Step(Designer& designer, RandomUser& user) {
    const bool isHeldToUndo = command_ % kUndoEvery == 0;
    // At the last level a push shows no more.
    if (isHeldToUndo && designer.Surface().Undo().UndoIndex() >= kSafeLevels)
      for (int step = 0; step < kSafeLevels; ++step)
        designer.Run(Command::Undo);
    const int replaced = view_.Replaced;
    const int levels = designer.Surface().Undo().UndoIndex();
    std::vector<ObjectRecord> before;
    if (isHeldToUndo) before = RowsToCompare(designer.OpenDocument());

    const std::string_view kind = user.Act(designer);
    ++counts_[kind];
    const std::string what = std::string(kind) + user.Detail();
    designer.Surface().CommitOpenEdits();
    designer.Surface().CancelGesture();
    Forget();
    Look(designer, what);
    const bool pushedOnce = designer.Surface().Undo().UndoIndex() == levels + 1;
    const bool isOneChange = pushedOnce && kind != kUndoAndRedo;
    if (isHeldToUndo && isOneChange && view_.Replaced == replaced) HoldToUndo(designer, before, what);
  }

  void Look(const Designer& designer, const std::string& what) {
    for (const std::string& fault : TableFaults(designer.OpenDocument()))
      ADD_FAILURE() << fault << "\nbehind command " << command_ << " (" << what << "), seed " << plan_.Seed;
  }

  // Undo puts back what was; a first redo shows what the page shows already, the second the change.
  void HoldToUndo(Designer& designer, const std::vector<ObjectRecord>& before, const std::string& what) {
    ++undone_;
    const std::vector<ObjectRecord> after = RowsToCompare(designer.OpenDocument());
    designer.Run(Command::Undo);
    EXPECT_EQ(FirstRowDifference(RowsToCompare(designer.OpenDocument()), before), "")
        << "undo behind command " << command_ << " (" << what << "), seed " << plan_.Seed;
    designer.Run(Command::Redo);
    designer.Run(Command::Redo);
    EXPECT_EQ(FirstRowDifference(RowsToCompare(designer.OpenDocument()), after), "")
        << "redo behind command " << command_ << " (" << what << "), seed " << plan_.Seed;
  }

  // What host and view keep for other tests.
  void Forget() {
    view_.Page.Lines.clear();
    view_.Page.Symbols.clear();
    view_.Thumbnails.clear();
    view_.PanelStates.clear();
    // The end of one may begin another.
    for (std::size_t program = 0; program < host_.Programs.size(); ++program)
      if (host_.Programs[program].Ended) host_.EndProgram(host_.Programs[program].Id);
    host_.Programs.clear();
    host_.Messages.clear();
    host_.StatusHistory.clear();
    host_.ProgressTexts.clear();
    host_.Choices.clear();
    host_.FiltersOffered.clear();
    host_.Fetches.clear();
    host_.Waits.clear();
    host_.Addresses.clear();
    host_.DesktopFiles.clear();
  }

  void BeginChapter(Designer& designer, RandomUser& user) {
    if (command_ > 0) EndChapter(designer);
    if (command_ / kChapter % kFullEvery != kFullEvery / 2) return;
    user.OpenFullTemplate(designer);
    EXPECT_GT(designer.OpenDocument().Objects.ObjectCount, ObjectTable::kLastRow - 30);
  }

  // With a fresh document the process holds what it held behind the chapters before.
  void EndChapter(Designer& designer) {
    designer.NewTemplate();
    Forget();
    bytes_.push_back(LiveBytes());
    EXPECT_LE(bytes_.back(), kMostHeld) << "behind command " << command_;
  }

  // The least that was held in a round of chapters says what does not come back.
  void HoldToLevel() const {
    constexpr auto kRound = std::ptrdiff_t{kFullEvery};
    if (std::ssize(bytes_) < 3 * kRound) return;
    const auto second = bytes_.begin() + kRound;
    EXPECT_LE(*std::min_element(bytes_.end() - kRound, bytes_.end()),
              *std::min_element(second, second + kRound) + kMostGrowth);
  }

  void Report() const {
    std::cout << "long use: " << command_ << " commands, seed " << plan_.Seed << ", " << undone_
              << " undone and redone, " << bytes_.front() / 1024 << " kB behind the first chapter and "
              << bytes_.back() / 1024 << " kB behind the last\n";
    for (const auto& [name, count] : counts_)
      std::cout << "  " << name << ": " << count << '\n';
  }

  Plan plan_;
  int command_ = 0, undone_ = 0;
  std::map<std::string_view, int> counts_;
  std::vector<std::size_t> bytes_;
};

}  // namespace
}  // namespace kev::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  kev::test::Plan plan;
  if (argc > 1) plan.Commands = std::atoi(argv[1]);
  if (argc > 2) plan.Seed = static_cast<std::uint32_t>(std::atoi(argv[2]));
  testing::RegisterTest("LongUse", "KeepsTheTables", nullptr, nullptr, __FILE__, __LINE__,
                        [plan]() -> testing::Test* { return new kev::test::LongUse(plan); });
  return RUN_ALL_TESTS();
}
