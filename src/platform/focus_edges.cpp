// SPDX-License-Identifier: MIT
#include "platform/focus_edges.h"

#include <QFocusEvent>
#include <QWidget>
#include <algorithm>

namespace kev {
namespace {

constexpr int kThickness = 2;

bool IsByKeyboard(const QFocusEvent& event) {
  switch (event.reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
      return true;
    default:
      return false;
  }
}

}  // namespace

FocusEdges::FocusEdges(QWidget& widget) : QObject(&widget), widget_(widget) {
  for (QWidget*& edge : edges_) {
    edge = new QWidget(&widget);
    edge->setObjectName(QStringLiteral("focusedge"));
    edge->setAttribute(Qt::WA_TransparentForMouseEvents);
    edge->setAutoFillBackground(true);
    edge->setBackgroundRole(QPalette::Highlight);
    edge->hide();
  }
  widget.installEventFilter(this);
}

bool FocusEdges::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      Show(IsByKeyboard(*static_cast<QFocusEvent*>(event)));
      break;
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
      Show(false);
      break;
    case QEvent::Resize:
      Fit();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

void FocusEdges::Show(bool shown) {
  if (shown) Fit();
  for (QWidget* edge : edges_) {
    edge->setVisible(shown);
    if (shown) edge->raise();
  }
}

void FocusEdges::Fit() {
  const int width = widget_.width();
  const int height = widget_.height();
  edges_[0]->setGeometry(0, 0, width, kThickness);
  edges_[1]->setGeometry(0, height - kThickness, width, kThickness);
  edges_[2]->setGeometry(0, 0, kThickness, height);
  edges_[3]->setGeometry(width - kThickness, 0, kThickness, height);
}

}  // namespace kev
