// SPDX-License-Identifier: MIT
// The property panel off the page: a small window that stays on top.
#pragma once

#include <QWidget>

#include "app/options.h"

namespace kev {

class PropertyPanel;

class FormPROPS final : public QWidget {
  Q_OBJECT

 public:
  // Where it stood in the last run, twips, moved into sight.
  FormPROPS(const PanelArea& area, const QString& caption, QWidget* parent);

  // Takes the panel in.
  void SetPanel(PropertyPanel* panel);

 Q_SIGNALS:
  void Moved(const kev::PanelArea& area);
  void CloseWanted();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void TellPlace();

  QPoint grip_;
};

}  // namespace kev
