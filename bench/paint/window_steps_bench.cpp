// SPDX-License-Identifier: MIT
// Small steps in the whole window until they are painted: a step of a drag, an inserted object, all objects
// selected, and a template opened.
#include <benchmark/benchmark.h>

#include <QMouseEvent>
#include <QWidget>
#include <utility>
#include <vector>

#include "base/files.h"
#include "document/kind_defaults.h"
#include "document/text_measurer.h"
#include "paint/open_window.h"
#include "platform/rulers.h"
#include "surface/object_area.h"
#include "surface/page_keys.h"
#include "template/reader.h"

namespace kev::bench {
namespace {

// --- One step of a drag -----------------------------------------------------------------------------------

// A label is held and moved to and fro, as the pointer does it.
class Drag {
 public:
  explicit Drag(int rows) : window_(rows) {
    Designer& designer = window_.TheDesigner();
    const int label = window_.LastLabel();
    designer.Surface().GoToObject(label);
    Window::Settle();
    const CanvasArea area = AreaOf(designer.OpenDocument().Objects[label], designer.OpenDocument(), 1);
    start_ = Canvas().ToViewport({(area.Left + area.Right) / 2, (area.Top + area.Bottom) / 2});
    Send(QEvent::MouseButtonPress, start_, Qt::LeftButton);
    Step();
    Step();
    // Whoever fills the list anew moves the view, or says so.
    QObject::connect(&Canvas(), &PageCanvas::ViewMoved, &Canvas(), [this] { isRepainted_ = true; });
  }

  PageCanvas& Canvas() { return window_.Page(); }
  QPointF Place() const { return start_ + (isAway_ ? QPointF(30, -20) : QPointF(60, -40)); }
  void Step() {
    isAway_ = !isAway_;
    Send(QEvent::MouseMove, Place(), Qt::NoButton);
    Window::Settle();
  }
  bool IsRepainted() const { return isRepainted_; }
  Window& TheWindow() { return window_; }

 private:
  void Send(QEvent::Type type, const QPointF& at, Qt::MouseButton button) {
    QWidget& view = *Canvas().viewport();
    QMouseEvent event(type, at, view.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
  }

  Window window_;
  QPointF start_;
  bool isAway_ = false;
  bool isRepainted_ = false;
};

void DragStepInWindow(benchmark::State& state) {
  Drag drag(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] auto run : state)
    drag.Step();
  if (drag.IsRepainted()) state.SkipWithError("the page was painted anew");
}

// The widgets that a step moves, and where they stand in turn.
struct Moved {
  QWidget* widget;
  QRect first, second;
};

std::vector<Moved> WidgetsMoved(Drag& drag) {
  std::vector<Moved> moved;
  for (QWidget* widget :
       drag.Canvas().viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    if (widget->isVisible()) moved.push_back({widget, widget->geometry(), {}});
  drag.Step();
  for (Moved& one : moved)
    one.second = one.widget->geometry();
  std::erase_if(moved, [](const Moved& one) { return one.first == one.second; });
  return moved;
}

// They are moved, and the rulers mark where the pointer is.
void DragStepInWindowFloor(benchmark::State& state) {
  Drag drag(static_cast<int>(state.range(0)));
  const QPoint firstPlace = drag.Place().toPoint();
  const std::vector<Moved> moved = WidgetsMoved(drag);
  const QPoint secondPlace = drag.Place().toPoint();
  if (moved.empty()) return state.SkipWithError("nothing moves");
  auto& across = *drag.TheWindow().TheWidget().findChild<Ruler*>(QStringLiteral("rhor"));
  auto& down = *drag.TheWindow().TheWidget().findChild<Ruler*>(QStringLiteral("rverint"));
  bool first = false;
  for ([[maybe_unused]] auto run : state) {
    first = !first;
    for (const Moved& one : moved)
      one.widget->setGeometry(first ? one.first : one.second);
    across.ShowMarker((first ? firstPlace : secondPlace).x());
    down.ShowMarker((first ? firstPlace : secondPlace).y());
    Window::Settle();
  }
}

// --- One object more, and all of them ---------------------------------------------------------------------

// Where a click would have put the position at which objects are inserted.
void PointIntoFirstBody(Designer& designer) {
  const ObjectTable& objects = std::as_const(designer).OpenDocument().Objects;
  int row = 1;
  while (objects[row].Kind != ObjectKind::Subsection)
    ++row;
  designer.Surface().Pointer().KeepPosition({1000, static_cast<double>(objects[row].AbsoluteY) + kBarHeight});
}

// The table has room for one object, which is inserted and taken back.
void InsertInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  Designer& designer = window.TheDesigner();
  designer.Surface().GoToObject(window.LastLabel());
  designer.Surface().Run(Command::DeleteObject);
  Window::Settle();
  for ([[maybe_unused]] auto run : state) {
    state.PauseTiming();
    const int before = designer.OpenDocument().Objects.CurrentObject;
    PointIntoFirstBody(designer);
    state.ResumeTiming();
    designer.Surface().Run(Command::InsertLabel);
    Window::Settle();
    state.PauseTiming();
    if (designer.OpenDocument().Objects.CurrentObject == before)
      return state.SkipWithError("nothing was inserted");
    designer.Surface().Run(Command::Undo);
    Window::Settle();
    state.ResumeTiming();
  }
}

// All of the body that the last click has chosen.
void SelectAllInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  Designer& designer = window.TheDesigner();
  for ([[maybe_unused]] auto run : state) {
    state.PauseTiming();
    PointIntoFirstBody(designer);
    state.ResumeTiming();
    designer.Surface().Run(Command::SelectAll);
    Window::Settle();
    state.PauseTiming();
    if (!designer.Surface().Pointer().MultiSelected) return state.SkipWithError("nothing was selected");
    designer.Surface().KeyDown(kKeyEscape, 0, {});
    Window::Settle();
    state.ResumeTiming();
  }
}

// The page with all of them selected.
void SelectAllInWindowFloor(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  Designer& designer = window.TheDesigner();
  PointIntoFirstBody(designer);
  designer.Surface().Run(Command::SelectAll);
  Window::Settle();
  for ([[maybe_unused]] auto run : state) {
    designer.Surface().Redraw();
    Window::Settle();
  }
}

// --- A template opened ------------------------------------------------------------------------------------

void OpenInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  const std::string path = window.TheDesigner().DocumentPath();
  for ([[maybe_unused]] auto run : state) {
    if (!window.TheDesigner().OpenTemplate(path)) return state.SkipWithError("the template was refused");
    Window::Settle();
  }
}

// Its bytes are read into a document, and the page is painted once.
void OpenInWindowFloor(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Window window(rows);
  const std::string path = window.TheDesigner().DocumentPath();
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  for ([[maybe_unused]] auto run : state) {
    const Result<std::string> bytes = ReadWholeFile(path);
    benchmark::DoNotOptimize(ReadTemplateBytes(*bytes, {measurer, pictures}));
    window.TheDesigner().Surface().Redraw();
    Window::Settle();
  }
}

BENCHMARK(DragStepInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(DragStepInWindowFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(InsertInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(SelectAllInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(SelectAllInWindowFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(OpenInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(OpenInWindowFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
