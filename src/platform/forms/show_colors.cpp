// SPDX-License-Identifier: MIT
#include "platform/forms/show_colors.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>

#include "platform/forms/colour_widgets.h"
#include "platform/forms/dialog_buttons.h"

namespace kev {
namespace {

constexpr int kMargin = 16, kRowSpacing = 12;
constexpr QSize kPaletteSize(256, 190);
constexpr int kResultHeight = 40;
constexpr std::array kCaptions = {kTextColorRed, kTextColorGreen, kTextColorBlue};

}  // namespace

ShowColors::ShowColors(Rgb colour, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent),
      texts_(texts),
      state_(OpenedShowColors(colour)),
      solidcolor(new PalettePicture(this)),
      resultantcolor(new ColourSwatch(this)) {
  setObjectName(QStringLiteral("ShowColors"));
  setWindowTitle(Text(kTextColorDialog));
  setAccessibleName(windowTitle());
  Build();
  Connect();
  Show();
  rows_[0].Slider->setFocus();
}

// A box that has the keyboard tells that it is left; there has to be somebody to tell.
ShowColors::~ShowColors() {
  hide();
}

std::optional<Rgb> ShowColors::Choose(Rgb colour, const LanguageTexts& texts, QWidget* parent) {
  ShowColors dialog(colour, texts, parent);
  return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Result()) : std::nullopt;
}

QString ShowColors::Text(int number) const {
  return ToQString(texts_.Text(number));
}

void ShowColors::Build() {
  solidcolor->setObjectName(QStringLiteral("solidcolor"));
  solidcolor->setAccessibleName(Text(kTextColorPalette));
  solidcolor->setFixedSize(kPaletteSize);
  resultantcolor->setObjectName(QStringLiteral("resultantcolor"));
  resultantcolor->setAccessibleName(Text(kTextColorResult));
  resultantcolor->ShowOnly();
  resultantcolor->setFixedHeight(kResultHeight);
  resultantcolor->setMaximumWidth(QWIDGETSIZE_MAX);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kRowSpacing);
  grid->setVerticalSpacing(kRowSpacing);
  BuildRows(*grid);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kMargin);
  columns->addWidget(solidcolor, 0, Qt::AlignTop);
  columns->addLayout(grid, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addLayout(columns, 1);
  layout->addLayout(AcceptAndCancel(this, "Command1", "Command2", texts_));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ShowColors::BuildRows(QGridLayout& grid) {
  for (std::size_t n = 0; n < rows_.size(); ++n)
    rows_[n] = AddSliderRow(grid, static_cast<int>(n), kColourSliders[n], Text(kCaptions[n]), {}, this);
  auto* caption = new QLabel(Text(kTextColorResult), this);
  caption->setAccessibleName(caption->text());
  const int row = static_cast<int>(rows_.size());
  grid.addWidget(caption, row, 0);
  grid.addWidget(resultantcolor, row, 1, 1, 2);
  grid.setRowStretch(row + 1, 1);
}

void ShowColors::Connect() {
  for (std::size_t n = 0; n < rows_.size(); ++n) {
    connect(rows_[n].Slider, &QSlider::valueChanged, this, [this, n](int value) {
      SlideColour(state_, n, value);
      Show();
    });
    connect(rows_[n].Box, &QLineEdit::textEdited, this, [this, n](const QString& text) {
      TypeColour(state_, n, text.toLatin1().toStdString());
      Show();
    });
    connect(rows_[n].Box, &QLineEdit::editingFinished, this, [this, n] {
      LeaveColour(state_, n);
      Show();
    });
  }
  connect(solidcolor, &PalettePicture::Picked, this, [this](Rgb colour) {
    PickFromPalette(state_, colour);
    Show();
  });
}

void ShowColors::Show() {
  for (std::size_t n = 0; n < rows_.size(); ++n)
    ShowSliderRow(rows_[n], state_.Sliders[n], state_.Boxes[n]);
  resultantcolor->SetColour(Result());
}

}  // namespace kev
