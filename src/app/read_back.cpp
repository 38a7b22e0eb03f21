// SPDX-License-Identifier: MIT
#include "app/read_back.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <unordered_map>

#include "base/numbers.h"
#include "base/text.h"
#include "chart/chart_data.h"
#include "chart/definition.h"
#include "document/object_fields.h"
#include "document/position.h"

namespace kev {
namespace {

constexpr std::size_t kMostFindings = 1000;

// What each kind shows or does.
constexpr std::string_view kSubsectionFields[] = {"SectionTitle", "StartY", "EndsAt"};
constexpr std::string_view kCommandFields[] = {
    "XValue",         "Y",           "AlignToGrid", "Content",
    "ExecuteCommand", "ExecuteArg2", "ExecuteArg3", "CommandPayload"};
constexpr std::string_view kBoxFields[] = {
    "XValue", "Y",      "AlignToGrid", "Width",  "Height",    "LineWidth",          "LineFlag",
    "Filled", "ColorR", "ColorG",      "ColorB", "PrintFlag", "ModifiableByEndUser"};
constexpr std::string_view kChartFields[] = {"XValue", "Y", "AlignToGrid", "PrintFlag",
                                             "ModifiableByEndUser"};
constexpr std::string_view kLineFields[] = {
    "XValue", "Y",      "AlignToGrid", "X2Value",   "LineWidth",          "LineFlag",
    "ColorR", "ColorG", "ColorB",      "PrintFlag", "ModifiableByEndUser"};
constexpr std::string_view kCircleFields[] = {
    "XValue", "Y",      "AlignToGrid", "Width",     "LineWidth",
    "ColorR", "ColorG", "ColorB",      "PrintFlag", "ModifiableByEndUser"};
constexpr std::string_view kAnyLineFields[] = {"XValue", "Y",         "AlignToGrid", "Width",
                                               "Height", "LineWidth", "LineFlag",    "ColorR",
                                               "ColorG", "ColorB",    "PrintFlag",   "ModifiableByEndUser"};
constexpr std::string_view kPictureFields[] = {"XValue",
                                               "Y",
                                               "AlignToGrid",
                                               "PicturePath",
                                               "Link",
                                               "PictureFixedWidth",
                                               "PictureFixedHeight",
                                               "Width",
                                               "Height",
                                               "PrintFlag",
                                               "ModifiableByEndUser"};
constexpr std::string_view kBarcodeFields[] = {
    "XValue",   "Y",      "AlignToGrid", "Content", "BarcodeKind", "VerticalBar",        "Height",
    "BarWidth", "ColorR", "ColorG",      "ColorB",  "PrintFlag",   "ModifiableByEndUser"};
constexpr std::string_view kQrFields[] = {
    "XValue", "Y",      "AlignToGrid", "Content",   "Height",
    "ColorR", "ColorG", "ColorB",      "PrintFlag", "ModifiableByEndUser"};
constexpr std::string_view kLabelFields[] = {"XValue",        "Y",
                                             "AlignToGrid",   "Content",
                                             "Link",          "FontName",
                                             "FontSize",      "Bold",
                                             "Italic",        "Underline",
                                             "Strikethrough", "CharSet",
                                             "ColorR",        "ColorG",
                                             "ColorB",        "Align",
                                             "Format",        "CaseMode",
                                             "ValueType",     "Stretch",
                                             "PrintFlag",     "ModifiableByEndUser"};
constexpr std::string_view kTextBoxFields[] = {"XValue",
                                               "Y",
                                               "AlignToGrid",
                                               "Content",
                                               "Width",
                                               "Height",
                                               "ValueType",
                                               "FontName",
                                               "FontSize",
                                               "Bold",
                                               "Italic",
                                               "Underline",
                                               "Strikethrough",
                                               "CharSet",
                                               "ColorR",
                                               "ColorG",
                                               "ColorB",
                                               "BackColorR",
                                               "BackColorG",
                                               "BackColorB",
                                               "Align",
                                               "TextBoxFrameValue",
                                               "TextBoxExtraValue",
                                               "CommandPayload",
                                               "PrintFlag",
                                               "ModifiableByEndUser"};

std::span<const std::string_view> FieldsOf(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::Subsection:
      return kSubsectionFields;
    case ObjectKind::Command:
      return kCommandFields;
    case ObjectKind::Box:
      return kBoxFields;
    case ObjectKind::Chart:
      return kChartFields;
    case ObjectKind::Line:
      return kLineFields;
    case ObjectKind::Circle:
      return kCircleFields;
    case ObjectKind::AnyLine:
      return kAnyLineFields;
    case ObjectKind::Picture:
      return kPictureFields;
    case ObjectKind::Barcode:
      return kBarcodeFields;
    case ObjectKind::Qr:
      return kQrFields;
    case ObjectKind::Label:
      return kLabelFields;
    case ObjectKind::TextBox:
      return kTextBoxFields;
    case ObjectKind::None:
    case ObjectKind::Section:
    case ObjectKind::EndOfSubsection:
      break;
  }
  return {};
}

struct Printer {
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(ObjectKind value) const { return std::string(KindText(value)); }
  std::string operator()(const std::optional<double>& value) const { return FormatNumber(value.value_or(0)); }
  std::string operator()(const std::optional<std::string>& value) const { return value.value_or(""); }
  template <typename Integer>
  std::string operator()(Integer value) const {
    return std::to_string(value);
  }
};

// A position that is printed as nearly nothing so that the reader does not keep the one before it.
std::string ComparablePosition(const std::string& text) {
  const std::string_view trimmed = Trim(text);
  if (trimmed.find('$') != std::string_view::npos) return std::string(trimmed);
  // Where it lies, not what it begins with: a label keeps only the number at the start of "100 + 50".
  const double number = PositionOrZero(trimmed, ColumnTable());
  return std::abs(number) < 0.01 ? "0" : FormatNumber(number);
}

std::string OrDefault(std::string value, std::string_view whenEmpty) {
  return value.empty() ? std::string(whenEmpty) : std::move(value);
}

std::string ComparableStart(const std::string& text, const CodePage& page) {
  const std::string_view trimmed = Trim(text);
  if (trimmed.empty() || page.EqualsIgnoringCase(trimmed, kCurrentYValue)) return std::string(kCurrentYValue);
  const double number = NumericPrefix(trimmed);
  return FormatNumber(number == 0 ? 1 : number);
}

bool IsMeasured(const ObjectRecord& record, std::string_view field) {
  if (record.Kind != ObjectKind::Picture) return false;
  return (field == "Width" && record.PictureFixedWidth == kFalse) ||
         (field == "Height" && record.PictureFixedHeight == kFalse);
}

// Forms that mean the same are one text.
std::string Comparable(const ObjectRecord& record, const FieldRow& row, const CodePage& page) {
  if (IsMeasured(record, row.name)) return {};
  std::string value = std::visit([&](auto member) { return Printer{}(record.*member); }, row.member);
  if (row.name == "XValue" || row.name == "X2Value") return ComparablePosition(value);
  if (row.name == "StartY") return ComparableStart(value, page);
  if (row.name == "SectionTitle" || row.name == "Stretch") return std::string(Trim(value));
  if (row.name == "CharSet") return FormatNumber(NumericPrefix(value));
  if (row.name == "Align") return OrDefault(std::string(Trim(value)), "L");
  if (row.name == "CaseMode") return OrDefault(std::move(value), "N");
  if (row.name == "ValueType") return OrDefault(std::move(value), "General");
  if ((row.name == "LineWidth" || row.name == "BarWidth") && value == "0") return "1";
  return value;
}

// The file says "N" for all but "Y". The other ways to say yes show the titles, and would lose them.
std::string ComparableChartValue(std::string_view key, const std::string& value) {
  if (key != "Graph_ShowSeriesTitles" || IsChartYes(value)) return value;
  return "N";
}

struct Value {
  std::string_view field;
  std::string text;
};

struct Item {
  int row = 0;
  ObjectKind kind = ObjectKind::None;
  std::string owner;
  std::vector<Value> values;
  std::string all;  // everything above as one text
  bool matched = false;

