// SPDX-License-Identifier: MIT
// Lines along the edges of a widget while it has the focus and got it by the keyboard. They are widgets of
// their own, so that what scrolls below does not take them along.
#pragma once

#include <QObject>
#include <array>

class QWidget;

namespace kev {

class FocusEdges final : public QObject {
 public:
  // Becomes a child of the widget.
  explicit FocusEdges(QWidget& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Show(bool shown);
  void Fit();

  QWidget& widget_;
  std::array<QWidget*, 4> edges_{};
};

}  // namespace kev
