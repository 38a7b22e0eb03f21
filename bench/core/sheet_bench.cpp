// SPDX-License-Identifier: MIT
// Selecting an object and typing one property of it, in a document of many, beside the level that is pushed
// and the geometry chain that runs behind any edit.
#include <cstdlib>
#include <string>

#include "properties/apply_sheet_edit.h"
#include "support/layout_only.h"
#include "support/sample_template.h"
#include "surface/null_surface.h"

namespace kev::bench {
namespace {

class NoHost final : public Host {
 public:
  BoxAnswer ShowMessage(const MessageBox&) override { std::abort(); }
  void ShowStatus(std::string_view, std::string_view) override {}
  void ShowSelectionStatus(std::string_view) override {}
  void BeginProgress(std::string_view, int) override {}
  void StepProgress(int, std::string_view) override {}
  void EndProgress() override {}
  std::optional<std::string> ChooseFileToOpen(const FileChoice&) override { return std::nullopt; }
  std::optional<std::string> ChooseFileToSave(const FileChoice&) override { return std::nullopt; }
  void ShowCaption(std::string_view, bool) override {}
  bool ProgressStopped() override { return false; }
  void FetchPicture(std::string_view, std::string_view, std::function<void(bool)>) override {}
  std::optional<ProcessId> StartProgram(const ProgramStart&, std::function<void()>) override {
    return std::nullopt;
  }
  void WaitForProcess(ProcessId) override {}
  bool OpenAddress(std::string_view) override { return false; }
  bool OpenWithDesktop(const std::string&) override { return false; }
};

int LastLabel(const Document& document) {
  int last = 0;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    if (document.Objects[row].Kind == ObjectKind::Label) last = row;
  return last;
}

void ShowSheet(benchmark::State& state) {
  const Document document = OpenedSample(static_cast<int>(state.range(0)));
  const int label = LastLabel(document);
  for ([[maybe_unused]] auto run : state)
    benchmark::DoNotOptimize(ShowSheetFor(document, label, SheetPlace::Docked));
}

void EditProperty(benchmark::State& state) {
  Document document = OpenedSample(static_cast<int>(state.range(0)));
  document.Objects.CurrentObject = LastLabel(document);
  PointerState pointer;
  NullSurface surface;
  LayoutAndLevels services(document);
  const BuiltInMeasurer measurer;
  NoHost host;
  NoPictures pictures;
  PageWork page{document, pointer, surface, services, measurer, 1, DisplayFilter::All, {}, 0, 0};
  SheetWork work{page, host, pictures, {}, SheetPlace::Docked};
  // The row "Y position" takes the longest way: its check looks for the owner.
  RowEdit edit{3, {}};
  for ([[maybe_unused]] auto run : state) {
    const Sheet sheet = SheetOfSelection(document, false, SheetPlace::Docked, {});
    edit.Text = sheet.Rows[2].Value == "0" ? "1" : "0";
    benchmark::DoNotOptimize(ApplySheetEdit(work, sheet, {&edit, 1}));
  }
}

void EditPropertyFloor(benchmark::State& state) {
  Document document = OpenedSample(static_cast<int>(state.range(0)));
  LayoutAndLevels services(document);
  const int label = LastLabel(document);
  for ([[maybe_unused]] auto run : state) {
    services.PushUndo();
    document.Objects[label].AbsoluteY ^= 1;
    services.FullRepaint();
  }
}

BENCHMARK(ShowSheet)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(EditProperty)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(EditPropertyFloor)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kev::bench
