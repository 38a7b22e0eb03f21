// SPDX-License-Identifier: MIT
// The colour picker.
#pragma once

#include <QDialog>
#include <array>
#include <optional>

#include "app/language.h"
#include "chart/colour_dialogs.h"
#include "platform/forms/slider_row.h"

class QGridLayout;

namespace kev {

class ColourSwatch;
class PalettePicture;

class ShowColors final : public QDialog {
  Q_OBJECT

 public:
  // Opens with this colour. The texts outlive the dialog.
  ShowColors(Rgb colour, const LanguageTexts& texts, QWidget* parent = nullptr);
  ~ShowColors() override;

  Rgb Result() const { return ResultantColour(state_); }
  // Shows the dialog; nothing when the user gives up.
  static std::optional<Rgb> Choose(Rgb colour, const LanguageTexts& texts, QWidget* parent);

 private:
  void Build();
  void BuildRows(QGridLayout& grid);
  void Connect();
  void Show();
  QString Text(int number) const;

  const LanguageTexts& texts_;
  ShowColorsState state_;
  PalettePicture* solidcolor;
  std::array<SliderRow, 3> rows_;
  ColourSwatch* resultantcolor;
};

}  // namespace kev
