// SPDX-License-Identifier: MIT
// Gives an answer to a file dialog made of widgets.
#pragma once

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

namespace kev {

// The name stands in for whatever was selected. It is not typed letter by letter: the proposals that follow
// typing come from another thread at their own time.
inline void AnswerFileDialog(QWidget& dialog, const QString& name) {
  for (auto* view : dialog.findChildren<QAbstractItemView*>()) {
    if (view->selectionModel() != nullptr) view->selectionModel()->clear();
  }
  auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  edit->setText(name);
  QTest::keyClick(edit, Qt::Key_Return);
}

}  // namespace kev
