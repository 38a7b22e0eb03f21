// SPDX-License-Identifier: MIT
#include "platform/forms/recent_delegate.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>

namespace kev {
namespace {

constexpr int kSpace = 8;

QFont NameFont(const QStyleOptionViewItem& option) {
  QFont font = option.font;
  font.setWeight(QFont::DemiBold);
  return font;
}

}  // namespace

void RecentDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyleOptionViewItem own(option);
  initStyleOption(&own, index);
  const QString path = own.text;
  own.text.clear();
  const QWidget* widget = option.widget;
  (widget != nullptr ? widget->style() : QApplication::style())
      ->drawControl(QStyle::CE_ItemViewItem, &own, painter, widget);
  const bool isPath = index.flags().testFlag(Qt::ItemIsEnabled);
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const QPalette& palette = option.palette;
  const QColor faint = palette.color(selected ? QPalette::HighlightedText : QPalette::PlaceholderText);
  const QRect area = option.rect.adjusted(kSpace, kSpace, -kSpace, -kSpace);
  painter->save();
  if (!isPath) {
    painter->setPen(faint);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter, path);
  } else {
    const QFileInfo file(path);
    const QFontMetrics metrics(NameFont(option));
    painter->setFont(NameFont(option));
    painter->setPen(palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(area, Qt::AlignLeft | Qt::AlignTop,
                      metrics.elidedText(file.fileName(), Qt::ElideMiddle, area.width()));
    painter->setFont(option.font);
    painter->setPen(faint);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignBottom,
                      option.fontMetrics.elidedText(file.path(), Qt::ElideMiddle, area.width()));
  }
  painter->restore();
}

QSize RecentDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
  return {0, QFontMetrics(NameFont(option)).height() + option.fontMetrics.height() + 2 * kSpace};
}

}  // namespace kev
