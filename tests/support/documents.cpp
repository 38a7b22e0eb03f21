// SPDX-License-Identifier: MIT
#include "support/documents.h"

#include "document/object_creation.h"

namespace kev::test {

PlacedBar PutSubsection(Document& document, const std::string& name, std::int32_t absoluteY,
                        std::int32_t endsAt) {
  const int bar = document.Objects.TakeFreeRow();
  ObjectRecord& record = document.Objects[bar];
  record.Kind = ObjectKind::Subsection;
  record.SectionOwner = "[DATA]";
  record.SectionTitle = name == "[DATA]" ? name : "[DATA] " + name;
  record.SectionName = SectionNameOf(name, *document.Page);
  record.StartY = kCurrentYValue;
  record.AbsoluteY = absoluteY;
  record.Height = 400;
  record.Width = 100000;
  record.EndsAt = endsAt;
  const int end = document.Objects.TakeFreeRow();
  record.EndRow = static_cast<std::int16_t>(end);
  ObjectRecord& endRecord = document.Objects[end];
  endRecord.Kind = ObjectKind::EndOfSubsection;
  endRecord.OwnerName = record.SectionName;
  endRecord.AbsoluteY = absoluteY + 400 + endsAt;
  endRecord.Y = endsAt;
  endRecord.Height = 80;
  return {bar, end};
}

int PutBox(Document& document, std::int32_t absoluteY, const std::string& xValue) {
  const int row = document.Objects.TakeFreeRow();
  ObjectRecord& record = document.Objects[row];
  record.Kind = ObjectKind::Box;
  record.XValue = xValue;
  record.AbsoluteY = absoluteY;
  return row;
}

}  // namespace kev::test
