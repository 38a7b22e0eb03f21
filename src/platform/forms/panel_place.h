// SPDX-License-Identifier: MIT
// Where the property panel stands: beside the page, on a form of its own, or nowhere.
#pragma once

#include <QObject>
#include <QPointer>

#include "platform/forms/property_area.h"
#include "platform/forms/property_panel.h"

namespace kev {

class FormPROPS;

class PanelPlace final : public QObject {
  Q_OBJECT

 public:
  // All outlive it; the form is a window of `window`.
  PanelPlace(Designer& designer, PropertyArea& area, QWidget& window);

  PropertyPanel& Panel() { return *panel_; }
  // `PROPFIX`.
  void Show(std::int32_t state);

 private:
  void Dock();
  void Float();

  Designer& designer_;
  PropertyArea& area_;
  QWidget& window_;
  PropertyPanel* panel_;
  FormPROPS* form_ = nullptr;
};

}  // namespace kev
