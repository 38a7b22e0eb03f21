// SPDX-License-Identifier: MIT
// The form `Recover_form`: offers at the start what earlier runs left. Escape goes on without any of it.
#pragma once

#include <QDialog>

#include "app/recover.h"

class QFrame;
class QPushButton;
class QTreeWidget;

namespace kev {

class Recover_form final : public QDialog {
  Q_OBJECT

 public:
  // All outlive the form; the dialog's struct holds what was chosen when it has closed.
  Recover_form(RecoverDialog& dialog, Host& host, const LanguageTexts& texts, QWidget* parent = nullptr);

 private:
  void BuildControls(const LanguageTexts& texts);
  void LayOut(const QString& instruction);
  QFrame* NewHead(const QString& instruction);
  void Connect(Host& host, const LanguageTexts& texts);
  QPushButton* NewButton(const char* name, const QString& caption);
  QFrame* NewFrame(const char* name, QPushButton* button);
  void RecoverSelected();
  // The list and what can be done with it, from the struct.
  void ShowAll();
  void ShowActions();

  RecoverDialog& dialog_;
  QTreeWidget* list_ = nullptr;
  QPushButton* recover_ = nullptr;
  QPushButton* delete_ = nullptr;
  QPushButton* deleteAll_ = nullptr;
  QPushButton* continue_ = nullptr;
  QFrame* recoverFrame_ = nullptr;
  QFrame* deleteFrame_ = nullptr;
};

}  // namespace kev
