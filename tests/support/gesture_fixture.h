// SPDX-License-Identifier: MIT
// A page to drag on: services that count and keep what they are asked, and repaint by running the geometry
// chain.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "document/kind_defaults.h"
#include "document/position.h"
#include "document/sections.h"
#include "support/documents.h"
#include "support/recording_surface.h"
#include "surface/gesture.h"
#include "surface/object_area.h"
#include "surface/page_work.h"

namespace kev::test {

// Puts the panels or grips of a row where its overlay shows them.
inline void PlaceOverlay(const Document& document, PointerState& pointer, int row, double zoom) {
  pointer.Overlay = {};
  if (row == 0) return;
  const ObjectRecord& record = document.Objects[row];
  const CanvasArea area = AreaOf(record, document, zoom);
  const double out = 25;
  const CanvasArea outer{area.Left - out, area.Top - out, area.Right + out, area.Bottom + out};
  if (record.Kind == ObjectKind::Box) {
    pointer.Overlay[1] = {outer.Left, outer.Top, outer.Right, area.Top};
    pointer.Overlay[2] = {area.Right, outer.Top, outer.Right, outer.Bottom};
    pointer.Overlay[3] = {outer.Left, area.Bottom, outer.Right, outer.Bottom};
    pointer.Overlay[4] = {outer.Left, outer.Top, area.Left, outer.Bottom};
  } else {
    pointer.Overlay[1] = area;
  }
  if (record.Kind != ObjectKind::AnyLine) return;
  const double x = LeftOf(record, document);
  pointer.LineStart = {x * zoom, record.AbsoluteY * zoom};
  pointer.LineEnd = {(x + record.Width) * zoom, (record.AbsoluteY + record.Height) * zoom};
}

class GestureServices final : public PageServices {
 public:
  GestureServices(Document& document, PointerState& pointer) : document_(document), pointer_(pointer) {}

  std::vector<std::string> Calls;  // "push", "repaint", "bands", "box 766", "field", "hidefield"
  std::vector<Document> Levels;    // the document at each push
  std::deque<BoxAnswer> Answers;   // taken one by one; Ok when there are none left
  std::vector<BoxIcon> Icons;      // of the boxes shown
  std::vector<BoxButtons> Buttons;
  std::vector<FieldScreenLook> Fields;
  int CommandChanges = 0;
  bool GestureOnWhileRepainting = false;
  double Zoom = 1;

  int Pushes() const { return static_cast<int>(Levels.size()); }

  void PushUndo() override {
    Calls.emplace_back("push");
    Levels.push_back(document_);
  }
  void MarkChanged() override { Calls.emplace_back("mark"); }
  void FullRepaint() override {
    Calls.emplace_back("repaint");
    Repaint();
  }
  void BandsChanged() override {
    Calls.emplace_back("bands");
    NormaliseSubsections(document_, SetSortKeys(document_));
    Repaint();
  }
  void BuildRulers() override {}
  void SelectionChanged() override {}
  void CommandsChanged() override { ++CommandChanges; }
  const std::string& Text(int number) const override {
    text_ = std::to_string(number);
    return text_;
  }
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons buttons) override {
    Calls.push_back("box " + std::to_string(textNumber));
    Icons.push_back(icon);
    Buttons.push_back(buttons);
    if (Answers.empty()) return BoxAnswer::Ok;
    const BoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook& look) override {
    Calls.emplace_back("field");
    Fields.push_back(look);
  }
  void HideFieldScreen() override { Calls.emplace_back("hidefield"); }
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 private:
  void Repaint() {
    GestureOnWhileRepainting = pointer_.InGesture();
    const BuiltInMeasurer measurer;
    DeriveGeometry(document_);
    ApplyRedrawWriteBack(document_, measurer, DisplayFilter::All);
    DeriveGeometry(document_);
    pointer_.MultiSelected = false;
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row)
      if (std::as_const(document_).Objects[row].Selected == kTrue) pointer_.MultiSelected = true;
    PlaceOverlay(document_, pointer_, document_.Objects.CurrentObject, Zoom);
  }

  Document& document_;
  PointerState& pointer_;
  mutable std::string text_;
};

// A page with the body of [DATA] from 400 to 4400 and that of [ITEMS] from 5000 to 7000. Nothing snaps unless
// a test asks for it.
class GestureTest : public testing::Test {
 public:
  GestureTest() : services(document, pointer) {
    data = AddBar("[DATA]", 0, 4000);
    items = AddBar("[ITEMS]", 4600, 2000);
  }

  void SetZoom(double zoom) { services.Zoom = zoomFactor = zoom; }

  PageWork Work() {
    return {document,   pointer, surface, services,           measurer,
            zoomFactor, filter,  {},      12000 * zoomFactor, 8000 * zoomFactor};
  }

