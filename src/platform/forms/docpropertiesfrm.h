// SPDX-License-Identifier: MIT
// The dialog with facts about the open document.
#pragma once

#include <QDialog>

#include "app/document_properties.h"
#include "app/language.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kev {

class docpropertiesfrm final : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the dialog.
  docpropertiesfrm(DocumentPropertiesRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);

 private:
  void Build();
  void BuildFacts(QGridLayout& grid);
  void BuildFields(QGridLayout& grid);
  void AddFact(QGridLayout& grid, const char* name, int caption, const QString& value);
  void AddRow(QGridLayout& grid, int caption, QWidget* control);
  void BuildButtons(QGridLayout& grid);
  void Accept();
  QString Text(int number) const;

  DocumentPropertiesRun& run_;
  const LanguageTexts& texts_;
  QComboBox* EditableYESNO;
  QLineEdit* ebeuby;
  QPushButton *Command1, *Command2;
};

}  // namespace kev
