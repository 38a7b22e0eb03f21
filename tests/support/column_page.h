// SPDX-License-Identifier: MIT
// A page with columns and what its work says to the designer, kept as lines of text in the order of the
// calls.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "support/recording_surface.h"
#include "support/sample_page.h"
#include "surface/column_lines.h"
#include "surface/page_work.h"

namespace kev::test {

class ColumnServices final : public PageServices {
 public:
  std::vector<std::string> Calls;
  std::deque<BoxAnswer> Answers;  // Ok when there are none left
  std::vector<int> Boxes;
  BoxIcon LastIcon = BoxIcon::Question;
  BoxButtons LastButtons = BoxButtons::Ok;
  ColumnList List;
  std::vector<std::string> ListTexts;
  std::function<void()> OnPush;

  int Count(const std::string& call) const {
    int count = 0;
    for (const std::string& one : Calls)
      count += one == call ? 1 : 0;
    return count;
  }

  void PushUndo() override {
    Calls.emplace_back("push");
    if (OnPush) OnPush();
  }
  void MarkChanged() override { Calls.emplace_back("changed"); }
  void FullRepaint() override { Calls.emplace_back("repaint"); }
  void BandsChanged() override { Calls.emplace_back("bands"); }
  void BuildRulers() override { Calls.emplace_back("rulers"); }
  void SelectionChanged() override { Calls.emplace_back("selection"); }
  void CommandsChanged() override {}
  const std::string& Text(int) const override { return text_; }
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons buttons) override {
    Calls.push_back("box " + std::to_string(textNumber));
    Boxes.push_back(textNumber);
    LastIcon = icon;
    LastButtons = buttons;
    if (Answers.empty()) return BoxAnswer::Ok;
    const BoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}
  void ShowColumnList(const ColumnList& list) override {
    List = list;
    ListTexts.push_back(list.Text);
  }

 private:
  std::string text_;
};

class ColumnPageTest : public testing::Test {
 protected:
  PageWork Work() {
    return {.document = document_,
            .pointer = pointer_,
            .surface = surface_,
            .services = services_,
            .measurer = measurer_,
            .ZoomFactor = zoom_,
            .images = {},
            .canvasWidth = 12000,
            .canvasHeight = 9000};
  }
  // In the slots from 1 on; an empty name leaves a slot free.
  void SetColumns(const std::vector<Column>& columns) {
    document_.Columns.Clear();
    for (std::size_t i = 0; i < columns.size(); ++i)
      document_.Columns[static_cast<int>(i) + 1] = columns[i];
  }
  // "$Col_01=3000 $Col_03=20": the used slots.
  std::string Columns() const {
    std::string all;
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
      const Column& column = document_.Columns[slot];
      if (column.Name.empty()) continue;
      all += (all.empty() ? "" : " ") + column.Name + "=" + FormatNumber(column.Position);
    }
    return all;
  }
  ObjectRecord& Record(int row) { return document_.Objects[row]; }
  int AddLine(std::string x, std::string x2, int width) {
    const int row = AddRow(document_, ObjectKind::Line, std::move(x), 1000, width, 15);
    document_.Objects[row].X2Value = std::move(x2);
    return row;
  }

  Document document_;
  PointerState pointer_;
  RecordingSurface surface_;
  ColumnServices services_;
  BuiltInMeasurer measurer_;
  double zoom_ = 1;
};

}  // namespace kev::test