  std::string_view operator[](std::string_view field) const {
    const auto found =
        std::find_if(values.begin(), values.end(), [&](const Value& value) { return value.field == field; });
    return found == values.end() ? std::string_view{} : std::string_view(found->text);
  }
};

const FieldRow& FieldNamed(std::string_view name) {
  return *std::find_if(kObjectFields.begin(), kObjectFields.end(),
                       [&](const FieldRow& row) { return row.name == name; });
}

Item ItemOf(const ObjectRecord& record, int row, const CodePage& page) {
  Item item{row, record.Kind, record.OwnerName, {}, {}, false};
  for (const std::string_view field : FieldsOf(record.Kind))
    item.values.push_back({field, Comparable(record, FieldNamed(field), page)});
  for (std::size_t slot = 0; slot < std::min(record.ChartValues.size(), kChartKeyCount); ++slot)
    item.values.push_back(
        {ChartKeys()[slot].key, ComparableChartValue(ChartKeys()[slot].key, record.ChartValues[slot])});
  item.all = std::string(KindText(record.Kind)) + '\0' + item.owner;
  for (const Value& value : item.values)
    item.all.append(1, '\0').append(value.text);
  return item;
}

// The preamble's own bar has no line of its own in a file.
bool IsCompared(const ObjectRecord& record, const CodePage& page) {
  return !FieldsOf(record.Kind).empty() &&
         !page.EqualsIgnoringCase(record.SectionOwner, kConfigurationSection);
}

std::vector<Item> ItemsOf(const Document& document) {
  std::vector<Item> items;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (IsCompared(record, *document.Page)) items.push_back(ItemOf(record, row, *document.Page));
  }
  return items;
}

class Comparison {
 public:
  Comparison(const Document& page, const Document& file) : page_(page), file_(file) {}

  ReadBack Run() {
    Rows();
    Settings();
    Columns();
    return std::move(result_);
  }

