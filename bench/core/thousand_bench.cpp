// SPDX-License-Identifier: MIT
// Half of all objects, which are a thousand in a full table, deleted, pasted, moved and brought back; beside
// one level and one layout.
#include <cstdlib>
#include <memory>

#include "document/kind_defaults.h"
#include "support/layout_only.h"
#include "support/sample_template.h"
#include "surface/clipboard.h"
#include "surface/gesture.h"
#include "surface/null_surface.h"
#include "surface/page_keys.h"

namespace kev::bench {
namespace {

void SelectHalf(Document& document) {
  int left = document.Objects.LastScanned() / 2;
  for (int row = 1; row <= document.Objects.LastScanned() && left > 0; ++row) {
    if (IsBand(document.Objects[row].Kind)) continue;
    document.Objects[row].Selected = kTrue;
    --left;
  }
}

// A page in the middle of work: its present state is the last level already.
struct Page {
  explicit Page(const Document& opened) : document(opened) {
    pointer.MultiSelected = true;
    pointer.Bounds = {0, 0, 1000, 1000};
    services.PushUndo();
  }

  PageWork Work() {
    return {document, pointer, surface, services, measurer, 1, DisplayFilter::All, {}, 12000, 800000};
  }

  Document document;
  PointerState pointer;
  NullSurface surface;
  LayoutAndLevels services{document};
  BuiltInMeasurer measurer;
};

Document SelectedSample(int rows) {
  Document document = OpenedSample(rows);
  SelectHalf(document);
  return document;
}

// `prepare` brings the page to where the measured `step` begins.
template <typename Prepare, typename Step>
void EachOnItsOwnPage(benchmark::State& state, const Prepare& prepare, const Step& step) {
  const int rows = static_cast<int>(state.range(0));
  const Document selected = SelectedSample(rows);
  for ([[maybe_unused]] auto run : state) {
    state.PauseTiming();
    auto page = std::make_unique<Page>(selected);
    PageWork work = page->Work();
    prepare(work, *page);
    state.ResumeTiming();
    step(work, *page);
    state.PauseTiming();
    page.reset();
    state.ResumeTiming();
  }
  CountRows(state, rows / 2);
}

void Nothing(PageWork&, Page&) {}

void MoveGroup(PageWork& work, Page& page) {
  const std::unique_ptr<Gesture> drag = BeginGroupDrag(work, {500, 500});
  if (drag == nullptr) std::abort();
  page.pointer.KeepPosition({515, 530});
  drag->End(work, 0);
}

void ThousandDeleted(benchmark::State& state) {
  EachOnItsOwnPage(state, Nothing, [](PageWork& work, Page&) { DeleteSelected(work); });
}

void ThousandPasted(benchmark::State& state) {
  ClipboardTable clipboard;
  const auto cut = [&](PageWork& work, Page& page) {
    CutObjects(work, clipboard);
    page.pointer.MultiSelected = false;
    page.pointer.KeepPosition({1000, double(kBarHeight)});
    page.services.PushUndo();
  };
  EachOnItsOwnPage(state, cut, [&](PageWork& work, Page&) {
    if (PasteObjects(work, clipboard)) std::abort();
  });
}

void ThousandMoved(benchmark::State& state) {
  EachOnItsOwnPage(state, Nothing, MoveGroup);
}

void ThousandUndone(benchmark::State& state) {
  EachOnItsOwnPage(state, MoveGroup, [](PageWork&, Page& page) {
    page.services.Levels().Undo(page.document);
    page.services.FullRepaint();
  });
}

void ThousandFloor(benchmark::State& state) {
  EachOnItsOwnPage(state, Nothing, [](PageWork&, Page& page) {
    page.services.PushUndo();
    page.services.FullRepaint();
  });
}

BENCHMARK(ThousandDeleted)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(ThousandPasted)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(ThousandMoved)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(ThousandUndone)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(ThousandFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
