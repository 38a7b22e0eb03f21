// SPDX-License-Identifier: MIT
#include "platform/forms/combocol.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "platform/fonts.h"

namespace kev {

namespace {
constexpr int kShownItems = 20;
constexpr int kCharacters = 16;
}  // namespace

Combocol::Combocol(const QString& accessibleName, QWidget* parent) : QComboBox(parent) {
  setObjectName(QStringLiteral("Combocol"));
  setAccessibleName(accessibleName);
  setToolTip(accessibleName);
  setEditable(true);
  lineEdit()->setReadOnly(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setMaxVisibleItems(kShownItems);
  setMinimumContentsLength(kCharacters);
  setEnabled(false);
  connect(this, &QComboBox::activated, this, &Combocol::ColumnChosen);
}

void Combocol::ShowList(const ColumnList& list, const CodePage& page) {
  const QSignalBlocker quiet(this);
  QStringList items;
  for (const std::string& item : list.Items)
    items << ToQString(item, page);
  // Most calls change the text alone, many times in one drag.
  if (items != items_) {
    items_ = items;
    clear();
    addItems(items_);
  }
  const QString text = ToQString(list.Text, page);
  if (currentIndex() != items_.indexOf(text)) setCurrentIndex(static_cast<int>(items_.indexOf(text)));
  setEditText(text);
  setEnabled(list.Enabled);
}

void Combocol::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace kev
