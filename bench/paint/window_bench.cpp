// SPDX-License-Identifier: MIT
// What the user waits for in the whole window, until the page is painted and the recovery file written,
// beside one snapshot and one repaint in the same window.
#include <benchmark/benchmark.h>

#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <utility>

#include "document/kind_defaults.h"
#include "paint/open_window.h"

namespace kev::bench {
namespace {

// What no change can do without.
void PushAndRepaint(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  DesignSurface& surface = window.TheDesigner().Surface();
  for ([[maybe_unused]] auto run : state) {
    surface.PushUndo();
    surface.Redraw();
    Window::Settle();
  }
}

// An object is clicked on and its sheet shows.
void ShowSheetInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  const int label = window.LastLabel();
  for ([[maybe_unused]] auto run : state) {
    window.TheDesigner().Surface().GoToObject(label);
    Window::Settle();
  }
}

void EditInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  Designer& designer = window.TheDesigner();
  designer.Surface().GoToObject(window.LastLabel());
  Window::Settle();
  bool other = false;
  for ([[maybe_unused]] auto run : state) {
    designer.Sheets().Edited(1, (other = !other) ? "Subtotal" : "Total");
    Window::Settle();
  }
}

// What a command does to the group, and what brings the page back to where the command began.
struct GroupCommand {
  Command command;
  void (*prepare)(Designer&);
  void (*goBack)(Designer&);
};

constexpr int kMostInGroup = 1000;

int CountObjects(const Document& document) {
  int count = 0;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    count += document.Objects[row].Kind == ObjectKind::None ? 0 : 1;
  return count;
}

// Where a click would have put the position at which objects are inserted.
double FirstBodyOf(const Document& document) {
  int row = 1;
  while (document.Objects[row].Kind != ObjectKind::Subsection)
    ++row;
  return document.Objects[row].AbsoluteY + kBarHeight;
}

void RunAgain(benchmark::State& state, const GroupCommand& row) {
  Window window(static_cast<int>(state.range(0)));
  Designer& designer = window.TheDesigner();
  row.prepare(designer);
  for ([[maybe_unused]] auto run : state) {
    state.PauseTiming();
    const int before = CountObjects(designer.OpenDocument());
    designer.Surface().Pointer().KeepPosition({1000, FirstBodyOf(designer.OpenDocument())});
    state.ResumeTiming();
    designer.Surface().Run(row.command);
    Window::Settle();
    state.PauseTiming();
    if (CountObjects(designer.OpenDocument()) == before) return state.SkipWithError("nothing happened");
    row.goBack(designer);
    state.ResumeTiming();
  }
}

void SelectGroup(Designer& designer) {
  ObjectTable& objects = designer.OpenDocument().Objects;
  int left = kMostInGroup;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectKind kind = objects[row].Kind;
    const bool joins = kind != ObjectKind::None && !IsBand(kind) && left > 0;
    objects[row].Selected = joins ? kTrue : kFalse;
    left -= joins ? 1 : 0;
  }
  designer.Surface().Pointer().MultiSelected = true;
  designer.Surface().FullRepaint();
  Window::Settle();
}

void RunOnGroup(Designer& designer, Command command) {
  SelectGroup(designer);
  designer.Surface().Run(command);
  Window::Settle();
}

void GoBack(Designer& designer) {
  designer.Surface().Run(Command::Undo);
  Window::Settle();
}

void DeleteInWindow(benchmark::State& state) {
  RunAgain(state, {Command::DeleteSelection, SelectGroup, [](Designer& designer) {
                     GoBack(designer);
                     SelectGroup(designer);
                   }});
}

void UndoInWindow(benchmark::State& state) {
  const auto remove = [](Designer& designer) { RunOnGroup(designer, Command::DeleteSelection); };
  RunAgain(state, {Command::Undo, remove, remove});
}

void PasteInWindow(benchmark::State& state) {
  const auto cut = [](Designer& designer) { RunOnGroup(designer, Command::CutGroup); };
  RunAgain(state, {Command::Paste, cut, cut});
}

PointerInput Held(double x, double y) {
  return {.Button = PointerButton::Left, .X = x, .Y = y};
}

// A whole drag of the group, from the press to the release.
void MoveInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  DesignSurface& surface = window.TheDesigner().Surface();
  SelectGroup(window.TheDesigner());
  constexpr double kStep = 10 * kUnitsPerPixel;
  double by = kStep;
  for ([[maybe_unused]] auto run : state) {
    const CanvasArea& area = surface.Pointer().Bounds;
    const double x = (area.Left + area.Right) / 2, y = (area.Top + area.Bottom) / 2;
    surface.PointerPress(Held(x, y));
    surface.PointerMove(Held(x, y + by));
    surface.PointerRelease(Held(x, y + by));
    by = -by;
    Window::Settle();
  }
  if (!surface.Pointer().MultiSelected) state.SkipWithError("the group was lost");
}

void ScrollPageInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  window.TheDesigner().SetZoom("200");
  Window::Settle();
  QScrollBar& bar = *window.Page().verticalScrollBar();
  bool back = false;
  for ([[maybe_unused]] auto run : state) {
    state.PauseTiming();
    window.Rest();
    state.ResumeTiming();
    bar.triggerAction((back = !back) ? QAbstractSlider::SliderPageStepAdd
                                     : QAbstractSlider::SliderPageStepSub);
    Window::Settle();
  }
}

// A widget that has the pixels of its window ready.
class Picture final : public QWidget {
 public:
  explicit Picture(QPixmap pixels) : pixels_(std::move(pixels)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(pixels_.size());
  }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, pixels_); }

 private:
  QPixmap pixels_;
};

void ScrollPageInWindowFloor(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  Picture picture(window.Page().viewport()->grab());
  picture.show();
  Window::Settle();
  for ([[maybe_unused]] auto run : state) {
    picture.update();
    Window::Settle();
  }
}

BENCHMARK(ShowSheetInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(EditInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(PushAndRepaint)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(DeleteInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(UndoInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(PasteInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(MoveInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(ScrollPageInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(ScrollPageInWindowFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
