// SPDX-License-Identifier: MIT
// The text of a label, typed where the label stands.
#include <utility>

#include "base/text.h"
#include "document/object_creation.h"
#include "document/position.h"
#include "surface/page_keys.h"
#include "surface/paint_kinds.h"

namespace kev {
namespace {

// Room behind the text, in twips.
constexpr double kRoomAtFirst = 100;
constexpr double kRoomBehindTyped = 200;

double WidthOf(const PageWork& work, const ObjectRecord& record, const std::string& text) {
  return work.measurer.Measure(FontOf(record), text).Width;
}

FieldScreenLook LookOf(const PageWork& work, const TextEdit& edit, const CanvasArea& place) {
  const ObjectRecord& record = work.document.Objects[edit.Row];
  FontSpec font = FontOf(record);
  font.Size *= work.ZoomFactor;
  return {place, font, edit.Text, ToRgb(TextColourOf(record)), AnchorOf(record)};
}

CanvasArea FirstPlace(const PageWork& work, const TextEdit& edit) {
  const ObjectRecord& record = work.document.Objects[edit.Row];
  CanvasArea place = work.pointer.Overlay[1];
  place.Right = place.Left + (WidthOf(work, record, edit.Text + "W") + kRoomAtFirst) * work.ZoomFactor;
  return place;
}

// The text keeps the point that the label's X names.
CanvasArea PlaceOfTyped(const PageWork& work, const TextEdit& edit) {
  const Document& document = work.document;
  const ObjectRecord& record = document.Objects[edit.Row];
  const double width = WidthOf(work, record, edit.Text);
  double left = PositionOrZero(record.XValue, document.Columns, *document.Page);
  if (AnchorOf(record) == 'R') left -= width;
  if (AnchorOf(record) == 'C') left -= width / 2;
  CanvasArea place = work.pointer.Overlay[1];
  place.Left = left * work.ZoomFactor;
  place.Right = place.Left + (width + kRoomBehindTyped) * work.ZoomFactor;
  return place;
}

void StoreText(PageWork& work, int row, std::string text) {
  work.services.PushUndo();
  ObjectRecord& record = work.document.Objects[row];
  record.Content = std::move(text);
  MeasureText(record, work.measurer);
  work.services.FullRepaint();
}

// Gives what was typed and forgets the edit, so that nothing that is told of it can end it twice.
TextEdit Close(PageWork& work, TextEdit& edit) {
  TextEdit closed = std::exchange(edit, TextEdit());
  work.services.HideFieldScreen();
  work.services.CommandsChanged();
  return closed;
}

}  // namespace

void BeginTextEdit(PageWork& work, TextEdit& edit) {
  if (edit.Active()) return;
  const int row = work.document.Objects.CurrentObject;
  const ObjectRecord& record = work.document.Objects[row];
  if (work.pointer.MultiSelected || record.Kind != ObjectKind::Label) return;
  edit = {row, record.Content};
  work.services.ShowFieldScreen(LookOf(work, edit, FirstPlace(work, edit)));
  work.services.CommandsChanged();
}

void ChangeText(PageWork& work, TextEdit& edit, std::string text) {
  if (!edit.Active()) return;
  edit.Text = std::move(text);
  work.services.ShowFieldScreen(LookOf(work, edit, PlaceOfTyped(work, edit)));
}

void CommitTextEdit(PageWork& work, TextEdit& edit) {
  if (!edit.Active()) return;
  TextEdit closed = Close(work, edit);
  const ObjectRecord& record = work.document.Objects[closed.Row];
  if (record.Kind != ObjectKind::Label) return;
  if (closed.Text == record.Content || Trim(closed.Text).empty()) return;
  StoreText(work, closed.Row, std::move(closed.Text));
}

void CancelTextEdit(PageWork& work, TextEdit& edit) {
  if (edit.Active()) Close(work, edit);
}

}  // namespace kev
