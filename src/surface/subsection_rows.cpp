// SPDX-License-Identifier: MIT
// The rows behind the dialog: what bars tell, and what OK makes of them.
#include "surface/subsection_rows.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "document/kind_defaults.h"
#include "document/object_creation.h"
#include "document/sections.h"

namespace kev {
namespace {

// Right below the last band of the section, above the bar that follows; laying out makes room.
std::int32_t PlaceOfNew(const Document& document, BaseSection section) {
  std::int64_t inSection = -1;
  std::int64_t anywhere = -kEndBarHeight;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document.Objects[row];
    if (bar.Kind != ObjectKind::Subsection && bar.Kind != ObjectKind::Section) continue;
    const std::int64_t end = std::int64_t{bar.AbsoluteY} + kBarHeight + std::max(bar.EndsAt, 0);
    anywhere = std::max(anywhere, end);
    if (bar.Kind == ObjectKind::Subsection && SectionOfBar(bar, *document.Page) == section)
      inSection = std::max(inSection, end);
  }
  return Fit32((inSection < 0 ? anywhere : inSection) + kEndBarHeight);
}

int MakeRows(PageWork& work, const SubsectionDialog& dialog) {
  Document& document = work.document;
  AttributeState attributes;
  NoPictures pictures;
  LayoutCursor cursor;
  cursor.SurfaceY = PlaceOfNew(document, dialog.Section);
  CreationContext context{document, attributes, cursor, work.measurer, pictures, 1, {}};
  NewObject object;
  object.kind = ObjectKind::Subsection;
  object.sectionName = RowOf(dialog.Section).title;
  object.title = HeadOf(dialog);
  const int bar = AddObject(context, object);
  // The end row takes the height of the body from what the body is filled with.
  cursor.CursorY = cursor.SubsectionMaxY = kNewBodyHeight;
  NewObject end;
  end.kind = ObjectKind::EndOfSubsection;
  end.extra = std::to_string(bar);
  AddObject(context, end);
  ObjectRecord& record = document.Objects[bar];
  record.StartY = StartOf(dialog);
  record.Content = ContentOfBar(record);
  return bar;
}

// The rows follow the name of their bar. All are found first: the index knows them by the old name.
void Rename(Document& document, int row, const std::string& head) {
  ObjectRecord& bar = document.Objects[row];
  std::vector<int> owned;
  {
    const OwnerIndex owners(document);
    for (int other = 1; other <= document.Objects.LastScanned(); ++other) {
      const ObjectKind kind = document.Objects[other].Kind;
      if (kind != ObjectKind::None && kind != ObjectKind::Section && kind != ObjectKind::Subsection &&
          owners.OwnerOf(other) == row)
        owned.push_back(other);
    }
  }
  bar.SectionTitle = std::string(NthToken(bar.SectionTitle, 1, kBlank)) + " " + head;
  bar.SectionName = SectionNameOf(head, *document.Page);
  for (const int each : owned)
    document.Objects[each].OwnerName = bar.SectionName;
}

bool HeadChanges(const SubsectionDialog& dialog) {
  if (dialog.ShortForm) return false;
  return Trim(dialog.Name) != dialog.OpenedName || dialog.Fields != dialog.OpenedFields;
}

bool StartChanges(const SubsectionDialog& dialog) {
  return dialog.AtCurrentPosition != dialog.OpenedAtCurrentPosition ||
         (!dialog.AtCurrentPosition && dialog.Start != dialog.OpenedStart);
}

void ChangeRows(Document& document, const SubsectionDialog& dialog) {
  if (HeadChanges(dialog)) Rename(document, dialog.Row, HeadOf(dialog));
  ObjectRecord& bar = document.Objects[dialog.Row];
  if (StartChanges(dialog)) bar.StartY = StartOf(dialog);
  bar.Content = ContentOfBar(bar);
}

}  // namespace

BaseSection SectionOfBar(const ObjectRecord& bar, const CodePage& page) {
  const std::string_view title = NthToken(bar.SectionTitle, 1, kBlank);
  for (const BaseSectionRow& section : kBaseSections) {
    if (page.EqualsIgnoringCase(title, section.title)) return section.id;
  }
  return BaseSection::Configuration;
}

std::string_view HeadOfBar(const ObjectRecord& bar) {
  const std::size_t blank = bar.SectionTitle.Text().find(kBlank);
  if (blank == std::string::npos) return {};
  return Trim(std::string_view(bar.SectionTitle).substr(blank));
}

bool IsBaseBar(const ObjectRecord& bar, const CodePage& page) {
  const std::string_view head = HeadOfBar(bar);
  return head.empty() || page.EqualsIgnoringCase(head, kConfigurationSection);
}

bool AcceptSubsection(PageWork& work, SubsectionDialog& dialog) {
  if (const int refusal = RefusalOf(dialog, work.document)) {
    work.services.ShowBox(refusal, BoxIcon::Critical);
    return false;
  }
  if (dialog.Row != 0 && !HeadChanges(dialog) && !StartChanges(dialog)) return true;
  work.services.PushUndo();
  int made = 0;
  if (dialog.Row == 0)
    made = MakeRows(work, dialog);
  else
    ChangeRows(work.document, dialog);
  work.services.BandsChanged();
  dialog.NewRow = made;
  return true;
}

}  // namespace kev