 private:
  void Note(int row, FindingKind kind, std::string text, int fileRow = 0) {
    if (result_.Findings.size() >= kMostFindings) return;
    result_.Findings.push_back({0, 0, kind, std::move(text), row});
    result_.FileRows.push_back(fileRow);
  }
  void NoteStructure(int row, FindingKind kind, std::string text, int fileRow = 0) {
    result_.Structure = true;
    Note(row, kind, std::move(text), fileRow);
  }
  void Match(Item& shown, Item& read) {
    shown.matched = read.matched = true;
    result_.PageRows[static_cast<std::size_t>(read.row)] = shown.row;
  }

  void Rows() {
    std::vector<Item> shown = ItemsOf(page_);
    std::vector<Item> read = ItemsOf(file_);
    result_.PageRows.assign(static_cast<std::size_t>(file_.Objects.LastScanned()) + 1, 0);
    MatchEqual(shown, read);
    for (Item& item : shown) {
      if (!item.matched) MatchDifferent(item, read);
    }
    for (const Item& item : read) {
      if (!item.matched) NoteStructure(0, FindingKind::ObjectAppears, Shown(item), item.row);
    }
  }

  void MatchEqual(std::vector<Item>& shown, std::vector<Item>& read) {
    std::unordered_multimap<std::string_view, Item*> byValue;
    for (Item& item : read)
      byValue.emplace(item.all, &item);
    for (Item& item : shown) {
      const auto found = byValue.find(item.all);
      if (found == byValue.end()) continue;
      Match(item, *found->second);
      byValue.erase(found);
    }
  }

  // The partner is the one at the same place, else the first of its kind in the same subsection.
  void MatchDifferent(Item& item, std::vector<Item>& read) {
    const auto atSamePlace = [&](const Item& other) {
      return !other.matched && other.kind != ObjectKind::Subsection && item.kind != ObjectKind::Subsection &&
             other.owner == item.owner && other["Y"] == item["Y"] && other["XValue"] == item["XValue"];
    };
    const auto ofSameKind = [&](const Item& other) {
      return !other.matched && other.kind == item.kind && other.owner == item.owner;
    };
    auto partner = std::find_if(read.begin(), read.end(), atSamePlace);
    if (partner == read.end()) partner = std::find_if(read.begin(), read.end(), ofSameKind);
    if (partner == read.end()) return NoteStructure(item.row, FindingKind::ObjectLost, Shown(item));
    Match(item, *partner);
    NoteDifferences(item, *partner);
  }

  void NoteDifferences(const Item& item, const Item& other) {
    const std::string kind(KindText(item.kind));
    if (item.kind != other.kind)
      return NoteStructure(item.row, FindingKind::KindChanges,
                           kind + " -> " + std::string(KindText(other.kind)), other.row);
    for (std::size_t at = 0; at < item.values.size() && at < other.values.size(); ++at) {
      const Value& mine = item.values[at];
      const Value& theirs = other.values[at];
      if (mine.text == theirs.text) continue;
      Note(item.row, FindingKind::ValueChanges,
           kind + " " + std::string(mine.field) + ": " + mine.text + " -> " + theirs.text, other.row);
    }
  }

  static std::string Shown(const Item& item) {
    const std::string_view title = item["SectionTitle"];
    const std::string_view text = title.empty() ? item["Content"] : title;
    return std::string(KindText(item.kind)) + (text.empty() ? "" : ": ") + std::string(text);
  }

  void Settings() {
    for (const SettingRow& row : SettingRows()) {
      const std::string mine = PrintedForm(page_, row.id);
      const std::string theirs = PrintedForm(file_, row.id);
      if (mine != theirs)
        NoteStructure(0, FindingKind::ValueChanges, std::string(row.key) + ": " + mine + " -> " + theirs);
    }
  }

  static std::string PrintedForm(const Document& document, Setting id) {
    if (!SettingIsPrinted(document.Settings, id, *document.Page)) return {};
    return std::string(Trim(PrintedValue(document.Settings, id)));
  }

  static std::vector<std::string> ColumnLines(const Document& document) {
    std::vector<std::string> lines;
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
      const Column& column = document.Columns[slot];
      if (!column.Name.empty()) lines.push_back(column.Name + "=" + FormatNumber(column.Position));
    }
    return lines;
  }

  void Columns() {
    const std::vector<std::string> mine = ColumnLines(page_);
    const std::vector<std::string> theirs = ColumnLines(file_);
    for (const std::string& line : mine) {
      if (std::find(theirs.begin(), theirs.end(), line) == theirs.end())
        NoteStructure(0, FindingKind::ColumnLost, line);
    }
    for (const std::string& line : theirs) {
      if (std::find(mine.begin(), mine.end(), line) == mine.end())
        NoteStructure(0, FindingKind::ColumnAppears, line);
    }
  }

  const Document& page_;
  const Document& file_;
  ReadBack result_;
};

}  // namespace

ReadBack CompareReadBack(const Document& page, const Document& file) {
  return Comparison(page, file).Run();
}

}  // namespace kev
