// SPDX-License-Identifier: MIT
// A page 800,000 twips tall at 200 %: opened, edited and scrolled as one of the usual height is.
#include <benchmark/benchmark.h>

#include <QScrollBar>

#include "paint/open_window.h"

namespace kev::bench {
namespace {

constexpr double kTwips = 800000;

class TallWindow : public Window {
 public:
  explicit TallWindow(benchmark::State& state) : Window(TallTemplate(static_cast<int>(state.range(0)))) {
    TheDesigner().SetZoom("200");
    Settle();
    if (Page().ListHeight() < 2 * 0.99 * kTwips) state.SkipWithError("the page is not tall");
  }
};

void OpenTallPage(benchmark::State& state) {
  TallWindow window(state);
  const std::string path = window.TheDesigner().DocumentPath();
  for ([[maybe_unused]] auto run : state) {
    if (!window.TheDesigner().OpenTemplate(path)) return state.SkipWithError("the template was refused");
    Window::Settle();
  }
}

void EditTallPage(benchmark::State& state) {
  TallWindow window(state);
  Designer& designer = window.TheDesigner();
  designer.Surface().GoToObject(window.LastLabel());
  Window::Settle();
  bool other = false;
  for ([[maybe_unused]] auto run : state) {
    designer.Sheets().Edited(1, (other = !other) ? "Subtotal" : "Total");
    Window::Settle();
  }
}

void ScrollTallPage(benchmark::State& state) {
  TallWindow window(state);
  QScrollBar& bar = *window.Page().verticalScrollBar();
  bar.setValue(bar.maximum() / 2);
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

BENCHMARK(OpenTallPage)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(EditTallPage)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(ScrollTallPage)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
