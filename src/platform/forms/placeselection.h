// SPDX-License-Identifier: MIT
// The dialog that puts a group at a given place.
#pragma once

#include <QDialog>

#include "app/group_runs.h"
#include "app/language.h"

class QComboBox;
class QLineEdit;

namespace kev {

class placeselection final : public QDialog {
  Q_OBJECT

 public:
  // The run outlives the dialog; the texts are needed while it is made.
  placeselection(PlaceSelectionRun& run, const LanguageTexts& texts, QWidget* parent = nullptr);

 private:
  void Build(const LanguageTexts& texts);
  void Show();
  void Accept();
  // Whether the text could be taken over; if not both are put back.
  bool TakeOver(const QString& text, void (PlaceSelectionRun::*typed)(std::string));

  PlaceSelectionRun& run_;
  QLineEdit* YPosition;
  QComboBox* Combocol;
};

}  // namespace kev
