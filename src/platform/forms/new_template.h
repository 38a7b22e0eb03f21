// SPDX-License-Identifier: MIT
// The new-template assistant.
#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include "app/language.h"
#include "app/new_template_run.h"
#include "platform/forms/stop_input.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace kev {

class NewTemplate final : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the dialog. A file that the run begins with is checked as soon as the dialog is there.
  NewTemplate(NewTemplateRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);
  ~NewTemplate() override;

  void reject() override;

 private:
  void Name();
  void Caption();
  void LayOut();
  QBoxLayout* LayOutFile();
  QBoxLayout* LayOutEnd();
  void ConnectOption(QRadioButton& option, TemplateStart start);
  void Connect();
  void Check();
  void OnProgress();
  void Show();
  void ShowEnabled();
  QString Text(int number) const;

  NewTemplateRun& run_;
  const LanguageTexts& texts_;
  QRadioButton *usenothing, *usekex, *useked;
  QLabel* fileLabel_;
  QLineEdit* Text1;
  QPushButton *Command1, *Command2, *Command3, *EditKEX, *ReloadKEX, *CreateTemplate;
  QProgressBar* Progress1;
  QLabel* StatusLabel;
  StopInput stopInput_;
  QElapsedTimer sinceCheck_;
  QElapsedTimer sincePaint_;
};

}  // namespace kev
