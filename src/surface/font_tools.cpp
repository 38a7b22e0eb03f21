// SPDX-License-Identifier: MIT
#include "surface/font_tools.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "document/kind_defaults.h"
#include "document/object_creation.h"
#include "surface/object_area.h"
#include "surface/selection.h"

namespace kev {
namespace {

const ObjectRecord& RecordAt(const PageWork& work, int row) {
  return std::as_const(work.document).Objects[row];
}

bool HasText(ObjectKind kind) {
  return kind == ObjectKind::Label || kind == ObjectKind::TextBox;
}

bool HasColour(ObjectKind kind) {
  if (kind == ObjectKind::None || IsBand(kind)) return false;
  return HasText(kind) || DefaultsOf(kind).takesColour;
}

std::vector<int> SelectedRows(const PageWork& work) {
  if (work.pointer.MultiSelected) return GroupMembers(work);
  const int current = work.document.Objects.CurrentObject;
  return current == 0 ? std::vector<int>() : std::vector<int>{current};
}

template <typename Test>
std::vector<int> SelectedOf(const PageWork& work, const Test& test) {
  std::vector<int> rows = SelectedRows(work);
  std::erase_if(rows, [&](int row) { return !test(RecordAt(work, row).Kind); });
  return rows;
}

bool IsLabel(ObjectKind kind) {
  return kind == ObjectKind::Label;
}

// The texts that the tools change; none where the tools can't be used.
std::vector<int> TextRows(const PageWork& work) {
  if (work.pointer.MultiSelected && SelectedOf(work, IsLabel).empty()) return {};
  return SelectedOf(work, HasText);
}

// What all rows have; empty where they differ.
template <typename Text>
std::string CommonText(const PageWork& work, const std::vector<int>& rows, const Text& textOf) {
  const std::string first = textOf(RecordAt(work, rows.front()));
  const bool same =
      std::all_of(rows.begin(), rows.end(), [&](int row) { return textOf(RecordAt(work, row)) == first; });
  return same ? first : std::string();
}

// --- Changing ---

using Change = std::function<void(ObjectRecord&)>;

bool ChangeRows(PageWork& work, const std::vector<int>& rows, const Change& change) {
  if (rows.empty()) return false;
  work.services.PushUndo();
  HideHandles(work);
  for (const int row : rows)
    change(work.document.Objects[row]);
  work.services.FullRepaint();
  return true;
}

// A label is as large as its text.
Change Measured(const PageWork& work, Change change) {
  return [&work, change = std::move(change)](ObjectRecord& record) {
    change(record);
    if (record.Kind == ObjectKind::Label) MeasureText(record, work.measurer);
  };
}

void ChangeFont(PageWork& work, const Change& change) {
  const bool isGroup = work.pointer.MultiSelected;
  if (ChangeRows(work, TextRows(work), Measured(work, change)) && isGroup) work.services.BuildRulers();
}

bool MayBeFontName(std::string_view name, const Document& document) {
  const char reserved[] = {';', document.Settings.OpenCharacter(), document.Settings.CloseCharacter()};
  return !name.empty() && name.find_first_of(std::string_view(reserved, sizeof reserved)) == name.npos;
}

struct StyleRow {
  FontTool tool;
  Flag ObjectRecord::*field;
  bool FontTools::*shown;
  bool TextStyle::*last;
};

constexpr auto kStyles = std::to_array<StyleRow>({
    {FontTool::Bold, &ObjectRecord::Bold, &FontTools::Bold, &TextStyle::Bold},
    {FontTool::Italic, &ObjectRecord::Italic, &FontTools::Italic, &TextStyle::Italic},
    {FontTool::Underline, &ObjectRecord::Underline, &FontTools::Underline, &TextStyle::Underline},
});

struct AlignRow {
  FontTool tool;
  char letter;
};

constexpr auto kAlignments = std::to_array<AlignRow>(
    {{FontTool::AlignLeft, 'L'}, {FontTool::AlignCentre, 'C'}, {FontTool::AlignRight, 'R'}});

template <typename Table>
auto RowIn(const Table& table, FontTool tool) {
  return std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.tool == tool; });
}

void ToggleStyle(PageWork& work, LastUsed& last, const StyleRow& style) {
  const bool on = !(FontToolsOf(work).*style.shown);
  last.Label.*style.last = on;
  ChangeFont(work, [&](ObjectRecord& record) { record.*style.field = ToFlag(on); });
}

}  // namespace

bool FontTools::Checked(FontTool tool) const {
  if (const auto style = RowIn(kStyles, tool); style != kStyles.end()) return this->*style->shown;
  return Align == RowIn(kAlignments, tool)->letter;
}

bool FontTools::CanUse(FontTool tool) const {
  return RowIn(kStyles, tool) != kStyles.end() ? Enabled : AlignEnabled;
}

FontTools FontToolsOf(const PageWork& work) {
  FontTools tools;
  const std::vector<int> rows = TextRows(work);
  if (rows.empty()) return tools;
  tools.Enabled = true;
  tools.ComboFont = CommonText(work, rows, [](const ObjectRecord& record) { return record.FontName; });
  tools.Combosize =
      CommonText(work, rows, [](const ObjectRecord& record) { return std::to_string(record.FontSize); });
  const ObjectRecord& first = RecordAt(work, rows.front());
  for (const StyleRow& style : kStyles)
    tools.*style.shown = first.*style.field == kTrue;
  tools.PColor = NormaliseColour(TextColourOf(first));
  const std::vector<int> labels = SelectedOf(work, IsLabel);
  tools.AlignEnabled = !labels.empty();
  if (tools.AlignEnabled) tools.Align = AnchorOf(RecordAt(work, labels.front()));
  return tools;
}

void UseFontName(PageWork& work, LastUsed& last, std::string_view name) {
  name = Trim(name);
  if (TextRows(work).empty() || !MayBeFontName(name, work.document)) return;
  last.Label.FontName = name;
  ChangeFont(work, [&](ObjectRecord& record) { record.FontName = name; });
}

void UseFontSize(PageWork& work, LastUsed& last, std::string_view size) {
  const std::int32_t points = Int32Of(size);
  if (TextRows(work).empty() || points < kSmallestFontSize || points > kLargestFontSize) return;
  last.Label.FontSize = points;
  ChangeFont(work, [&](ObjectRecord& record) { record.FontSize = points; });
}

void UseFontTool(PageWork& work, LastUsed& last, FontTool tool) {
  if (!FontToolsOf(work).CanUse(tool)) return;
  if (const auto style = RowIn(kStyles, tool); style != kStyles.end()) return ToggleStyle(work, last, *style);
  const std::string letter(1, RowIn(kAlignments, tool)->letter);
  ChangeRows(work, SelectedOf(work, IsLabel), [&](ObjectRecord& record) { record.Align = letter; });
}

void UseTextColour(PageWork& work, LastUsed& last, const Colour& colour) {
  if (TextRows(work).empty()) return;
  const Colour plain = NormaliseColour(colour);
  last.Label.Color =
      std::to_string(plain.Red) + ',' + std::to_string(plain.Green) + ',' + std::to_string(plain.Blue);
  ChangeRows(work, SelectedOf(work, HasColour), [&](ObjectRecord& record) {
    record.ColorR = plain.Red;
    record.ColorG = plain.Green;
    record.ColorB = plain.Blue;
  });
}

}  // namespace kev
