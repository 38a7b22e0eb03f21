// SPDX-License-Identifier: MIT
#include "app/quick_properties.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "app/designer.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "data/next_variable.h"
#include "document/object_creation.h"
#include "document/position.h"
#include "document/sections.h"
#include "surface/object_drag_end.h"

namespace kev {
namespace {

// Left below an object for which a subsection had to grow; twips.
constexpr std::int64_t kRoomBelow = 400;

// Whether the body had to grow.
bool MakeRoom(Document& document, int row, int bar) {
  if (bar == 0) return false;
  const ObjectRecord& record = document.Objects[row];
  const std::int64_t bottom = std::int64_t{record.Y} + std::max(record.Height, 0);
  ObjectRecord& owner = document.Objects[bar];
  if (bottom <= owner.EndsAt) return false;
  owner.EndsAt = Fit32(bottom + kRoomBelow);
  return true;
}

}  // namespace

void QuickProperties::UpdateQuickPanel() {
  panel_ = {};
  if (designer_.Options().ShowQuickProps != 0) {
    const std::string sample = designer_.SampleDataPath();
    const bool variables = SampleFormOf(sample) == SampleForm::Variables;
    panel_ = QuickPanelFor(designer_.OpenDocument(), designer_.Surface().Pointer().MultiSelected,
                           variables ? &VariablesOf(sample) : nullptr);
    panel_.SampleFile = sample;
  }
  std::string title = panel_.TitleText != 0 ? designer_.Text(panel_.TitleText) : std::string();
  if (panel_.Page == QuickPage::Group) title += " " + std::to_string(panel_.Count);
  if (DesignerView* view = designer_.View()) view->ShowQuickPanel(panel_, title);
}

void QuickProperties::ShowQuickPanel() {
  designer_.Options().ShowQuickProps = 1;
  UpdateQuickPanel();
}

void QuickProperties::CloseQuickProps() {
  designer_.Options().ShowQuickProps = 0;
  UpdateQuickPanel();
}

void QuickProperties::Moved(std::int32_t left, std::int32_t top) {
  designer_.Options().QuickPropsX = left;
  designer_.Options().QuickPropsY = top;
}

// Each click asks for them, and the file rarely changes.
const std::vector<std::string>& QuickProperties::VariablesOf(const std::string& path) {
  std::error_code ignored;
  KnownVariables now{
      path, std::filesystem::last_write_time(path, ignored), std::filesystem::file_size(path, ignored), {}};
  if (now.Path != known_.Path || now.Written != known_.Written || now.Size != known_.Size) {
    now.Names = VariableNames(path);
    known_ = std::move(now);
  }
  return known_.Names;
}

SampleValues QuickProperties::ValuesOf(std::size_t item) const {
  if (item >= panel_.Fields.size()) return {};
  const QuickField& field = panel_.Fields[item];
  if (panel_.VariableFile) return VariableValues(panel_.SampleFile, field.Name);
  return FieldValues(panel_.SampleFile, panel_.RecordName, field.Index, *designer_.OpenDocument().Page);
}

std::string QuickProperties::RecordsShown(const SampleValues& values) const {
  return designer_.Text(kTextQuickRecordsShown) + " " + std::to_string(values.Records);
}

bool QuickProperties::IsCurrent() const {
  return panel_.Object != 0 && panel_.Object == designer_.OpenDocument().Objects.CurrentObject;
}

void QuickProperties::StoreText(std::string text) {
  designer_.Surface().CommitOpenEdits();
  if (!IsCurrent() || panel_.Page != QuickPage::Label || text == panel_.Content) return;
  if (Trim(text).empty()) return designer_.ShowText(kTextEmptyTextRefused, BoxIcon::Critical);
  designer_.Guarded([&] {
    DesignSurface& surface = designer_.Surface();
    surface.PushUndo();
    ObjectRecord& label = designer_.OpenDocument().Objects[panel_.Object];
    label.Content = std::move(text);
    MeasureText(label, designer_.Measurer());
    surface.FullRepaint();
  });
}

void QuickProperties::SetAlignToGrid(bool on) {
  designer_.Surface().CommitOpenEdits();
  if (!IsCurrent() || on == panel_.AlignToGrid) return;
  designer_.Guarded([&] {
    DesignSurface& surface = designer_.Surface();
    surface.PushUndo();
    const int row = panel_.Object;
    designer_.OpenDocument().Objects[row].AlignToGrid = on ? 1 : 0;
    if (on) return SnapToGrid(row);
    surface.FullRepaint();
  });
}

// X becomes a plain number, so that a column is given up.
void QuickProperties::SnapToGrid(int row) {
  Document& document = designer_.OpenDocument();
  ObjectRecord& record = document.Objects[row];
  const int bar = OwnerOf(document, row);
  record.XValue = WholePosition(SnappedX(document, row));
  CarryLineEnd(document, record);
  PlaceInBody(document, row, bar, ToInt32(SnapToStep(record.Y, GridStepOf(document))));
  if (MakeRoom(document, row, bar)) return designer_.Surface().BandsChanged();
  designer_.Surface().FullRepaint();
}

}  // namespace kev
