// SPDX-License-Identifier: MIT
#include "surface/column_commands.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "document/position.h"
#include "surface/column_lines.h"
#include "surface/selection.h"
#include "template/packed.h"

namespace kev {
namespace {

constexpr double kColumnStep = 100;

// The value of a position as text; empty where there is none.
std::string EvaluatedText(std::string_view position, const Document& document) {
  const std::optional<double> value = EvaluatePosition(position, document.Columns, *document.Page);
  return value ? FormatNumber(*value) : std::string();
}

// 0 when there is none whose generated name is free as well.
int SlotForNewColumn(const Document& document) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    if (!document.Columns[slot].Name.empty()) continue;
    if (document.Columns.Find(GeneratedColumnName(slot), *document.Page) == 0) return slot;
  }
  return 0;
}

// --- Organising ---

bool MayOrganize(const PageWork& work, const SavedText& savedText) {
  const std::string saved = savedText();
  LineQuestion question(work.services, kTextOrganizeUsedColumns);
  for (const std::string_view line : SplitLines(saved)) {
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
      const std::string& name = work.document.Columns[slot].Name;
      if (name.empty() || !work.document.Page->ContainsIgnoringCase(line, name)) continue;
      if (!question.Agreed()) return false;
    }
  }
  return true;
}

// Seven digits; a sign and eight for a negative position. Longer numbers keep their digits.
std::string MaskedPosition(double position) {
  const double rounded = RoundToEven(position);
  const std::string digits = FormatNumber(std::abs(rounded));
  const std::size_t width = position < 0 ? 8 : 7;
  const std::string zeros(width - std::min(width, digits.size()), '0');
  return (rounded < 0 ? "-" : "") + zeros + digits;
}

std::vector<std::string> SortedColumns(const ColumnTable& columns) {
  std::vector<std::string> items;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    const Column& column = columns[slot];
    if (!column.Name.empty()) items.push_back(MaskedPosition(column.Position) + " " + column.Name);
  }
  std::sort(items.begin(), items.end());
  return items;
}

// Slots behind the last item keep what they held; they are renamed and stay columns.
void SortAndRename(ColumnTable& columns) {
  int slot = 0;
  for (const std::string& item : SortedColumns(columns)) {
    const std::string name(NthToken(item, 2, kBlank));
    columns[++slot] = {name, NumericPrefix(NthToken(item, 1, kBlank)), name};
  }
  for (slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    if (!columns[slot].Name.empty()) columns[slot].Name = GeneratedColumnName(slot);
  }
}

int SlotOfPreviousName(const Document& document, std::string_view name) {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    const std::string_view previous = Trim(document.Columns[slot].PreviousName);
    if (!previous.empty() && document.Page->EqualsIgnoringCase(previous, Trim(name))) return slot;
  }
  return 0;
}

// A "$" word that was no column is dropped.
std::string Renamed(std::string_view field, const Document& document) {
  if (field.find('$') == std::string_view::npos) return std::string(field);
  std::string renamed;
  const Tokens tokens = SplitTokens(field, kBlank);
  for (std::size_t n = 1; n <= tokens.Count(); ++n) {
    if (!tokens[n].starts_with('$')) {
      renamed.append(1, kBlank).append(tokens[n]);
    } else if (const int slot = SlotOfPreviousName(document, tokens[n]); slot != 0) {
      renamed += document.Columns[slot].Name;
    }
  }
  return std::string(Trim(renamed));
}

void RenameInObjects(Document& document) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    record.XValue = Renamed(record.XValue, document);
    record.X2Value = Renamed(record.X2Value, document);
  }
}

// The texts of all that organising may rename.
std::vector<std::string> PositionTexts(const Document& document) {
  std::vector<std::string> texts;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    texts.push_back(document.Objects[row].XValue);
    texts.push_back(document.Objects[row].X2Value);
  }
  return texts;
}

std::vector<double> ObjectPlaces(const Document& document) {
  std::vector<double> places;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    places.push_back(PositionOrZero(record.XValue, document.Columns, *document.Page));
    places.push_back(PositionOrZero(record.X2Value, document.Columns, *document.Page));
  }
  return places;
}

