// SPDX-License-Identifier: MIT
#include "platform/forms/pane_keys.h"

#include <QApplication>
#include <QShortcut>
#include <QWidget>

namespace kev {
namespace {

bool TakesFocus(const QWidget& widget) {
  return widget.isEnabled() && widget.isVisible() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

// The pane itself or the first in it that the keyboard can reach.
QWidget* FirstIn(QWidget& pane) {
  if (TakesFocus(pane)) return &pane;
  for (QWidget* child : pane.findChildren<QWidget*>())
    if (TakesFocus(*child)) return child;
  return nullptr;
}

}  // namespace

PaneKeys::PaneKeys(QWidget& window, Panes panes) : QObject(&window), panes_(std::move(panes)) {
  for (const auto& [key, step] : {std::pair("F6", 1), std::pair("Shift+F6", -1)}) {
    auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(key)), &window);
    // Also from the panel that floats in a window of its own.
    shortcut->setContext(Qt::ApplicationShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, by = step] { Go(by); });
  }
}

void PaneKeys::Go(int step) {
  // A menu that is open keeps the keyboard.
  if (QApplication::activePopupWidget() != nullptr) return;
  const QList<QWidget*> panes = panes_();
  QWidget* focused = QApplication::focusWidget();
  qsizetype at = step > 0 ? -1 : panes.size();
  // The innermost: one part may stand on another.
  for (qsizetype i = 0; i < panes.size(); ++i)
    if (focused != nullptr && (panes.at(i) == focused || panes.at(i)->isAncestorOf(focused))) at = i;
  for (qsizetype tried = 0; tried < panes.size(); ++tried) {
    at = (at + step + panes.size()) % panes.size();
    QWidget* next = panes.at(at)->isVisible() ? FirstIn(*panes.at(at)) : nullptr;
    if (next == nullptr) continue;
    next->window()->activateWindow();
    return next->setFocus(Qt::TabFocusReason);
  }
}

}  // namespace kev
