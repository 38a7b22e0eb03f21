// SPDX-License-Identifier: MIT
// The dialog "Set this column": name and position of one column.
#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "app/column_runs.h"
#include "app/language.h"

class QLineEdit;

namespace kev {

class SetThisColumn final : public QDialog {
  Q_OBJECT

 public:
  // The run outlives the dialog; the texts are needed while it is made.
  SetThisColumn(SetColumnRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);

 private:
  void Build(const LanguageTexts& texts);
  void Show();
  void Accept();
  // Whether the field's text could be taken over; if not it is put back.
  bool TakeOver(const QLineEdit& field, void (SetColumnRun::*typed)(std::string));

  SetColumnRun& run_;
  QLineEdit *Text2, *Text1;
};

}  // namespace kev
