// SPDX-License-Identifier: MIT
#include "data/quick_panel.h"

#include <algorithm>

#include "base/text.h"
#include "base/text_numbers.h"
#include "document/sections.h"

namespace kev {
namespace {

constexpr auto kMainSectionEnds = std::to_array<std::string_view>({"DATA]", "FOOTER]", "HEADER]"});

bool IsMainSection(std::string_view name, const CodePage& page) {
  const std::string upper = page.Upper(name);
  return std::any_of(kMainSectionEnds.begin(), kMainSectionEnds.end(),
                     [&](std::string_view end) { return upper.ends_with(end); });
}

// The title of a page without texts; 0 for a kind that the panel has no page for.
int TitleOfShape(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::Box:
      return kTextSheetBoxOrQr;
    case ObjectKind::Line:
      return kTextSheetLine;
    case ObjectKind::AnyLine:
      return kTextSheetAnyLine;
    case ObjectKind::Chart:
      return kTextSheetChart;
    case ObjectKind::Picture:
      return kTextSheetPicture;
    default:
      return 0;
  }
}

std::string_view WithoutBracket(std::string_view name) {
  if (name.ends_with(']')) name.remove_suffix(1);
  return name;
}

void FillLabel(QuickPanel& panel, const Document& document, const std::vector<std::string>* variables) {
  const ObjectRecord& label = document.Objects[panel.Object];
  panel.Page = QuickPage::Label;
  panel.TitleText = kTextQuickLabel;
  panel.Content = label.Content;
  panel.CharSet = label.CharSet;
  panel.VariableFile = variables != nullptr;
  if (variables != nullptr) {
    for (const std::string& name : *variables)
      panel.Fields.push_back({name, panel.Fields.size()});
    return;
  }
  const int row = OwnerOf(document, panel.Object);
  if (row == 0) return;
  const ObjectRecord& bar = document.Objects[row];
  // Only the name of a head without fields ends with the bracket of the head; any other bracket is its own.
  const bool hasFields = bar.SectionTitle.Text().find(':') != std::string::npos;
  panel.RecordName = hasFields ? std::string_view(bar.SectionName) : WithoutBracket(bar.SectionName);
  panel.Fields = FieldsOfBar(bar, *document.Page);
}

}  // namespace

std::vector<QuickField> FieldsOfBar(const ObjectRecord& bar, const CodePage& page) {
  const std::size_t colon = bar.SectionTitle.Text().rfind(':');
  if (IsMainSection(bar.SectionName, page) || colon == std::string::npos) return {};
  std::string_view rest = WithoutBracket(Trim(std::string_view(bar.SectionTitle).substr(colon + 1)));
  std::vector<QuickField> fields;
  for (std::size_t index = 0; !rest.empty(); ++index) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    const std::string_view name = Trim(rest.substr(0, comma));
    if (!name.empty()) fields.push_back({std::string(name), index});
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
  return fields;
}

QuickPanel QuickPanelFor(const Document& document, bool multiSelected,
                         const std::vector<std::string>* variables) {
  QuickPanel panel;
  const ObjectTable& objects = document.Objects;
  if (multiSelected) {
    panel.Page = QuickPage::Group;
    panel.TitleText = kTextMultiSelected;
    panel.Count = objects.SelectionCount;
    return panel;
  }
  const ObjectRecord& record = objects[objects.CurrentObject];
  const int shape = TitleOfShape(record.Kind);
  if (objects.CurrentObject == 0 || (record.Kind != ObjectKind::Label && shape == 0)) return panel;
  panel.Object = objects.CurrentObject;
  panel.AlignToGrid = record.AlignToGrid == 1;
  if (record.Kind == ObjectKind::Label) {
    FillLabel(panel, document, variables);
  } else {
    panel.Page = QuickPage::Shape;
    panel.TitleText = shape;
  }
  return panel;
}

std::string AddedToLabel(std::string_view choice) {
  return choice.empty() ? std::string() : kBlank + std::string(choice);
}

}  // namespace kev
