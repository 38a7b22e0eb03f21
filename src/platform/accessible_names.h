// SPDX-License-Identifier: MIT
// What assistive technology is told of the parts that controls are made of. Forms name their controls; the
// list of a combo box, the scroll bars of a list or the button that opens the rest of a tool bar come from the
// window system and get the name of what they belong to.
#pragma once

#include <QObject>

class QApplication;
class QWidget;

namespace kev {

// Names a part after its owner. A widget that has a name, or needs none, is left alone.
void NamePart(QWidget& widget);

// Names the parts of each window before it is shown, and of what is made later. Also tells combo boxes by
// their names instead of their values, and plain frames as what only holds others.
class AccessibleNames final : public QObject {
 public:
  // Becomes a child of the application.
  explicit AccessibleNames(QApplication& application);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kev
