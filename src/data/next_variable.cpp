// SPDX-License-Identifier: MIT
#include "data/next_variable.h"

#include <algorithm>

#include "base/text.h"
#include "data/sample_records.h"
#include "data/sample_values.h"

namespace kev {
namespace {

bool IsShown(const Document& document, std::string_view ownerName, std::string_view name) {
  const ObjectTable& objects = document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& record = objects[row];
    if (record.Kind == ObjectKind::Label && record.OwnerName == ownerName &&
        document.Page->ContainsIgnoringCase(record.Content, name))
      return true;
  }
  return false;
}

}  // namespace

SampleForm SampleFormOf(std::string_view path) {
  const std::string upper = CodePage::Default().Upper(path);
  if (upper.ends_with(".KEX") || upper.ends_with(".KX")) return SampleForm::Records;
  if (upper.ends_with(".KED") || upper.ends_with(".KD")) return SampleForm::Variables;
  return SampleForm::None;
}

std::optional<std::string> FirstUnused(const Document& document, std::string_view ownerName,
                                       const std::vector<std::string>& names) {
  const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
    return !IsShown(document, ownerName, name);
  });
  return found == names.end() ? std::nullopt : std::optional(*found);
}

NextVariable FindNextVariable(const Document& document, int ownerRow, const std::string& samplePath) {
  const ObjectRecord& bar = document.Objects[ownerRow];
  switch (SampleFormOf(samplePath)) {
    case SampleForm::None:
      return {};
    case SampleForm::Records:
      return {FirstUnused(document, bar.SectionName, FieldsOfHead(bar.SectionTitle))};
    case SampleForm::Variables:
      break;
  }
  NextVariable next;
  next.FileMissing = !ForEachSampleLine(samplePath, [&](std::string_view line) {
    if (!line.starts_with('@')) return true;
    const std::string_view name = Trim(NthToken(line, 1, '='));
    if (!IsShown(document, bar.SectionName, name)) next.Name = name;
    return !next.Name.has_value();
  });
  return next;
}

}  // namespace kev
