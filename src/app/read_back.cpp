// SPDX-License-Identifier: MIT
#include "app/read_back.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
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

constexpr auto kComparedKinds = std::to_array<ObjectKind>(
    {ObjectKind::Subsection, ObjectKind::Command, ObjectKind::Box, ObjectKind::Chart, ObjectKind::Line,
     ObjectKind::Circle, ObjectKind::AnyLine, ObjectKind::Picture, ObjectKind::Barcode, ObjectKind::Qr,
     ObjectKind::Label, ObjectKind::TextBox});

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
  static const ColumnTable none;
  const double number = PositionOrZero(trimmed, none);
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

// How a field is brought into one form where several mean the same.
enum class Form : std::uint8_t {
  Plain,
  Position,
  Start,
  Trimmed,
  Number,
  Align,
  Case,
  ValueType,
  AtLeastOne,
  Size
};

Form FormOf(ObjectKind kind, std::string_view field) {
  constexpr auto kForms = std::to_array<std::pair<std::string_view, Form>>({
      {"XValue", Form::Position},
      {"X2Value", Form::Position},
      {"StartY", Form::Start},
      {"SectionTitle", Form::Trimmed},
      {"Stretch", Form::Trimmed},
      {"CharSet", Form::Number},
      {"Align", Form::Align},
      {"CaseMode", Form::Case},
      {"ValueType", Form::ValueType},
      {"LineWidth", Form::AtLeastOne},
      {"BarWidth", Form::AtLeastOne},
  });
  if (kind == ObjectKind::Picture && (field == "Width" || field == "Height")) return Form::Size;
  const auto* found =
      std::find_if(kForms.begin(), kForms.end(), [&](const auto& row) { return row.first == field; });
  return found == kForms.end() ? Form::Plain : found->second;
}

// A size that follows the picture is none of the template's.
bool IsMeasured(const ObjectRecord& record, std::string_view field) {
  return field == "Width" ? record.PictureFixedWidth == kFalse : record.PictureFixedHeight == kFalse;
}

struct ComparedField {
  const FieldRow* row;
  Form form;
};

const FieldRow& FieldNamed(std::string_view name) {
  return *std::find_if(kObjectFields.begin(), kObjectFields.end(),
                       [&](const FieldRow& row) { return row.name == name; });
}

// Looked up once for each kind: a document has thousands of rows with dozens of fields.
const std::vector<ComparedField>& ComparedFields(ObjectKind kind) {
  static const auto table = [] {
    std::map<ObjectKind, std::vector<ComparedField>> all;
    for (const ObjectKind each : kComparedKinds) {
      for (const std::string_view name : FieldsOf(each))
        all[each].push_back({&FieldNamed(name), FormOf(each, name)});
    }
    return all;
  }();
  static const std::vector<ComparedField> none;
  const auto found = table.find(kind);
  return found == table.end() ? none : found->second;
}

// Forms that mean the same are one text.
std::string Comparable(const ObjectRecord& record, const ComparedField& field, const CodePage& page) {
  std::string value = std::visit([&](auto member) { return Printer{}(record.*member); }, field.row->member);
  switch (field.form) {
    case Form::Plain:
      break;
    case Form::Position:
      return ComparablePosition(value);
    case Form::Start:
      return ComparableStart(value, page);
    case Form::Trimmed:
      return std::string(Trim(value));
    case Form::Number:
      return FormatNumber(NumericPrefix(value));
    case Form::Align:
      return OrDefault(std::string(Trim(value)), "L");
    case Form::Case:
      return OrDefault(std::move(value), "N");
    case Form::ValueType:
      return OrDefault(std::move(value), "General");
    case Form::AtLeastOne:
      return value == "0" ? "1" : value;
    case Form::Size:
      return IsMeasured(record, field.row->name) ? std::string() : value;
  }
  return value;
}

// The file says "N" for all but "Y". The other ways to say yes show the titles, and would lose them.
std::string ComparableChartValue(std::string_view key, const std::string& value) {
  if (key != "Graph_ShowSeriesTitles" || IsChartYes(value)) return value;
  return "N";
}

struct Item {
  int row = 0;
  const ObjectRecord* record = nullptr;
  bool matched = false;
};

// The preamble's own bar has no line of its own in a file.
bool IsCompared(const ObjectRecord& record, const CodePage& page) {
  return !ComparedFields(record.Kind).empty() &&
         !page.EqualsIgnoringCase(record.SectionOwner, kConfigurationSection);
}

std::vector<Item> ItemsOf(const Document& document) {
  std::vector<Item> items;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (IsCompared(record, *document.Page)) items.push_back({row, &record});
  }
  return items;
}

bool SameField(const ObjectRecord& a, const ObjectRecord& b, const ComparedField& field,
               const CodePage& page) {
  if (std::visit([&](auto member) { return a.*member == b.*member; }, field.row->member)) return true;
  return field.form != Form::Plain && Comparable(a, field, page) == Comparable(b, field, page);
}

