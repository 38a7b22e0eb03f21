// SPDX-License-Identifier: MIT
#include "surface/chart_dialog.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "document/kind_defaults.h"
#include "document/position.h"
#include "document/sections.h"
#include "document/typed_position.h"

namespace kev {
namespace {

bool Changed(const ChartWizard& wizard, std::string_view control) {
  return IsChanged(wizard, WizardTextOf(control));
}

int RefusalOfX(const ChartWizard& wizard, const Document& document) {
  const std::string_view x = Trim(wizard.Now.combo_graphX);
  if (!Changed(wizard, "combo_graphX")) return 0;
  if (!MayBePosition(x, document)) return kTextPositionRefused;
  return PositionOrZero(StoredPosition(x), document.Columns, *document.Page) < 0 ? kTextNegativeValue : 0;
}

bool TooSmall(const ChartWizard& wizard, std::string_view control) {
  return Changed(wizard, control) && Int32Of(WizardTextOf(control).Text.In(wizard.Now)) < 1;
}

int RefusalOfY(const ChartWizard& wizard, const Document& document) {
  if (!Changed(wizard, "combo_graphY")) return 0;
  const std::int32_t y = Int32Of(wizard.Now.combo_graphY);
  const int owner = OwnerOf(document, wizard.Row);
  const bool below = owner != 0 && y > document.Objects[owner].EndsAt;
  return y < 0 || below ? kTextPositionOutsideSection : 0;
}

void StorePlace(ObjectRecord& record, const ChartWizard& wizard, const Document& document) {
  if (Changed(wizard, "combo_graphX")) record.XValue = StoredPosition(wizard.Now.combo_graphX);
  if (!Changed(wizard, "combo_graphY")) return;
  record.Y = Int32Of(wizard.Now.combo_graphY);
  const int owner = OwnerOf(document, wizard.Row);
  const std::int64_t body = owner == 0 ? 0 : std::int64_t{document.Objects[owner].AbsoluteY} + kBarHeight;
  record.AbsoluteY = Fit32(body + record.Y);
}

}  // namespace

int RefusalOf(const ChartWizard& wizard, const Document& document) {
  if (const int refused = RefusalOfX(wizard, document)) return refused;
  if (TooSmall(wizard, "graph_width") || TooSmall(wizard, "graph_height")) return kTextNegativeValue;
  return RefusalOfY(wizard, document);
}

bool ApplyChartWizard(PageWork& work, const ChartWizard& wizard,
                      const std::function<void()>& saveChartImage) {
  if (const int refused = RefusalOf(wizard, work.document)) {
    work.services.ShowBox(refused, BoxIcon::Critical);
    return false;
  }
  work.services.PushUndo();
  ObjectRecord& record = work.document.Objects[wizard.Row];
  record.ChartValues = StoredValues(wizard);
  if (Changed(wizard, "graph_width")) record.Width = Int32Of(wizard.Now.graph_width);
  if (Changed(wizard, "graph_height")) record.Height = Int32Of(wizard.Now.graph_height);
  StorePlace(record, wizard, work.document);
  record.PictureFile = ChartImageName(work.images, wizard.Row);
  saveChartImage();
  work.services.FullRepaint();
  return true;
}

}  // namespace kev
