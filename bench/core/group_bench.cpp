// SPDX-License-Identifier: MIT
// Commands on a group of every object of a document, with their snapshot and the layout behind them.
#include <string>

#include "document/kind_defaults.h"
#include "support/layout_only.h"
#include "support/sample_template.h"
#include "surface/clipboard.h"
#include "surface/font_tools.h"
#include "surface/group_commands.h"
#include "surface/null_surface.h"
#include "surface/selection.h"

namespace kev::bench {
namespace {

// A document whose objects are all selected.
struct GroupedPage {
  explicit GroupedPage(int rows) : document(OpenedSample(rows)) { SelectObjects(); }

  void SelectObjects() {
    for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
      ObjectRecord& record = document.Objects[row];
      if (record.Kind != ObjectKind::None && !IsBand(record.Kind)) record.Selected = kTrue;
    }
    pointer.MultiSelected = true;
  }
  PageWork Work() {
    return {document, pointer, surface, services, measurer, 1, DisplayFilter::All, {}, 0, 0};
  }

  Document document;
  PointerState pointer;
  NullSurface surface;
  BuiltInMeasurer measurer;
  LayoutAndLevels services{document};
};

std::int32_t FirstBodyOf(const Document& document) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    if (document.Objects[row].Kind == ObjectKind::Subsection)
      return document.Objects[row].AbsoluteY + kBarHeight;
  return 0;
}

void GroupToGrid(benchmark::State& state) {
  GroupedPage page(static_cast<int>(state.range(0)));
  PageWork work = page.Work();
  bool yes = false;
  for ([[maybe_unused]] auto run : state) {
    yes = !yes;
    AcceptAlignToGrid(work, {true, true, yes});
  }
}

void GroupPlaced(benchmark::State& state) {
  GroupedPage page(static_cast<int>(state.range(0)));
  PageWork work = page.Work();
  PlaceSelection dialog = OpenedPlaceSelection(work);
  int step = 0;
  for ([[maybe_unused]] auto run : state) {
    step = 10 - step;
    dialog.Combocol = std::to_string(1000 + step);
    benchmark::DoNotOptimize(AcceptPlaceSelection(work, dialog));
  }
}

void GroupFont(benchmark::State& state) {
  GroupedPage page(static_cast<int>(state.range(0)));
  PageWork work = page.Work();
  LastUsed last;
  bool wide = false;
  for ([[maybe_unused]] auto run : state) {
    wide = !wide;
    UseFontName(work, last, wide ? "Courier New" : "Arial");
  }
}

void CutAndPaste(benchmark::State& state) {
  GroupedPage page(static_cast<int>(state.range(0)));
  PageWork work = page.Work();
  ClipboardTable clipboard;
  page.pointer.KeepPosition({1000, double(FirstBodyOf(page.document))});
  for ([[maybe_unused]] auto run : state) {
    page.pointer.MultiSelected = true;
    CutObjects(work, clipboard);
    page.pointer.MultiSelected = false;
    benchmark::DoNotOptimize(PasteObjects(work, clipboard));
  }
  page.pointer.MultiSelected = true;
  if (GroupMembers(work).size() != clipboard.Rows.size()) state.SkipWithError("nothing was pasted");
}

BENCHMARK(GroupToGrid)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(GroupPlaced)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(GroupFont)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(CutAndPaste)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
