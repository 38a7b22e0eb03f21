// SPDX-License-Identifier: MIT
// The dialog "Align to grid".
#pragma once

#include <QDialog>

#include "app/group_runs.h"
#include "app/language.h"

class QCheckBox;
class QComboBox;

namespace kev {

class AlignToGridFrm final : public QDialog {
  Q_OBJECT

 public:
  // The run outlives the dialog; the texts are needed while it is made.
  AlignToGridFrm(AlignToGridRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);

 private:
  void Build(const LanguageTexts& texts);
  void Show();
  void Accept();

  AlignToGridRun& run_;
  QCheckBox *Check1 = nullptr, *Check2 = nullptr;
  QComboBox* Combo1 = nullptr;
};

}  // namespace kev
