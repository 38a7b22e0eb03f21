// SPDX-License-Identifier: MIT
// Work on a full page: a step of a drag, which must not depend on the page, and the deletion of half of it.
#include <functional>

#include "document/sections.h"
#include "support/sample_template.h"
#include "surface/gesture.h"
#include "surface/null_surface.h"
#include "surface/page_keys.h"

namespace kev::bench {
namespace {

// The designer's own steps without a window or a store.
class QuietServices final : public PageServices {
 public:
  QuietServices(Document& document, PointerState& pointer) : document_(document), pointer_(pointer) {}

  void PushUndo() override {}
  void MarkChanged() override {}
  void FullRepaint() override {
    DeriveGeometry(document_);
    pointer_.MultiSelected = false;
  }
  void BandsChanged() override { FullRepaint(); }
  void BuildRulers() override {}
  void SelectionChanged() override {}
  void CommandsChanged() override {}
  const std::string& Text(int) const override { return text_; }
  BoxAnswer ShowBox(int, BoxIcon, BoxButtons) override { return BoxAnswer::Yes; }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 private:
  Document& document_;
  PointerState& pointer_;
  std::string text_;
};

struct Page {
  explicit Page(Document opened) : document(std::move(opened)), services(document, pointer) {}

  PageWork Work() {
    return {document, pointer, surface, services, measurer, 1, DisplayFilter::All, {}, 12000, 800000};
  }

  Document document;
  PointerState pointer;
  NullSurface surface;
  QuietServices services;
  BuiltInMeasurer measurer;
};

int FirstOf(const Document& document, ObjectKind kind) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    if (document.Objects[row].Kind == kind) return row;
  return 0;
}

void DragStep(benchmark::State& state) {
  Page page(OpenedSample(static_cast<int>(state.range(0))));
  const int row = FirstOf(page.document, ObjectKind::Label);
  page.document.Objects.CurrentObject = row;
  page.pointer.Overlay[1] = AreaOf(page.document.Objects[row], page.document, 1);
  PageWork work = page.Work();
  const auto gesture = BeginObjectDrag(work, {0, 0});
  if (gesture == nullptr) return state.SkipWithError("the label may not be dragged");
  double at = 0;
  for ([[maybe_unused]] auto run : state) {
    at += 15;
    gesture->Move(work, {at, at});
    benchmark::DoNotOptimize(page.pointer.Overlay);
  }
}

void SelectHalf(Document& document) {
  int left = document.Objects.LastScanned() / 2;
  for (int row = 1; row <= document.Objects.LastScanned() && left > 0; ++row) {
    if (IsBand(document.Objects[row].Kind)) continue;
    document.Objects[row].Selected = kTrue;
    --left;
  }
}

void DeleteHalf(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  Document selected = OpenedSample(rows);
  SelectHalf(selected);
  for ([[maybe_unused]] auto run : state) {
    state.PauseTiming();
    Page page(selected);
    page.pointer.MultiSelected = true;
    PageWork work = page.Work();
    state.ResumeTiming();
    DeleteSelected(work);
  }
  CountRows(state, rows / 2);
}

BENCHMARK(DragStep)->Apply(AtAllSizes)->Unit(benchmark::kNanosecond);
BENCHMARK(DeleteHalf)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
