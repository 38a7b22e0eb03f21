// SPDX-License-Identifier: MIT
// A page that is worked on without a window: a document, the pointer, a surface that records, and services
// that count what is asked of them and repaint as the designer does.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text_numbers.h"
#include "document/kind_defaults.h"
#include "document/sections.h"
#include "support/documents.h"
#include "support/recording_surface.h"
#include "support/sample_page.h"
#include "surface/page_background.h"
#include "surface/pointer_tracker.h"
#include "surface/selection.h"

namespace kev::test {

class ScriptedPage final : public PageServices {
 public:
  Document document;
  PointerState pointer;
  RecordingSurface surface;  // the widgets above the page and what is painted on them
  RecordingSurface canvas;   // the page below them
  BuiltInMeasurer measurer;
  double zoom = 1;
  DisplayFilter filter = DisplayFilter::All;
  double canvasWidth = 0, canvasHeight = 0;

  // What was asked for, in its order: "push", "repaint", "menu 4", "open 7", "tool", "box 766".
  std::vector<std::string> Calls;
  int Pushes = 0, Repaints = 0, Selections = 0;
  std::deque<BoxAnswer> Answers;
  std::optional<BoxIcon> LastIcon;  // of the last box
  std::function<void()> AllowTimer;
  int AllowMilliseconds = 0, TimersStarted = 0;
  std::function<void()> OnPush, OnRepaint;

  PageWork Work() {
    return {document, pointer, surface, *this, measurer, zoom, filter, {"/t", 7}, canvasWidth, canvasHeight};
  }
  std::string TakeCalls() {
    std::string all;
    for (const std::string& call : Calls)
      all += all.empty() ? call : ", " + call;
    Calls.clear();
    return all;
  }

  // As the designer paints: the page, then what follows from it.
  void Redraw() {
    PaintContext context{document, canvas, measurer, zoom, filter, 0, {"/t", 7}};
    const SortedRows sorted = SetSortKeys(document);
    const PaintResult painted = PaintPage(context, false, sorted);
    canvasWidth = context.canvasWidth;
    canvasHeight = CanvasHeightOf(sorted) * zoom;
    document.Objects.SelectionCount = painted.SelectionCount;
    pointer.MultiSelected = painted.MultiSelected();
    pointer.Bounds = painted.SelectionBounds;
  }

  void PushUndo() override {
    ++Pushes;
    Calls.push_back("push");
    if (OnPush) OnPush();
  }
  void MarkChanged() override { Calls.push_back("changed"); }
  void FullRepaint() override {
    ++Repaints;
    Calls.push_back("repaint");
    if (OnRepaint) OnRepaint();
    DeriveGeometry(document);
    Redraw();
    PageWork work = Work();
    ShowCurrentAgain(work);
    SelectionChanged();
  }
  void BandsChanged() override {
    NormaliseSubsections(document, SetSortKeys(document));
    FullRepaint();
  }
  void BuildRulers() override { Calls.push_back("rulers"); }
  void SelectionChanged() override { ++Selections; }
  void CommandsChanged() override {}
  const std::string& Text(int number) const override {
    text_ = number == kTextObjectsSelected ? "selected" : "text " + std::to_string(number);
    return text_;
  }
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons) override {
    Calls.push_back("box " + std::to_string(textNumber));
    LastIcon = icon;
    if (Answers.empty()) return BoxAnswer::Ok;
    const BoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  void OpenContextMenu(ContextMenu menu) override {
    static constexpr std::string_view kNames[] = {"edit", "object", "ruler", "columnline", "group"};
    Calls.push_back("menu " + std::string(kNames[static_cast<std::size_t>(menu)]));
  }
  void OpenProperties(int row) override { Calls.push_back("open " + std::to_string(row)); }
  void ShowFieldScreen(const FieldScreenLook&) override { Calls.push_back("field"); }
  void HideFieldScreen() override { Calls.push_back("no field"); }
  void StartAllowTimer(int milliseconds, std::function<void()> done) override {
    ++TimersStarted;
    AllowMilliseconds = milliseconds;
    AllowTimer = std::move(done);
  }
  void RunPendingTool() override {
    Calls.push_back("tool " + pointer.PendingTool);
    pointer.PendingTool.clear();
  }

 private:
  mutable std::string text_;
};

// One subsection [DATA] whose body lies from 400 to 9400, and a rubber band that may start.
class PageFixture : public testing::Test {
 protected:
  PageFixture() {
    const PlacedBar placed = PutSubsection(page_.document, "[DATA]", 0, 9000);
    bar_ = placed.bar;
    end_ = placed.end;
    ObjectRecord& end = Record(end_);
    end.Width = kBodyWidth;
    end.Handles = DefaultsOf(ObjectKind::EndOfSubsection).handles;
    end.MayMoveVertically = kTrue;
    Record(bar_).Handles = DefaultsOf(ObjectKind::Subsection).handles;
    page_.pointer.FirstClick = false;
    page_.pointer.BandAllowed = true;
  }

  ObjectRecord& Record(int row) { return page_.document.Objects[row]; }
  int Current() const { return page_.document.Objects.CurrentObject; }
  PointerState& Pointer() { return page_.pointer; }

