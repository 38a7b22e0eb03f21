// SPDX-License-Identifier: MIT
#include <iostream>
#include <nlohmann/json.hpp>

#include "chart/definition.h"
#include "commands.h"
#include "document/object_fields.h"
#include "document/sections.h"

namespace kev::tool {
namespace {

using Json = nlohmann::ordered_json;

// A whole number is shown as one, as everywhere else.
Json NumberToJson(double value) {
  const auto whole = static_cast<std::int64_t>(std::abs(value) < 1e15 ? value : 0.5);
  return static_cast<double>(whole) == value ? Json(whole) : Json(value);
}

class FieldToJson {
 public:
  FieldToJson(const ObjectRecord& record, const CodePage& page) : record_(record), page_(page) {}

  template <std::convertible_to<std::string_view> Text>
  Json operator()(Text ObjectRecord::*member) const {
    return page_.ToUtf8(record_.*member);
  }
  Json operator()(OrderKey ObjectRecord::*member) const { return (record_.*member).Text(); }
  Json operator()(ObjectKind ObjectRecord::*member) const { return KindText(record_.*member); }
  Json operator()(RareOptional<std::string> ObjectRecord::*member) const {
    const auto& value = record_.*member;
    return value ? Json(page_.ToUtf8(*value)) : Json(nullptr);
  }
  Json operator()(RareOptional<double> ObjectRecord::*member) const {
    const auto& value = record_.*member;
    if (!value) return nullptr;
    return NumberToJson(*value);
  }
  template <typename Number>
  Json operator()(Number ObjectRecord::*member) const {
    return record_.*member;
  }

 private:
  const ObjectRecord& record_;
  const CodePage& page_;
};

Json Settings(const Document& document) {
  Json settings = Json::object();
  for (const SettingRow& row : SettingRows()) {
    settings[std::string(row.key)] = document.Page->ToUtf8(document.Settings[row.id]);
  }
  return settings;
}

Json Columns(const Document& document) {
  Json columns = Json::array();
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    const Column& column = document.Columns[slot];
    if (column.Name.empty()) continue;
    columns.push_back({{"slot", slot},
                       {"name", document.Page->ToUtf8(column.Name)},
                       {"position", NumberToJson(column.Position)}});
  }
  return columns;
}

Json ChartOf(const ObjectRecord& record, const CodePage& page) {
  Json chart = Json::object();
  const auto keys = ChartKeys();
  for (std::size_t at = 0; at < keys.size() && at < record.ChartValues.size(); ++at) {
    chart[keys[at].key] = page.ToUtf8(record.ChartValues[at]);
  }
  return chart;
}

Json Objects(const Document& document) {
  Json objects = Json::array();
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    Json object = {{"row", row}, {"Kind", KindText(record.Kind)}};
    const FieldToJson toJson(record, *document.Page);
    for (const FieldRow& field : kObjectFields)
      object[std::string(field.name)] = std::visit(toJson, field.member);
    if (record.Kind == ObjectKind::Chart) object["Chart"] = ChartOf(record, *document.Page);
    objects.push_back(std::move(object));
  }
  return objects;
}

}  // namespace

int Dump(const std::string& file, bool geometry) {
  Opened opened = Open(file);
  if (!opened.Outcome) return kRefused;
  Document& document = opened.Outcome->Read;
  if (geometry) DeriveGeometry(document);
  const Json dump = {{"check", opened.Check},
                     {"settings", Settings(document)},
                     {"columns", Columns(document)},
                     {"objects", Objects(document)}};
  std::cout << dump.dump(2) << '\n';
  return kGood;
}

}  // namespace kev::tool
