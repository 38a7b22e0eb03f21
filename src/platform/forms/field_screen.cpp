// SPDX-License-Identifier: MIT
#include "platform/forms/field_screen.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "platform/forms/line_redo_key.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr double kFrame = 2 * kUnitsPerPixel;

Qt::Alignment AlignmentOf(char align) {
  if (align == 'R') return Qt::AlignRight | Qt::AlignVCenter;
  if (align == 'C') return Qt::AlignHCenter | Qt::AlignVCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

FieldScreen::FieldScreen(PageCanvas& canvas, FontCache& fonts)
    : QLineEdit(canvas.viewport()), canvas_(canvas), fonts_(fonts) {
  setObjectName(QStringLiteral("FieldScreen"));
  setFrame(false);
  setTextMargins(0, 0, 0, 0);
  TakeRedoKey(*this, *this);
  hide();
}

void FieldScreen::Show(const FieldScreenLook& look, const CodePage& page) {
  const QRectF place(QPointF(look.Place.Left, look.Place.Top), QPointF(look.Place.Right, look.Place.Bottom));
  canvas_.PlaceOverlay(this, place.adjusted(-kFrame, -kFrame, kFrame, kFrame));
  const QString words = ToQString(look.Text, page);
  if (!isHidden()) {
    // The key that opened the box is typed after it.
    if (text() != words) setText(words);
    return;
  }
  const QColor colour = QColor::fromRgb(look.Colour);
  setStyleSheet(QStringLiteral("QLineEdit { background: white; border: 1px solid #1F6FC5; padding: 0px; "
                               "color: %1; }")
                    .arg(colour.lightness() > 200 ? QStringLiteral("black") : colour.name()));
  setFont(fonts_.Font(look.Font, logicalDpiY()));
  setAlignment(AlignmentOf(look.Align));
  setText(words);
  show();
  raise();
  setFocus(Qt::OtherFocusReason);
  setCursorPosition(static_cast<int>(text().size()));
}

void FieldScreen::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Q_EMIT Accepted();
    case Qt::Key_Escape:
      return Q_EMIT GivenUp();
    default:
      return QLineEdit::keyPressEvent(event);
  }
}

// Another window, or the menu of this box, does not end the typing.
void FieldScreen::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
  if (isVisible()) Q_EMIT Accepted();
}

}  // namespace kev
