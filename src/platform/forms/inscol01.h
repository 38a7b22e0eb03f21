// SPDX-License-Identifier: MIT
// The dialog "Add/modify/remove columns".
#pragma once

#include <QDialog>
#include <QStringList>

#include "app/column_runs.h"
#include "app/language.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace kev {

class inscol01 final : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the dialog.
  inscol01(ColumnsDialogRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);

 private:
  void Build();
  void BuildFields(QGridLayout& grid);
  void BuildButtons(QGridLayout& grid);
  void Connect();
  void Show();
  void ShowList();
  void ShowCaptions();
  void Choose(int item);
  void Accept();
  QString Text(int number) const;

  ColumnsDialogRun& run_;
  const LanguageTexts& texts_;
  QStringList items_;
  QListWidget* List1;
  QLabel* colname;
  QLabel* positionLabel_;
  QLineEdit* colposition;
  QPushButton *Command1, *Command2, *Command3, *Command4;
};

}  // namespace kev
