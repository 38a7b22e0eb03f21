// SPDX-License-Identifier: MIT
#include "platform/forms/property_area.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace kev {

PropertyArea::PropertyArea(const QString& accessibleName, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("propertyarea"));
  setAccessibleName(accessibleName);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  hide();
}

void PropertyArea::SetContent(QWidget* content) {
  if (content == content_) return;
  delete content_;
  content_ = content;
  if (content_ == nullptr) return ShowArea(false);
  layout()->addWidget(content_);
}

void PropertyArea::ReleaseContent() {
  if (content_ == nullptr) return;
  layout()->removeWidget(content_);
  content_->setParent(nullptr);
  content_ = nullptr;
}

void PropertyArea::ShowArea(bool visible) {
  const bool show = visible && content_ != nullptr;
  if (show == shown_) return;
  shown_ = show;
  setVisible(show);
  Q_EMIT Toggled();
}

PanelDivider::PanelDivider(const QString& accessibleName, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Picturedivisor"));
  setAccessibleName(accessibleName);
  setCursor(Qt::SplitHCursor);
  hide();
}

void PanelDivider::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.fillRect(QRect(width() - 1, 0, 1, height()), palette().mid());
}

int PanelDivider::LeftFor(const QMouseEvent& event) const {
  return mapToParent(event.position().toPoint()).x() - grip_;
}

void PanelDivider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = true;
  grip_ = event->position().toPoint().x();
  grabKeyboard();
  Q_EMIT Dragged(LeftFor(*event));
}

void PanelDivider::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) Q_EMIT Dragged(LeftFor(*event));
}

void PanelDivider::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragging_ || event->button() != Qt::LeftButton) return;
  End();
  Q_EMIT Released(LeftFor(*event));
}

void PanelDivider::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return Cancel();
  QWidget::keyPressEvent(event);
}

bool PanelDivider::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide) Cancel();
  return QWidget::event(event);
}

void PanelDivider::End() {
  dragging_ = false;
  releaseKeyboard();
}

void PanelDivider::Cancel() {
  if (!dragging_) return;
  End();
  Q_EMIT Cancelled();
}

}  // namespace kev
