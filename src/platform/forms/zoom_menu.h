// SPDX-License-Identifier: MIT
// The zoom values as entries of the View menu, in step with the zoom box.
#pragma once

#include <QMenu>

namespace kev {

class ZoomMenu final : public QMenu {
  Q_OBJECT

 public:
  explicit ZoomMenu(const QString& caption, QWidget* parent = nullptr);

  // Marks the entry of the zoom in force; none when it was typed.
  void ShowZoom(const QString& text);

 Q_SIGNALS:
  void ZoomChosen(const QString& text);
};

}  // namespace kev