  // A row that moves and sizes as its kind does.
  int Add(ObjectKind kind, std::string x, int y, int width, int height) {
    const int row = AddRow(page_.document, kind, std::move(x), y, width, height);
    ObjectRecord& record = Record(row);
    const KindDefaults& defaults = DefaultsOf(kind);
    record.Handles = defaults.handles;
    record.MayMoveVertically = defaults.mayMoveVertically;
    record.MayMoveHorizontally = defaults.mayMoveHorizontally;
    record.MayResize = defaults.mayResize;
    record.LineWidth = 1;
    return row;
  }
  int AddText(std::string x, int y, int width, std::string text) {
    const int row = Add(ObjectKind::Label, std::move(x), y, width, 230);
    Record(row).Content = std::move(text);
    return row;
  }

  // The page as it stands when a document has been opened.
  void Open(double zoom = 1) {
    page_.zoom = zoom;
    page_.FullRepaint();
    Forget();
  }
  // What was asked for and recorded so far.
  void Forget() {
    page_.Calls.clear();
    page_.Pushes = page_.Repaints = page_.Selections = 0;
    page_.surface.Lines.clear();
    page_.canvas.Lines.clear();
  }

  static PointerInput Input(PointerButton button, double x, double y, int shift = 0,
                            PointerSource source = PointerSource::Page, int index = 0) {
    return {source, index, button, shift, x, y};
  }
  void Press(double x, double y, int shift = 0, PointerSource source = PointerSource::Page, int index = 0) {
    PageWork work = page_.Work();
    tracker_.Press(work, Input(PointerButton::Left, x, y, shift, source, index));
  }
  void Move(double x, double y, PointerSource source = PointerSource::Page) {
    PageWork work = page_.Work();
    tracker_.Move(work, Input(PointerButton::Left, x, y, 0, source));
  }
  void MoveFree(double x, double y, int shift = 0) {
    PageWork work = page_.Work();
    tracker_.Move(work, Input(PointerButton::None, x, y, shift));
  }
  void Release(double x, double y, int shift = 0, PointerSource source = PointerSource::Page) {
    PageWork work = page_.Work();
    tracker_.Release(work, Input(PointerButton::Left, x, y, shift, source));
    MoveFree(x, y, shift);
  }
  void Click(double x, double y, int shift = 0, PointerSource source = PointerSource::Page, int index = 0) {
    Press(x, y, shift, source, index);
    Release(x, y, shift, source);
  }
  void Drag(CanvasPoint from, CanvasPoint to, int shift = 0, PointerSource source = PointerSource::Page,
            int index = 0) {
    Press(from.X, from.Y, shift, source, index);
    Move((from.X + to.X) / 2, (from.Y + to.Y) / 2);
    Move(to.X, to.Y);
    Release(to.X, to.Y, shift);
  }
  void RightClick(double x, double y, PointerSource source = PointerSource::Page, int index = 0,
                  int shift = 0) {
    PageWork work = page_.Work();
    tracker_.Press(work, Input(PointerButton::Right, x, y, shift, source, index));
    tracker_.Release(work, Input(PointerButton::Right, x, y, shift, source, index));
  }
  void DoubleClick(double x, double y, PointerSource source = PointerSource::Page, int index = 0) {
    Click(x, y, 0, source, index);
    PageWork work = page_.Work();
    tracker_.DoubleClick(work, Input(PointerButton::Left, x, y, 0, source, index));
  }
  bool Cancel() {
    PageWork work = page_.Work();
    return tracker_.Cancel(work);
  }

  void Select(int row) {
    PageWork work = page_.Work();
    SelectObject(work, row);
  }
  // Makes the rows a group, as Shift and clicks do.
  void Group(std::initializer_list<int> rows) {
    for (const int row : rows)
      Record(row).Selected = kTrue;
    page_.document.Objects.CurrentObject = 0;
    page_.FullRepaint();
    Forget();
  }
  // The rows of the group, each behind a blank.
  std::string Members() const {
    const ObjectTable& objects = page_.document.Objects;
    std::string members;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Selected == kTrue) members += ' ' + std::to_string(row);
    return members;
  }

  // By what was recorded since the last Forget.
  bool Shown(std::string_view widget) const {
    bool shown = false;
    for (const std::string& line : page_.surface.Lines) {
      if (line == "show " + std::string(widget)) shown = true;
      if (line == "hide " + std::string(widget)) shown = false;
    }
    return shown;
  }
  // "left top width height" of where it was placed last.
  std::string PlaceOf(std::string_view widget) const {
    const std::string head = "place " + std::string(widget) + ' ';
    std::string place;
    for (const std::string& line : page_.surface.Lines)
      if (line.starts_with(head)) place = line.substr(head.size());
    return place;
  }
  // What was painted on it last, line by line.
  std::string PaintedOn(std::string_view widget) const {
    const std::string head = "on " + std::string(widget);
    std::string painted;
    bool inside = false;
    for (const std::string& line : page_.surface.Lines) {
      const bool begins = line == head;
      if (begins) painted.clear();
      const bool aboveThePage = line.starts_with("on ") || line.starts_with("place ") ||
                                line.starts_with("show ") || line.starts_with("hide ") ||
                                line.starts_with("say ");
      if (inside && !aboveThePage) painted += line + '\n';
      inside = begins || (inside && !aboveThePage);
    }
    return painted;
  }

  ScriptedPage page_;
  PointerTracker tracker_;
  int bar_ = 0, end_ = 0;
};

}  // namespace kev::test
