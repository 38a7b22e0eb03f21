// SPDX-License-Identifier: MIT
// The welcome screen: templates last used, with the pictures of their pages. Escape goes on without any.
#pragma once

#include <QDialog>

#include "app/language.h"
#include "app/welcome_run.h"

class QBoxLayout;
class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace kev {

class Fastopen final : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the form. The images of the two bars lie in the folder `images`.
  Fastopen(WelcomeRun& run, const LanguageTexts& texts, const QString& images, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build();
  void FillList();
  QBoxLayout* NewLists();
  QBoxLayout* NewPreview();
  QBoxLayout* NewFoot();
  QPushButton* NewButton(const char* name, int text);
  void Connect();
  void CloseIf(bool closes);
  // What can be done with the chosen entry, and its picture.
  void ShowChosen();
  void ShowPicture(int entry);
  QString Text(int number) const;

  WelcomeRun& run_;
  const LanguageTexts& texts_;
  QListWidget* list_;
  QLabel* Picc;
  QCheckBox* Check1;
  QPushButton *openbutt, *prevbutt, *new_, *openOther_, *close_;
};

}  // namespace kev
