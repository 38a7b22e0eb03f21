// SPDX-License-Identifier: MIT
// What the dialog shows and what its controls do.
#include "surface/subsection_dialog.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "document/sections.h"
#include "surface/subsection_rows.h"

namespace kev {
namespace {

constexpr std::string_view kReservedInNames = ":[],";
constexpr std::string_view kReservedInFields = ":[]";

bool Holds(const std::vector<std::string>& list, const std::string& text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

bool HoldsAny(std::string_view text, std::string_view characters) {
  return text.find_first_of(characters) != std::string_view::npos;
}

// "ITEMS" of "[ITEMS:@code]" and of "[ITEMS]".
std::string NameOfHead(std::string_view head) {
  const std::size_t colon = head.rfind(':');
  if (colon != std::string_view::npos) head = head.substr(0, colon);
  if (head.starts_with('[')) head.remove_prefix(1);
  if (head.ends_with(']')) head.remove_suffix(1);
  return std::string(Trim(head));
}

std::vector<int> BarsFromTopToBottom(const Document& document) {
  std::vector<int> bars;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    if (document.Objects[row].Kind == ObjectKind::Subsection) bars.push_back(row);
  }
  std::stable_sort(bars.begin(), bars.end(), [&](int a, int b) {
    return document.Objects[a].AbsoluteY < document.Objects[b].AbsoluteY;
  });
  return bars;
}

// The base section itself stands first, whether or not the document has its bar.
void AppendSection(std::vector<SubsectionEntry>& entries, const Document& document,
                   const BaseSectionRow& section, const std::vector<int>& bars) {
  using Type = SubsectionEntry::Type;
  const std::size_t base = entries.size();
  entries.push_back({Type::Base, section.id, 0, std::string(section.caption)});
  for (const int row : bars) {
    const ObjectRecord& bar = document.Objects[row];
    if (SectionOfBar(bar, *document.Page) != section.id) continue;
    if (IsBaseBar(bar, *document.Page) && entries[base].Row == 0) {
      entries[base].Row = row;
      continue;
    }
    const std::string_view head = HeadOfBar(bar);
    entries.push_back({Type::Existing, section.id, row, std::string(head.empty() ? section.title : head)});
  }
}

SubsectionDialog Opened(const Document& document, const std::vector<RecordType>& types,
                        std::string_view fieldWord) {
  SubsectionDialog dialog;
  const std::vector<int> bars = BarsFromTopToBottom(document);
  for (const BaseSectionRow& section : kBaseSections)
    AppendSection(dialog.Existing, document, section, bars);
  for (const RecordType& type : types)
    dialog.RecordTypes.push_back({type.Name, FieldNames(type.Values, fieldWord), false});
  return dialog;
}

// A number with nothing but blanks around and inside it.
bool IsNumber(std::string_view text) {
  std::string digits;
  std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](char c) { return c != kBlank; });
  const std::size_t sign = digits.starts_with('+') || digits.starts_with('-') ? 1 : 0;
  if (digits.find_first_not_of("0123456789.eE+-") != std::string::npos || digits.size() == sign) return false;
  double value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stopped, error] = std::from_chars(digits.data() + sign, end, value);
  return stopped == end && error == std::errc() && digits[sign] != '-';
}

std::string ChosenName(const SubsectionDialog& dialog) {
  const std::string_view name = Trim(dialog.Name);
  return std::string(name.empty() && dialog.Row == 0 ? RowOf(dialog.Section).emptyName : name);
}

// The closing bracket that a head line without a list leaves in the name makes no other name of it.
bool IsUsed(const Document& document, const std::string& name, int except) {
  const std::string upper = document.Page->Upper(name);
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document.Objects[row];
    if (bar.Kind != ObjectKind::Subsection || row == except) continue;
    std::string_view used = bar.SectionName;
    if (used.ends_with(']')) used.remove_suffix(1);
    if (Trim(used) == upper) return true;
  }
  return false;
}

int NameRefusal(const SubsectionDialog& dialog, const Document& document) {
  const std::string name = ChosenName(dialog);
  if (HoldsAny(name, kReservedInNames)) return kTextSubsectionNameRefused;
  if (name.empty()) return kTextSubsectionNameMissing;
  return IsUsed(document, name, dialog.Row) ? kTextSubsectionNameUsed : 0;
}

int FieldsRefusal(const SubsectionDialog& dialog) {
  if (dialog.Fields.size() > kMostFields) return kTextSubsectionTooManyFields;
  const bool reserved = std::any_of(dialog.Fields.begin(), dialog.Fields.end(), [](const std::string& field) {
    return HoldsAny(field, kReservedInFields);
  });
  return reserved ? kTextSubsectionFieldRefused : 0;
}

}  // namespace

SubsectionDialog OpenNewSubsection(const Document& document, const std::vector<RecordType>& types,
                                   std::string_view fieldWord, BaseSection section) {
  SubsectionDialog dialog = Opened(document, types, fieldWord);
  ChooseSection(dialog, section);
  return dialog;
}

