// SPDX-License-Identifier: MIT
#include "properties/sheet.h"

#include <array>

#include "base/text.h"
#include "base/text_numbers.h"
#include "document/papers.h"
#include "properties/row_editors.h"
#include "properties/sheet_table.h"

namespace kev {
namespace {

constexpr std::string_view kDescriptionOfX2 =
    "Right position (X2) for the element. Options: $column or numeric values.";
constexpr std::array<std::string_view, 3> kMainSections = {"[HEADER]", "[DATA]", "[FOOTER]"};

std::vector<std::string> ColumnNames(const ColumnTable& columns) {
  std::vector<std::string> names;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    if (!columns[slot].Name.empty()) names.push_back(columns[slot].Name);
  return names;
}

std::vector<std::string> PaperNames() {
  const auto names = PaperDisplayNames();
  return {names.begin(), names.end()};
}

void SetEditor(PropertyRow& row, const RowEditor& editor, const Document& document) {
  row.Editor = editor.kind;
  row.Tail = editor.tail;
  const bool isList = editor.kind == EditorKind::ClosedList || editor.kind == EditorKind::OpenList;
  if (!isList) return;
  if (editor.source == ListSource::Tail) {
    row.Items = ListItems(editor.tail);
    return;
  }
  row.Items = editor.source == ListSource::Columns ? ColumnNames(document.Columns) : PaperNames();
  for (const std::string& item : row.Items)
    row.Tail += item + '|';
}

bool IsMainSection(const ObjectRecord& bar, const CodePage& page) {
  const std::string title = page.Upper(Trim(bar.SectionTitle));
  for (const std::string_view name : kMainSections)
    if (title == name) return true;
  return false;
}

}  // namespace

const ObjectSheet* SheetOfObject(const Document& document, int object) {
  const ObjectRecord& record = document.Objects[object];
  switch (record.Kind) {
    case ObjectKind::None:
    case ObjectKind::Section:
    case ObjectKind::EndOfSubsection:
      return nullptr;
    case ObjectKind::Subsection:
      return IsMainSection(record, *document.Page) ? &kSectionSheet : &kSubsectionSheet;
    case ObjectKind::Command:
      return &kCommandSheet;
    case ObjectKind::Box:
      return &kBoxSheet;
    case ObjectKind::Chart:
      return &kChartSheet;
    case ObjectKind::Line:
      return &kLineSheet;
    case ObjectKind::Circle:
      return &kCircleSheet;
    case ObjectKind::AnyLine:
      return &kAnyLineSheet;
    case ObjectKind::Picture:
      return &kPictureSheet;
    case ObjectKind::Barcode:
      return &kBarcodeSheet;
    case ObjectKind::Qr:
      return &kQrSheet;
    case ObjectKind::Label:
      return &kLabelSheet;
    case ObjectKind::TextBox:
      return &kTextBoxSheet;
  }
  return nullptr;
}

Sheet ShowDocumentSheet(const Document& document, SheetPlace place) {
  Sheet sheet;
  sheet.Title = kTextSheetDocument;
  sheet.Place = place;
  for (const DocumentRow& row : DocumentRows()) {
    const std::string& value = document.Settings[row.setting];
    PropertyRow& shown = sheet.Rows.emplace_back();
    shown.Caption = row.caption;
    shown.Value = row.show == nullptr ? value : row.show(value);
    shown.Description = row.description;
    SetEditor(shown, row.editor, document);
  }
  return sheet;
}

Sheet ShowMultiSelectionSheet(const Document& document, SheetPlace place) {
  Sheet sheet;
  sheet.Subject = SheetSubject::Group;
  sheet.Title = kTextMultiSelected;
  sheet.MemberCount = document.Objects.SelectionCount;
  sheet.Place = place;
  return sheet;
}

std::optional<Sheet> ShowSheetFor(const Document& document, int object, SheetPlace place) {
  const ObjectSheet* table = SheetOfObject(document, object);
  if (table == nullptr) return std::nullopt;
  Sheet sheet;
  sheet.Subject = SheetSubject::Object;
  sheet.Title = table->title;
  sheet.Object = object;
  sheet.Kind = document.Objects[object].Kind;
  sheet.Place = place;
  const RowSource source{document, object};
  for (const ObjectRow& row : table->rows) {
    if (!ShowsAt(row, place)) continue;
    PropertyRow& shown = sheet.Rows.emplace_back();
    shown.Caption = row.caption;
    shown.Value = row.read(source);
    shown.Description = row.description;
    shown.Action = row.action;
    shown.Enabled = row.enabled == nullptr || row.enabled(source);
    if (row.inOwnCharSet) shown.CharSet = source.Record().CharSet;
    SetEditor(shown, row.editor, document);
  }
  return sheet;
}

Sheet SheetOfSelection(const Document& document, bool multiSelected, SheetPlace place, const Sheet& before) {
  const int object = document.Objects.CurrentObject;
  if (object == 0)
    return multiSelected ? ShowMultiSelectionSheet(document, place) : ShowDocumentSheet(document, place);
  if (std::optional<Sheet> sheet = ShowSheetFor(document, object, place)) return *std::move(sheet);
  Sheet left = before;
  left.Enabled = false;
  return left;
}

std::string SheetTitle(const Sheet& sheet, const PageServices& services) {
  const std::string& title = services.Text(sheet.Title);
  return sheet.Subject == SheetSubject::Group ? title + " " + std::to_string(sheet.MemberCount) : title;
}

std::optional<std::string> DescriptionOf(const Sheet& sheet, int row, const PageServices& services) {
  if (row < 1 || row > static_cast<int>(sheet.Rows.size())) return std::nullopt;
  const int description = sheet.Rows[static_cast<std::size_t>(row) - 1].Description;
  if (description == 0) return std::nullopt;
  return description == kDescribeX2InPlace ? std::string(kDescriptionOfX2) : services.Text(description);
}

}  // namespace kev
