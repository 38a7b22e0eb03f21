// SPDX-License-Identifier: MIT
#include "app/compared_object.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <concepts>
#include <map>
#include <span>

#include "base/numbers.h"
#include "base/text.h"
#include "chart/chart_data.h"
#include "chart/definition.h"
#include "document/object_fields.h"
#include "document/position.h"

namespace kev {
namespace {

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
  template <std::convertible_to<std::string_view> Text>
  std::string operator()(const Text& value) const {
    return value;
  }
  std::string operator()(const OrderKey& value) const { return value.Text(); }
  std::string operator()(ObjectKind value) const { return std::string(KindText(value)); }
  std::string operator()(const RareOptional<double>& value) const { return FormatNumber(value.value_or(0)); }
  std::string operator()(const RareOptional<std::string>& value) const { return value.value_or(""); }
  template <std::integral Integer>
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

std::string ChartValueAt(const ObjectRecord& record, std::size_t slot) {
  static const std::string none;
  return ComparableChartValue(ChartKeys()[slot].key,
                              slot < record.ChartValues.size() ? record.ChartValues[slot] : none);
}

bool SameField(const ObjectRecord& a, const ObjectRecord& b, const ComparedField& field,
               const CodePage& page) {
  if (std::visit([&](auto member) { return a.*member == b.*member; }, field.row->member)) return true;
  return field.form != Form::Plain && Comparable(a, field, page) == Comparable(b, field, page);
}

bool SameCharts(const ObjectRecord& a, const ObjectRecord& b) {
  if (a.ChartValues == b.ChartValues) return true;
  const std::size_t slots = std::min(std::max(a.ChartValues.size(), b.ChartValues.size()), kChartKeyCount);
  for (std::size_t slot = 0; slot < slots; ++slot)
    if (ChartValueAt(a, slot) != ChartValueAt(b, slot)) return false;
  return true;
}

}  // namespace

// The preamble's own bar has no line of its own in a file.
bool IsCompared(const ObjectRecord& record, const CodePage& page) {
  return !ComparedFields(record.Kind).empty() &&
         !page.EqualsIgnoringCase(record.SectionOwner, kConfigurationSection);
}

bool SameObjects(const ObjectRecord& a, const ObjectRecord& b, const CodePage& page) {
  if (a.Kind != b.Kind || a.OwnerName != b.OwnerName) return false;
  const std::vector<ComparedField>& fields = ComparedFields(a.Kind);
  return std::all_of(fields.begin(), fields.end(),
                     [&](const ComparedField& field) { return SameField(a, b, field, page); }) &&
         SameCharts(a, b);
}

ComparedObject ObjectOf(const ObjectRecord& record, int row, const CodePage& page) {
  ComparedObject object{row, record.Kind, record.OwnerName, {}};
  for (const ComparedField& field : ComparedFields(record.Kind))
    object.Values.push_back({field.row->name, Comparable(record, field, page)});
  if (record.Kind != ObjectKind::Chart) return object;
  for (std::size_t slot = 0; slot < kChartKeyCount; ++slot)
    object.Values.push_back({ChartKeys()[slot].key, ChartValueAt(record, slot)});
  return object;
}

std::string_view ComparedObject::operator[](std::string_view field) const {
  const auto found = std::find_if(Values.begin(), Values.end(),
                                  [&](const ComparedValue& value) { return value.Field == field; });
  return found == Values.end() ? std::string_view{} : std::string_view(found->Text);
}

std::string_view ComparedObject::Words() const {
  for (const std::string_view field : {"SectionTitle", "Content", "PicturePath"})
    if (const std::string_view words = (*this)[field]; !words.empty()) return words;
  return {};
}

}  // namespace kev
