// SPDX-License-Identifier: MIT
// The entries `archivo1` to `archivo8` of the file menu.
#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

class QAction;
class QMenu;

namespace kev {

class RecentMenu final : public QObject {
  Q_OBJECT

 public:
  // The entries stand in the menu, which owns this, in a group of their own in front of the last one. `open`
  // gets the number of the one chosen, from 0.
  RecentMenu(QMenu& menu, std::function<void(std::size_t)> open);

  // Captions as native bytes; entries behind the last are hidden.
  void Show(const std::vector<std::string>& captions);

 private:
  QAction* separator_;
  std::vector<QAction*> entries_;
};

}  // namespace kev
