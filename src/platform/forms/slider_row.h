// SPDX-License-Identifier: MIT
// One line of a colour dialog: a caption, a slider from 0 to 255 and the text box of its number.
#pragma once

#include <QString>

#include "chart/colour_dialogs.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

namespace kev {

struct SliderRow {
  QLabel* Caption = nullptr;
  QSlider* Slider = nullptr;
  QLineEdit* Box = nullptr;
};

// `group` stands in front of the caption in the accessible names; it may be empty.
SliderRow AddSliderRow(QGridLayout& grid, int row, const ColourSlider& names, const QString& caption,
                       const QString& group, QWidget* parent);
// Shows them without telling anyone.
void ShowSliderRow(const SliderRow& row, int value, const std::string& text);

}  // namespace kev
