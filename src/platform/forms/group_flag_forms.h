// SPDX-License-Identifier: MIT
// The two dialogs that give all members of a group one property, each with a pair of options.
#pragma once

#include <QDialog>

#include "app/group_runs.h"
#include "app/language.h"

class QRadioButton;

namespace kev {

class GroupFlagForm : public QDialog {
  Q_OBJECT

 protected:
  // Numbers of texts.
  struct Words {
    int caption, on, off;
  };

  // The run outlives the dialog; the texts are needed while it is made.
  GroupFlagForm(const char* name, GroupFlagRun& run, const LanguageTexts& texts, const Words& words,
                QWidget* parent);

 private:
  void Build(const LanguageTexts& texts, const Words& words);

  GroupFlagRun& run_;
  QRadioButton *Option1 = nullptr, *Option2 = nullptr;
};

class Modifyenduser final : public GroupFlagForm {
  Q_OBJECT

 public:
  Modifyenduser(GroupFlagRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);
};

class PrintNoPrintFrm final : public GroupFlagForm {
  Q_OBJECT

 public:
  PrintNoPrintFrm(GroupFlagRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);
};

}  // namespace kev
