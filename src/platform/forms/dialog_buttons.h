// SPDX-License-Identifier: MIT
// The Ok and Cancel of a dialog, at the right below it.
#pragma once

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

#include "app/language.h"
#include "base/text_numbers.h"
#include "platform/text_bridge.h"

namespace kev {

inline constexpr int kDialogButtonWidth = 92;

inline QPushButton* NamedButton(const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
  button->setAutoDefault(false);
  return button;
}

// Connected to accept and reject; the first is the one that Enter presses.
inline QHBoxLayout* AcceptAndCancel(QDialog* dialog, const char* acceptName, const char* cancelName,
                                    const LanguageTexts& texts) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  QPushButton* accept = NamedButton(acceptName, ToQString(texts.Text(kTextOk)), dialog);
  QPushButton* cancel = NamedButton(cancelName, ToQString(texts.Text(kTextCancel)), dialog);
  accept->setDefault(true);
  for (QPushButton* button : {accept, cancel}) {
    button->setMinimumWidth(kDialogButtonWidth);
    row->addWidget(button);
  }
  QObject::connect(accept, &QPushButton::clicked, dialog, &QDialog::accept);
  QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
  return row;
}

}  // namespace kev
