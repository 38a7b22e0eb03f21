// SPDX-License-Identifier: MIT
// Any texts typed into a property sheet. The first byte chooses the object, or the document, and the place of
// the sheet; each line goes into one row, which its first byte chooses. What is stored is what the sheet
// shows then, so that the same sheet accepted again changes nothing.
#include "base/text.h"
#include "document/sections.h"
#include "document/text_measurer.h"
#include "fuzz_support.h"
#include "properties/apply_sheet_edit.h"
#include "support/sample_page.h"
#include "support/scripted_host.h"
#include "surface/null_surface.h"

namespace {

using namespace kev;
using fuzz::Require;

class QuietServices final : public PageServices {
 public:
  explicit QuietServices(Document& document) : document_(document) {}

  int Pushes = 0;

  void PushUndo() override { ++Pushes; }
  void MarkChanged() override {}
  void FullRepaint() override { DeriveGeometry(document_); }
  void BandsChanged() override {
    NormaliseSubsections(document_, SetSortKeys(document_));
    DeriveGeometry(document_);
  }
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
  Document& document_;
  std::string text_ = "text";
};

constexpr auto kKinds = std::to_array<ObjectKind>(
    {ObjectKind::None, ObjectKind::Label, ObjectKind::TextBox, ObjectKind::Picture, ObjectKind::Box,
     ObjectKind::Line, ObjectKind::AnyLine, ObjectKind::Circle, ObjectKind::Barcode, ObjectKind::Qr,
     ObjectKind::Chart, ObjectKind::Command, ObjectKind::Subsection});

// One section with an object of the kind, selected; none of ObjectKind::None, whose sheet is the document's.
Document MakeDocument(ObjectKind kind) {
  Document document;
  document.Columns[1] = {"$Col_01", 1000, ""};
  const int bar = test::AddSubsection(document, "[DATA]", 0, 3000);
  document.Objects[bar].SectionName = "DATA]";
  document.Objects.CurrentObject = kind == ObjectKind::None ? 0 : bar;
  if (kind != ObjectKind::None && kind != ObjectKind::Subsection) {
    document.Objects.CurrentObject = test::AddRow(document, kind, "$Col_01", 700, 2400, 600);
    document.Objects[document.Objects.CurrentObject].OwnerName = "DATA]";
  }
  DeriveGeometry(document);
  return document;
}

// Sample data of each kind, for the row that names it.
std::string SampleFolder() {
  const fuzz::ScratchFolder& folder = fuzz::Scratch();
  static_cast<void>(folder.Made("good.kex", "TEMPLATE=a.kev\n|A|1|\n"));
  static_cast<void>(folder.Made("head.kex", "|A|1|\n"));
  static_cast<void>(folder.Made("mark.kex", "\xEF\xBB\xBFTEMPLATE=a.kev\n"));
  static_cast<void>(folder.Made("line.kex", "TEMPLATE=a.kev\n|A|1\n"));
  static_cast<void>(folder.Made("long.kex", "TEMPLATE=a.kev\n" + std::string(300, '|') + "\n"));
  static_cast<void>(folder.Made("line.ked", "TEMPLATE=a.kev\nA=1\n"));
  static_cast<void>(folder.Made("name.txt", "TEMPLATE=a.kev\n"));
  return folder.Path();
}

struct Page {
  Document document;
  PointerState pointer;
  NullSurface surface;
  QuietServices services{document};
  BuiltInMeasurer measurer;
  test::ScriptedHost host;
  NoPictures pictures;
  SheetPlace place;

  Page(ObjectKind kind, SheetPlace where) : document(MakeDocument(kind)), place(where) {}

  Sheet Shown() const { return SheetOfSelection(document, false, place, {}); }
  SheetOutcome Apply(const Sheet& sheet, const std::vector<RowEdit>& edits) {
    PageWork page{document, pointer, surface, services, measurer, 1, DisplayFilter::All, {}};
    static const std::string folder = SampleFolder();
    SheetWork work{page, host, pictures, folder, place};
    return ApplySheetEdit(work, sheet, edits);
  }
};

std::vector<RowEdit> EditsOf(std::string_view rest, std::size_t rows) {
  std::vector<RowEdit> edits;
  while (!rest.empty()) {
    std::string_view line = TakeLine(rest);
    if (line.empty()) continue;
    const auto row = static_cast<unsigned char>(line.front()) % (rows + 1);
    edits.push_back({static_cast<int>(row), std::string(line.substr(1))});
  }
  return edits;
}

std::vector<RowEdit> SameTexts(const Sheet& sheet) {
  std::vector<RowEdit> edits;
  for (const PropertyRow& row : sheet.Rows)
    edits.push_back({static_cast<int>(edits.size()) + 1, row.Value});
  return edits;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  Page page(kKinds[(data[0] >> 1) % kKinds.size()],
            (data[0] & 1) != 0 ? SheetPlace::Floating : SheetPlace::Docked);
  const Sheet before = page.Shown();
  const SheetOutcome outcome =
      page.Apply(before, EditsOf(fuzz::TextOf(data + 1, size - 1), before.Rows.size()));
  Require(outcome.Shown == page.Shown());
  const auto rows = static_cast<int>(before.Rows.size());
  Require(ActionOf(before, 0) == SheetAction::None && ActionOf(before, rows + 1) == SheetAction::None);
  for (int row = 1; row <= rows; ++row)
    Require(ActionOf(before, row) == before.Rows[static_cast<std::size_t>(row) - 1].Action);
  Require(page.services.Pushes <= 1);

  page.services.Pushes = 0;
  page.Apply(outcome.Shown, SameTexts(outcome.Shown));
  Require(page.services.Pushes == 0 && page.Shown() == outcome.Shown);
  return 0;
}
