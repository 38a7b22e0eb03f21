// SPDX-License-Identifier: MIT
#include "platform/forms/panel_place.h"

#include "base/text_numbers.h"
#include "platform/forms/form_props.h"
#include "platform/text_bridge.h"

namespace kev {

PanelPlace::PanelPlace(Designer& designer, PropertyArea& area, QWidget& window)
    : QObject(&window),
      designer_(designer),
      area_(area),
      window_(window),
      panel_(new PropertyPanel(designer)) {
  area_.SetContent(panel_);
}

void PanelPlace::Show(std::int32_t state) {
  if (state == kPanelFloating) return Float();
  if (form_ != nullptr) form_->hide();
  if (state == kPanelClosed) return area_.ShowArea(false);
  Dock();
}

void PanelPlace::Dock() {
  if (panel_->parentWidget() != &area_) area_.SetContent(panel_);
  area_.ShowArea(true);
}

void PanelPlace::Float() {
  area_.ShowArea(false);
  if (form_ == nullptr) {
    const DesignerOptions& options = designer_.Options();
    form_ = new FormPROPS({options.PropLeft, options.PropTop, options.PropWidth, options.PropHeight},
                          ToQString(designer_.Text(kTextMenuProperties)), &window_);
    connect(form_, &FormPROPS::Moved, this,
            [this](const PanelArea& place) { designer_.Sheets().FloatingMoved(place); });
    connect(form_, &FormPROPS::CloseWanted, this, [this] { designer_.Sheets().CloseProperties(); });
  }
  area_.ReleaseContent();
  form_->SetPanel(panel_);
  form_->show();
}

}  // namespace kev
