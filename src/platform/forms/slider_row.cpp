// SPDX-License-Identifier: MIT
#include "platform/forms/slider_row.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/forms/select_all_edit.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kLargestPart = 255, kPage = 16;
constexpr int kSliderWidth = 170, kBoxWidth = 56;

}  // namespace

SliderRow AddSliderRow(QGridLayout& grid, int row, const ColourSlider& names, const QString& caption,
                       const QString& group, QWidget* parent) {
  SliderRow made{new QLabel(caption, parent), new QSlider(Qt::Horizontal, parent), new SelectAllEdit(parent)};
  const QString accessible = group.isEmpty() ? caption : group + QStringLiteral(": ") + caption;
  made.Caption->setAccessibleName(accessible);
  made.Caption->setBuddy(made.Slider);
  made.Slider->setObjectName(ToQString(names.Slider));
  made.Slider->setAccessibleName(accessible);
  made.Slider->setRange(0, kLargestPart);
  made.Slider->setPageStep(kPage);
  made.Slider->setMinimumWidth(kSliderWidth);
  made.Box->setObjectName(ToQString(names.Box));
  made.Box->setAccessibleName(accessible);
  made.Box->setFixedWidth(kBoxWidth);
  made.Box->setAlignment(Qt::AlignRight);
  grid.addWidget(made.Caption, row, 0);
  grid.addWidget(made.Slider, row, 1);
  grid.addWidget(made.Box, row, 2);
  return made;
}

void ShowSliderRow(const SliderRow& row, int value, const std::string& text) {
  const QSignalBlocker quietSlider(row.Slider);
  const QSignalBlocker quietBox(row.Box);
  row.Slider->setValue(value);
  if (row.Box->text() != ToQString(text)) row.Box->setText(ToQString(text));
}

}  // namespace kev