bool CanOpenSubsection(const Document& document, int row) {
  const ObjectRecord& bar = document.Objects[row];
  return bar.Kind == ObjectKind::Subsection &&
         SectionOfBar(bar, *document.Page) != BaseSection::Configuration;
}

SubsectionDialog OpenSubsection(const Document& document, int row, const std::vector<RecordType>& types,
                                std::string_view fieldWord) {
  const ObjectRecord& bar = document.Objects[row];
  SubsectionDialog dialog = Opened(document, types, fieldWord);
  dialog.Row = row;
  dialog.Section = SectionOfBar(bar, *document.Page);
  dialog.ShortForm = IsBaseBar(bar, *document.Page);
  dialog.Name = dialog.OpenedName = NameOfHead(HeadOfBar(bar));
  dialog.Fields = dialog.OpenedFields = FieldsOfHead(HeadOfBar(bar));
  for (RecordTypeChoice& type : dialog.RecordTypes)
    type.Ticked = document.Page->EqualsIgnoringCase(type.Name, dialog.Name);
  dialog.AtCurrentPosition = document.Page->EqualsIgnoringCase(Trim(bar.StartY), kCurrentYValue);
  if (!dialog.AtCurrentPosition) dialog.Start = Trim(bar.StartY);
  dialog.OpenedAtCurrentPosition = dialog.AtCurrentPosition;
  dialog.OpenedStart = dialog.Start;
  return dialog;
}

BaseSection SectionOfRow(const Document& document, int row) {
  const ObjectKind kind = document.Objects[row].Kind;
  const int bar = kind == ObjectKind::Subsection ? row : OwnerOf(document, row);
  if (row == 0 || bar == 0) return BaseSection::Data;
  return SectionOfBar(document.Objects[bar], *document.Page);
}

bool ChooseSection(SubsectionDialog& dialog, BaseSection section) {
  if (dialog.Row != 0 || section == BaseSection::Configuration) return false;
  dialog.Section = section;
  return true;
}

void TickRecordType(SubsectionDialog& dialog, std::size_t type, bool ticked) {
  RecordTypeChoice& choice = dialog.RecordTypes.at(type);
  choice.Ticked = ticked;
  if (ticked) {
    for (const std::string& field : choice.Fields) {
      if (!Holds(dialog.Fields, field)) dialog.Fields.push_back(field);
    }
    if (Trim(dialog.Name).empty()) dialog.Name = choice.Name;
    return;
  }
  std::erase_if(dialog.Fields, [&](const std::string& field) {
    return Holds(choice.Fields, field) && std::none_of(dialog.RecordTypes.begin(), dialog.RecordTypes.end(),
                                                       [&](const RecordTypeChoice& other) {
                                                         return other.Ticked && Holds(other.Fields, field);
                                                       });
  });
}

void TypeFields(SubsectionDialog& dialog, std::string_view text) {
  std::string list(text);
  ReplaceAll(list, '\r', ',');
  ReplaceAll(list, '\n', ',');
  dialog.Fields.clear();
  for (std::size_t start = 0; start <= list.size();) {
    const std::size_t end = std::min(list.find(',', start), list.size());
    const std::string_view field = Trim(std::string_view(list).substr(start, end - start));
    if (!field.empty()) dialog.Fields.emplace_back(field);
    start = end + 1;
  }
}

std::vector<SubsectionEntry> ListedEntries(const SubsectionDialog& dialog) {
  std::vector<SubsectionEntry> entries = dialog.Existing;
  if (dialog.Row != 0) return entries;
  const auto behind = std::find_if(entries.rbegin(), entries.rend(), [&](const SubsectionEntry& entry) {
    return entry.Section == dialog.Section;
  });
  entries.insert(behind.base(), {SubsectionEntry::Type::New, dialog.Section, 0, {}});
  return entries;
}

std::string HeadOf(const SubsectionDialog& dialog) {
  std::string head = "[" + ChosenName(dialog) + ":";
  for (const std::string& field : dialog.Fields) {
    if (!head.ends_with(':')) head += ',';
    head += field;
  }
  return head + "]";
}

std::string StartOf(const SubsectionDialog& dialog) {
  if (dialog.AtCurrentPosition || !IsNumber(dialog.Start)) return std::string(kCurrentYValue);
  const std::int32_t twips = Int32Of(dialog.Start);
  return std::to_string(twips == 0 ? 1 : twips);
}

int RefusalOf(const SubsectionDialog& dialog, const Document& document) {
  if (dialog.ShortForm) return 0;
  const bool nameStays = dialog.Row != 0 && Trim(dialog.Name) == dialog.OpenedName;
  if (const int refusal = nameStays ? 0 : NameRefusal(dialog, document)) return refusal;
  return dialog.Row != 0 && dialog.Fields == dialog.OpenedFields ? 0 : FieldsRefusal(dialog);
}

}  // namespace kev
