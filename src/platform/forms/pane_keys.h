// SPDX-License-Identifier: MIT
// F6 and Shift+F6 lead from one part of the window to the next: the page, the panels, the tool bars.
#pragma once

#include <QList>
#include <QObject>
#include <functional>

class QWidget;

namespace kev {

class PaneKeys final : public QObject {
 public:
  // The parts in their order, asked for anew with each press; those that are hidden are passed over.
  using Panes = std::function<QList<QWidget*>()>;
  PaneKeys(QWidget& window, Panes panes);

  void Go(int step);

 private:
  Panes panes_;
};

}  // namespace kev