// --- Using a column ---

std::vector<int> RowsForColumn(const PageWork& work) {
  const ObjectTable& objects = work.document.Objects;
  std::vector<int> rows;
  if (work.pointer.MultiSelected) {
    for (int row = 1; row <= objects.LastScanned(); ++row) {
      if (objects[row].Selected != kFalse) rows.push_back(row);
    }
  } else if (objects.CurrentObject != 0) {
    rows.push_back(objects.CurrentObject);
  }
  std::erase_if(rows,
                [&](int row) { return IsBand(objects[row].Kind) || objects[row].Kind == ObjectKind::None; });
  return rows;
}

void TieToColumn(ObjectRecord& record, std::string_view name, const Document& document) {
  record.XValue = name;
  if (record.Kind != ObjectKind::Line) return;
  const double left = PositionOrZero(record.XValue, document.Columns, *document.Page);
  record.X2Value = FormatNumber(left + record.Width);
}

}  // namespace

std::string SavedTemplateText(const std::string& path) {
  if (path.empty() || !FileExists(path)) return {};
  Result<std::string> bytes = ReadPlainTemplate(path);
  if (!bytes) throw std::runtime_error(bytes.Error().path + ": " + bytes.Error().reason);
  return std::move(*bytes);
}

bool LineQuestion::Agreed() {
  if (yesToAll_) return true;
  const BoxAnswer answer = services_.ShowBox(textNumber_, BoxIcon::Warning, BoxButtons::YesNoYesToAll);
  yesToAll_ = answer == BoxAnswer::YesToAll;
  return yesToAll_ || answer == BoxAnswer::Yes;
}

void InsertColumnHere(PageWork& work) {
  const double x = SnapToStep(std::trunc(work.pointer.MenuAt.RulerX), work.ZoomFactor * kColumnStep);
  const int slot = SlotForNewColumn(work.document);
  if (slot == 0) return RefreshColumnList(work);
  work.services.MarkChanged();
  const double position = RoundToEven(x / work.ZoomFactor);
  work.document.Columns[slot] = {GeneratedColumnName(slot), position, {}};
  PlaceColumnLine(work, slot, RoundToEven(work.ZoomFactor * position));
  RefreshColumnList(work);
  // An object may have named the column before it was there.
  work.services.FullRepaint();
}

void RemoveColumn(PageWork& work, int slot) {
  Document& document = work.document;
  if (!IsColumn(document.Columns, slot)) return;
  work.services.PushUndo();
  const std::string name = document.Columns[slot].Name;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    std::string& position = document.Objects[row].XValue;
    if (position.find(name) != std::string::npos) position = EvaluatedText(position, document);
  }
  ParkColumnLine(work, slot);
  document.Columns[slot] = {};
  ShowColumnText(work, {});
  work.services.FullRepaint();
}

void OrganizeColumns(PageWork& work, const SavedText& savedText) {
  if (!MayOrganize(work, savedText)) return;
  Document& document = work.document;
  const std::vector<double> before = ObjectPlaces(document);
  const ColumnTable columnsBefore = document.Columns;
  const std::vector<std::string> textsBefore = PositionTexts(document);
  SortAndRename(document.Columns);
  RenameInObjects(document);
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    document.Columns[slot].PreviousName.clear();
  // Columns that were in order lose nobody a redo.
  if (document.Columns != columnsBefore || PositionTexts(document) != textsBefore)
    work.services.MarkChanged();
  ShowColumnText(work, {});
  work.services.SelectionChanged();
  if (ObjectPlaces(document) != before) work.services.FullRepaint();
  work.services.ShowBox(kTextColumnsOrganized, BoxIcon::Information);
}

void UseColumn(PageWork& work, std::string_view item) {
  ShowColumnText(work, std::string(item));
  const std::vector<int> rows = RowsForColumn(work);
  if (rows.empty()) return;
  work.services.PushUndo();
  for (const int row : rows)
    TieToColumn(work.document.Objects[row], NthToken(item, 1, kBlank), work.document);
  HideHandles(work);
  work.services.FullRepaint();
  work.services.BuildRulers();
}

}  // namespace kev
