// SPDX-License-Identifier: MIT
// A text field that selects its whole text whenever it gets the focus.
#pragma once

#include <QFocusEvent>
#include <QLineEdit>
#include <utility>

namespace kev {

class SelectAllEdit final : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    selectAll();
    entered_ = event->reason() == Qt::MouseFocusReason;
  }
  // The click that brings the focus would put the cursor somewhere and select nothing.
  void mousePressEvent(QMouseEvent* event) override {
    QLineEdit::mousePressEvent(event);
    if (std::exchange(entered_, false)) selectAll();
  }

 private:
  bool entered_ = false;
};

}  // namespace kev
