// SPDX-License-Identifier: MIT
// Draws a path in a list as a label of two lines: the file's name, and its folder below.
#pragma once

#include <QStyledItemDelegate>

namespace kev {

class RecentDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace kev