std::string ChartValueAt(const ObjectRecord& record, std::size_t slot) {
  static const std::string none;
  return ComparableChartValue(ChartKeys()[slot].key,
                              slot < record.ChartValues.size() ? record.ChartValues[slot] : none);
}

std::size_t ChartSlots(const ObjectRecord& a, const ObjectRecord& b) {
  return std::min(std::max(a.ChartValues.size(), b.ChartValues.size()), kChartKeyCount);
}

bool SameCharts(const ObjectRecord& a, const ObjectRecord& b) {
  if (a.ChartValues == b.ChartValues) return true;
  for (std::size_t slot = 0; slot < ChartSlots(a, b); ++slot) {
    if (ChartValueAt(a, slot) != ChartValueAt(b, slot)) return false;
  }
  return true;
}

bool SameRecords(const ObjectRecord& a, const ObjectRecord& b, const CodePage& page) {
  if (a.Kind != b.Kind || a.OwnerName != b.OwnerName) return false;
  const std::vector<ComparedField>& fields = ComparedFields(a.Kind);
  return std::all_of(fields.begin(), fields.end(),
                     [&](const ComparedField& field) { return SameField(a, b, field, page); }) &&
         SameCharts(a, b);
}

// Rows that are the same have the same key; a subsection is compared wherever it lies.
std::size_t KeyOf(const ObjectRecord& record) {
  const auto y = record.Kind == ObjectKind::Subsection ? 0U : static_cast<std::uint32_t>(record.Y);
  return std::hash<std::string_view>()(record.OwnerName) ^ (std::size_t{y} << 8) ^
         static_cast<std::size_t>(record.Kind);
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
    std::unordered_multimap<std::size_t, Item*> byKey;
    byKey.reserve(read.size());
    for (Item& item : read)
      byKey.emplace(KeyOf(*item.record), &item);
    for (Item& item : shown) {
      const auto [begin, end] = byKey.equal_range(KeyOf(*item.record));
      const auto found = std::find_if(begin, end, [&](const auto& entry) {
        return SameRecords(*item.record, *entry.second->record, *page_.Page);
      });
      if (found == end) continue;
      Match(item, *found->second);
      byKey.erase(found);
    }
  }

  // The partner is the one at the same place, else the first of its kind in the same subsection.
  void MatchDifferent(Item& item, std::vector<Item>& read) {
    const ObjectRecord& mine = *item.record;
    const std::string x = ComparablePosition(mine.XValue);
    const auto atSamePlace = [&](const Item& other) {
      const ObjectRecord& theirs = *other.record;
      return !other.matched && theirs.Kind != ObjectKind::Subsection && mine.Kind != ObjectKind::Subsection &&
             theirs.OwnerName == mine.OwnerName && theirs.Y == mine.Y &&
             ComparablePosition(theirs.XValue) == x;
    };
    const auto ofSameKind = [&](const Item& other) {
      return !other.matched && other.record->Kind == mine.Kind && other.record->OwnerName == mine.OwnerName;
    };
    auto partner = std::find_if(read.begin(), read.end(), atSamePlace);
    if (partner == read.end()) partner = std::find_if(read.begin(), read.end(), ofSameKind);
    if (partner == read.end()) return NoteStructure(item.row, FindingKind::ObjectLost, Shown(item));
    Match(item, *partner);
    NoteDifferences(item, *partner);
  }

  void NoteDifferences(const Item& item, const Item& other) {
    const ObjectRecord& mine = *item.record;
    const ObjectRecord& theirs = *other.record;
    if (mine.Kind != theirs.Kind)
      return NoteStructure(item.row, FindingKind::KindChanges,
                           std::string(KindText(mine.Kind)) + " -> " + std::string(KindText(theirs.Kind)),
                           other.row);
    for (const ComparedField& field : ComparedFields(mine.Kind)) {
      if (!SameField(mine, theirs, field, *page_.Page))
        NoteValue(item, other, field.row->name, Comparable(mine, field, *page_.Page),
                  Comparable(theirs, field, *page_.Page));
    }
    for (std::size_t slot = 0; slot < ChartSlots(mine, theirs); ++slot) {
      const std::string before = ChartValueAt(mine, slot);
      const std::string after = ChartValueAt(theirs, slot);
      if (before != after) NoteValue(item, other, ChartKeys()[slot].key, before, after);
    }
  }

  void NoteValue(const Item& item, const Item& other, std::string_view field, const std::string& before,
                 const std::string& after) {
    Note(item.row, FindingKind::ValueChanges,
         std::string(KindText(item.record->Kind)).append(" ").append(field) + ": " + before + " -> " + after,
         other.row);
  }

  static std::string Shown(const Item& item) {
    const ObjectRecord& record = *item.record;
    const std::string_view title = Trim(record.SectionTitle);
    const std::string_view text = title.empty() ? std::string_view(record.Content) : title;
    return std::string(KindText(record.Kind)) + (text.empty() ? "" : ": ") + std::string(text);
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
