// SPDX-License-Identifier: MIT
#include "app/compared_object.h"

#include <algorithm>
#include <cmath>
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

const FieldRow& FieldNamed(std::string_view name) {
  return *std::find_if(kObjectFields.begin(), kObjectFields.end(),
                       [&](const FieldRow& row) { return row.name == name; });
}

ComparedObject ObjectOf(const ObjectRecord& record, int row, const CodePage& page) {
  ComparedObject object{row, record.Kind, record.OwnerName, {}};
  for (const std::string_view field : FieldsOf(record.Kind))
    object.Values.push_back({field, Comparable(record, FieldNamed(field), page)});
  const auto keys = ChartKeys();
  for (std::size_t slot = 0; slot < std::min(record.ChartValues.size(), kChartKeyCount); ++slot)
    object.Values.push_back({keys[slot].key, ComparableChartValue(keys[slot].key, record.ChartValues[slot])});
  return object;
}

// The preamble's own bar has no line of its own in a file.
bool IsCompared(const ObjectRecord& record, const CodePage& page) {
  return !FieldsOf(record.Kind).empty() &&
         !page.EqualsIgnoringCase(record.SectionOwner, kConfigurationSection);
}

}  // namespace

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

std::vector<ComparedObject> ComparedObjects(const Document& document) {
  std::vector<ComparedObject> objects;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (IsCompared(record, *document.Page)) objects.push_back(ObjectOf(record, row, *document.Page));
  }
  return objects;
}

}  // namespace kev
