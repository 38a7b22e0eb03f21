// SPDX-License-Identifier: MIT
#include "platform/forms/zoom_box.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include "app/designer.h"
#include "platform/forms/line_redo_key.h"
#include "platform/text_bridge.h"

namespace kev {

ZoomBox::ZoomBox(QWidget* parent) : QComboBox(parent) {
  setObjectName(QStringLiteral("combozoom"));
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // "2" is the beginning of a number here, not of "25%".
  setCompleter(nullptr);
  setMaxVisibleItems(static_cast<int>(kZoomList.size()));
  for (const std::string_view entry : kZoomList)
    addItem(ToQString(entry));
  setMinimumContentsLength(6);
  TakeRedoKey(*this, *lineEdit());
  connect(lineEdit(), &QLineEdit::editingFinished, this, &ZoomBox::Offer);
  connect(this, &QComboBox::textActivated, this, &ZoomBox::Offer);
}

void ZoomBox::ShowZoom(const QString& text) {
  shown_ = text;
  const int index = findText(text);
  setCurrentIndex(index);
  setEditText(text);
}

void ZoomBox::Offer() {
  // Enter and the leaving that follows it offer the same text; the second time it is no news.
  if (currentText() == shown_) return;
  const QString typed = currentText();
  shown_ = typed;
  Q_EMIT ZoomChosen(typed);
}

void ZoomBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    setEditText(shown_);
    lineEdit()->selectAll();
    return;
  }
  QComboBox::keyPressEvent(event);
}

void ZoomBox::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace kev
