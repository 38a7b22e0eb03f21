// SPDX-License-Identifier: MIT
// What a pointer may cost: picking under it, and one step of a drag.
#include "document/sort_keys.h"
#include "support/sample_template.h"
#include "surface/gesture.h"
#include "surface/null_surface.h"
#include "surface/selection.h"

namespace kev::bench {
namespace {

class NoServices final : public PageServices {
 public:
  void PushUndo() override {}
  void MarkChanged() override {}
  void FullRepaint() override {}
  void BandsChanged() override {}
  void BuildRulers() override {}
  void SelectionChanged() override {}
  void CommandsChanged() override {}
  const std::string& Text(int) const override { return text_; }
  BoxAnswer ShowBox(int, BoxIcon, BoxButtons) override { return BoxAnswer::Ok; }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 private:
  std::string text_;
};

struct Page {
  explicit Page(int rows) : document(OpenedSample(rows)) {}

  PageWork Work() {
    return {document, pointer, surface, services, measurer, 1, DisplayFilter::All, {}, 12000, 80000};
  }

  Document document;
  PointerState pointer;
  NullSurface surface;
  NoServices services;
  BuiltInMeasurer measurer;
};

// Where nothing is hit all three looks are taken.
void HitNothing(benchmark::State& state) {
  Page page(static_cast<int>(state.range(0)));
  const PageWork work = page.Work();
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(HitTest(work, {-50000, 5000}));
}

void SelectOne(benchmark::State& state) {
  Page page(static_cast<int>(state.range(0)));
  PageWork work = page.Work();
  for ([[maybe_unused]] auto run : state)
    SelectObject(work, 5);
}

void GroupDragStep(benchmark::State& state) {
  Page page(static_cast<int>(state.range(0)));
  page.pointer.MultiSelected = true;
  page.pointer.Bounds = {0, 0, 1000, 1000};
  PageWork work = page.Work();
  const std::unique_ptr<Gesture> drag = BeginGroupDrag(work, {500, 500});
  double x = 0;
  for ([[maybe_unused]] auto run : state)
    drag->Move(work, {x += 15, 500});
}

BENCHMARK(HitNothing)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(SelectOne)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(GroupDragStep)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
