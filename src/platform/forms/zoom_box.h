// SPDX-License-Identifier: MIT
// The box `combozoom`: the values on offer and any typed one.
#pragma once

#include <QComboBox>

namespace kev {

class ZoomBox final : public QComboBox {
  Q_OBJECT

 public:
  explicit ZoomBox(QWidget* parent = nullptr);

  // What stands in the box while nobody types: the zoom in force.
  void ShowZoom(const QString& text);

 Q_SIGNALS:
  // A value was chosen from the list, or a typed one was accepted by Enter or by leaving the box.
  void ZoomChosen(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  // The wheel over the box belongs to nobody: it would change the zoom by accident.
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Offer();

  QString shown_;
};

}  // namespace kev
