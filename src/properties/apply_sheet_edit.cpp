// SPDX-License-Identifier: MIT
#include "properties/apply_sheet_edit.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "document/kind_defaults.h"
#include "document/sections.h"
#include "properties/sheet_table.h"

namespace kev {
namespace {

// The texts of an edit by the rows of its sheet; null where a row shows what the sheet wrote into it.
class ChangedTexts {
 public:
  ChangedTexts(const Sheet& sheet, std::span<const RowEdit> edits) : texts_(sheet.Rows.size(), nullptr) {
    for (const RowEdit& edit : edits) {
      const auto row = static_cast<std::size_t>(edit.Row) - 1;
      if (edit.Row < 1 || row >= texts_.size()) continue;
      texts_[row] = edit.Text == sheet.Rows[row].Value ? nullptr : &edit.Text;
    }
  }

  bool Any() const {
    return std::any_of(texts_.begin(), texts_.end(), [](const std::string* text) { return text != nullptr; });
  }
  // Counted from 0. Null also for a row that the sheet did not have.
  const std::string* Of(std::size_t row) const { return row < texts_.size() ? texts_[row] : nullptr; }

 private:
  std::vector<const std::string*> texts_;
};

Sheet SheetNow(const SheetWork& work, const Sheet& before) {
  return SheetOfSelection(work.page.document, work.page.pointer.MultiSelected, work.place, before);
}

SheetSubject SubjectNow(const SheetWork& work) {
  if (work.page.document.Objects.CurrentObject != 0) return SheetSubject::Object;
  return work.page.pointer.MultiSelected ? SheetSubject::Group : SheetSubject::Document;
}

bool StandsForSelection(const SheetWork& work, const Sheet& sheet) {
  const ObjectTable& objects = work.page.document.Objects;
  return sheet.Enabled && sheet.Place == work.place && sheet.Subject == SubjectNow(work) &&
         sheet.Object == objects.CurrentObject && sheet.Kind == objects[objects.CurrentObject].Kind;
}

void Refuse(const SheetWork& work, const Refusal& refusal, std::size_t row, SheetOutcome& outcome) {
  ShowRefusal(work, refusal);
  if (refusal.SelectsRow) outcome.SelectRow = static_cast<int>(row) + 1;
}

// --- An object ---

void StoreRow(const RowTarget& target, const ObjectRow& row, std::size_t number, const std::string& text,
              SheetOutcome& outcome) {
  if (row.store == nullptr) return;
  if (const Verdict refused = row.check == nullptr ? std::nullopt : row.check(target, text))
    return Refuse(target.work, *refused, number, outcome);
  row.store(target, text);
}

// Objects are assigned to bodies by where they lie on the surface, so that follows first.
void MoveOnSurface(const RowTarget& target) {
  const Document& document = target.TheDocument();
  const int owner = OwnerOf(document, target.object);
  if (owner == 0) return;
  ObjectRecord& record = target.Record();
  record.AbsoluteY = Fit32(std::int64_t{document.Objects[owner].AbsoluteY} + kBarHeight + record.Y);
}

bool ShowsOtherCode(const ObjectRecord& now, const ObjectRecord& before) {
  return now.Kind == ObjectKind::Qr && (now.Content != before.Content || now.Height != before.Height ||
                                        now.XValue != before.XValue || now.Y != before.Y);
}

void ApplyToObject(SheetWork& work, const ChangedTexts& texts, SheetOutcome& outcome) {
  const RowTarget target{work, work.page.document.Objects.CurrentObject};
  const ObjectSheet* table = SheetOfObject(work.page.document, target.object);
  if (table == nullptr) return;
  const ObjectRecord before = target.Record();
  std::size_t number = 0;
  for (const ObjectRow& row : table->rows) {
    if (!ShowsAt(row, work.place)) continue;
    if (const std::string* text = texts.Of(number)) StoreRow(target, row, number, *text, outcome);
    ++number;
  }
  if (table->finish != nullptr) table->finish(target);
  // The floating form has never made the image anew.
  outcome.QrImageIsOld = work.place == SheetPlace::Docked && ShowsOtherCode(target.Record(), before);
  if (table->reach == Reach::Bands) return work.page.services.BandsChanged();
  if (!IsBand(target.Record().Kind)) MoveOnSurface(target);
  work.page.services.FullRepaint();
}

// --- The document ---

void StoreSetting(const SheetWork& work, const DocumentRow& row, const std::string& text) {
  if (row.store != nullptr) return row.store(work, text);
  Document& document = work.page.document;
  document.Settings[row.setting] = NormaliseSetting(row.setting, Trim(text), *document.Page);
}

void ApplyToDocument(SheetWork& work, const ChangedTexts& texts, SheetOutcome& outcome) {
  bool redraw = false;
  bool blocksChanged = false;
  std::size_t number = 0;
  for (const DocumentRow& row : DocumentRows()) {
    if (const std::string* text = texts.Of(number)) {
      redraw |= row.redraws;
      blocksChanged |= row.setting == Setting::Open || row.setting == Setting::Close;
      const Verdict refused = row.check == nullptr ? std::nullopt : row.check(work, *text);
      if (refused)
        Refuse(work, *refused, number, outcome);
      else
        StoreSetting(work, row, *text);
    }
    if (row.setting == Setting::Close && blocksChanged) SeparateBlockCharacters(work);
    ++number;
  }
  if (!redraw) return;
  work.page.services.FullRepaint();
  work.page.services.BuildRulers();
}

}  // namespace

void ShowRefusal(const SheetWork& work, const Refusal& refusal) {
  PageServices& services = work.page.services;
  if (refusal.Words.empty() && refusal.Detail.empty()) {
    if (refusal.Text != 0) services.ShowBox(refusal.Text, refusal.Icon);
    return;
  }
  const std::string start = refusal.Text == 0 ? std::string() : services.Text(refusal.Text);
  work.host.ShowMessage({services.Text(kTextProgramTitle), start + refusal.Words, refusal.Detail,
                         refusal.Icon, BoxButtons::Ok});
}

SheetOutcome ApplySheetEdit(SheetWork& work, const Sheet& sheet, std::span<const RowEdit> edits) {
  SheetOutcome outcome;
  const ChangedTexts texts(sheet, edits);
  if (StandsForSelection(work, sheet) && texts.Any()) {
    work.page.services.PushUndo();
    if (sheet.Object == 0)
      ApplyToDocument(work, texts, outcome);
    else
      ApplyToObject(work, texts, outcome);
  }
  outcome.Shown = SheetNow(work, sheet);
  return outcome;
}

SheetAction ActionOf(const Sheet& sheet, int row) {
  if (!sheet.Enabled || row < 1 || row > static_cast<int>(sheet.Rows.size())) return SheetAction::None;
  return sheet.Rows[static_cast<std::size_t>(row) - 1].Action;
}

}  // namespace kev