  PlacedBar AddBar(const std::string& name, std::int32_t y, std::int32_t endsAt) {
    const PlacedBar placed = PutSubsection(document, name, y, endsAt);
    ObjectRecord& end = document.Objects[placed.end];
    end.MayMoveVertically = DefaultsOf(ObjectKind::EndOfSubsection).mayMoveVertically;
    end.Align = "L";
    end.Width = kBodyWidth;
    return placed;
  }

  // A row as its kind makes it, assigned to the body it lies in.
  int Add(ObjectKind kind, std::string x, int y, int width, int height) {
    const int row = document.Objects.TakeFreeRow();
    const KindDefaults& defaults = DefaultsOf(kind);
    ObjectRecord& record = document.Objects[row];
    record.Kind = kind;
    record.XValue = std::move(x);
    record.AbsoluteY = y;
    record.Width = width;
    record.Height = height;
    record.Align = "L";
    record.FontName = "Arial";
    record.FontSize = 10;
    record.CharSet = "0";
    record.LineWidth = 1;
    record.PrintFlag = kTrue;
    record.MayMoveVertically = defaults.mayMoveVertically;
    record.MayMoveHorizontally = defaults.mayMoveHorizontally;
    record.MayResize = defaults.mayResize;
    if (kind == ObjectKind::Line)
      record.X2Value = FormatNumber(PositionOrZero(record.XValue, document.Columns) + width);
    AssignObjects(document);
    return row;
  }

  int AddText(std::string x, int y, std::string text, std::string align = "L") {
    const int row = Add(ObjectKind::Label, std::move(x), y, 1000, 230);
    document.Objects[row].Content = std::move(text);
    document.Objects[row].Align = std::move(align);
    return row;
  }

  ObjectRecord& At(int row) { return document.Objects[row]; }
  std::int32_t Y(int row) const { return document.Objects[row].AbsoluteY; }
  const std::string& X(int row) const { return document.Objects[row].XValue; }

  void Select(int row) {
    document.Objects.CurrentObject = row;
    PlaceOverlay(document, pointer, row, zoomFactor);
  }
  void SelectGroup(std::initializer_list<int> rows) {
    for (const int row : rows)
      document.Objects[row].Selected = kTrue;
    pointer.MultiSelected = true;
  }

  // From a press at `from` to where the button is let go, in canvas units.
  void Finish(std::unique_ptr<Gesture> gesture, CanvasPoint from, CanvasPoint to) {
    ASSERT_NE(gesture, nullptr);
    PageWork work = Work();
    gesture->Move(work, from);
    gesture->Move(work, {(from.X + to.X) / 2, (from.Y + to.Y) / 2});
    gesture->Move(work, to);
    pointer.LastX = to.X;
    pointer.LastY = to.Y;
    gesture->End(work, 0);
  }

  // Distances in twips.
  void DragObject(int row, double dx, double dy) {
    Select(row);
    PageWork work = Work();
    Finish(BeginObjectDrag(work, {70, 90}), {70, 90}, {70 + dx * zoomFactor, 90 + dy * zoomFactor});
  }
  void DragHandle(int row, int handle, double dx, double dy) {
    Select(row);
    PageWork work = Work();
    Finish(BeginResize(work, handle, {0, 0}), {0, 0}, {dx * zoomFactor, dy * zoomFactor});
  }
  void DragLine(int row, LineGrip grip, double dx, double dy) {
    Select(row);
    PageWork work = Work();
    Finish(BeginLineEndDrag(work, grip, {0, 0}), {0, 0}, {dx * zoomFactor, dy * zoomFactor});
  }
  // By a point inside the box.
  void DragBox(int row, double dx, double dy) {
    Select(row);
    const CanvasArea area = AreaOf(At(row), document, zoomFactor);
    const CanvasPoint from{area.Left + 10, area.Top + 10};
    PageWork work = Work();
    Finish(BeginBoxDrag(work, from), from, {from.X + dx * zoomFactor, from.Y + dy * zoomFactor});
  }

  // Whether every operation so far only placed, showed or hid a widget.
  bool OnlyWidgets() const {
    for (const std::string& line : surface.Lines)
      if (!line.starts_with("place ") && !line.starts_with("show ") && !line.starts_with("hide "))
        return false;
    return !surface.Lines.empty();
  }

  Document document;
  PointerState pointer;
  RecordingSurface surface;
  GestureServices services;
  BuiltInMeasurer measurer;
  DisplayFilter filter = DisplayFilter::All;
  double zoomFactor = 1;
  PlacedBar data{}, items{};
};

// The same page at one zoom after the other.
class GestureAtZoom : public GestureTest, public testing::WithParamInterface<double> {
 public:
  GestureAtZoom() { SetZoom(GetParam()); }
};

inline auto EachZoom() {
  return testing::Values(0.5, 1.0, 2.0);
}

inline std::string PercentOf(const testing::TestParamInfo<double>& zoom) {
  return "At" + std::to_string(static_cast<int>(zoom.param * 100));
}

}  // namespace kev::test
