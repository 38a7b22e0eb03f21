// SPDX-License-Identifier: MIT
#include "surface/insertion.h"

#include <utility>

#include "base/numbers.h"
#include "base/text_numbers.h"
#include "data/next_variable.h"
#include "document/kind_defaults.h"
#include "document/sections.h"
#include "surface/qr_image.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr std::string_view kKedMissing =
    "It was not possible to open Kex/Ked file. It looks like it doesn't exist. Please verify.";

void Place(ObjectRecord& record, const ObjectRecord& bar, const PageWork& work) {
  record.OwnerName = bar.SectionName;
  record.AbsoluteY = ToInt32(work.pointer.LastY / work.ZoomFactor);
  record.Y = Fit32(std::int64_t{record.AbsoluteY} - bar.AbsoluteY - kBarHeight);
  const double x = RoundToEven(work.pointer.LastX / work.ZoomFactor);
  record.XValue = FormatNumber(x);
  if (record.Kind == ObjectKind::Line) record.X2Value = FormatNumber(x + record.Width);
}

void Show(PageWork& work, int row) {
  EndGroup(work);
  work.document.Objects.CurrentObject = row;
  work.services.FullRepaint();
  SelectObject(work, row);
}

void TellKedMissing(InsertionWork& work) {
  work.host.ShowMessage(
      {work.page.services.Text(kTextProgramTitle), std::string(kKedMissing), {}, BoxIcon::Critical});
}

}  // namespace

int SubsectionUnder(const PageWork& work, double y) {
  const ObjectTable& objects = std::as_const(work.document).Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& bar = objects[row];
    if (bar.Kind != ObjectKind::Subsection) continue;
    const double top = static_cast<double>(bar.AbsoluteY) + kBarHeight;
    if (top * work.ZoomFactor <= y && y <= (top + bar.EndsAt) * work.ZoomFactor) return row;
  }
  return 0;
}

int Insert(InsertionWork& work, Insertion what) {
  PageWork& page = work.page;
  page.services.PushUndo();
  const int bar = SubsectionUnder(page, page.pointer.LastY);
  if (bar == 0) {
    page.services.ShowBox(kTextNoSubsectionHere, BoxIcon::Critical);
    return 0;
  }
  const int row = page.document.Objects.TakeFreeRow();
  ObjectRecord& record = page.document.Objects[row];
  FillInserted(record, RowOf(what), work);
  Place(record, page.document.Objects[bar], page);
  // While the tools are waited for, the user may take the object away again.
  if (what == Insertion::Qr && !MakeQrImage(page, row)) return 0;
  Show(page, row);
  if (what == Insertion::Picture) ChoosePicture(work, row);
  if (what == Insertion::NextVariable) PutNextVariable(work, row, false);
  return row;
}

void InsertFromMenu(InsertionWork& work, Insertion what) {
  const ObjectTable& objects = std::as_const(work.page.document).Objects;
  const int current = objects.CurrentObject;
  if (what == Insertion::NextVariable && objects[current].Kind == ObjectKind::Label)
    return PutNextVariable(work, current, true);
  const int row = Insert(work, what);
  if (row != 0 && what == Insertion::Chart) work.page.services.OpenProperties(row);
}

void PutNextVariable(InsertionWork& work, int row, bool withSnapshot) {
  PageWork& page = work.page;
  const int bar = OwnerOf(page.document, row);
  const NextVariable next = FindNextVariable(page.document, bar, work.SampleDataPath);
  if (next.FileMissing) return TellKedMissing(work);
  if (!next.Name) return;
  if (withSnapshot) page.services.PushUndo();
  ObjectRecord& record = page.document.Objects[row];
  record.Content = *next.Name;
  MeasureText(record, page.measurer);
  Show(page, row);
  page.services.BuildRulers();
}

}  // namespace kev
