// SPDX-License-Identifier: MIT
#include "platform/forms/back01.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>

#include "platform/forms/colour_widgets.h"
#include "platform/forms/dialog_buttons.h"

namespace kev {
namespace {

constexpr int kMargin = 16, kRowSpacing = 10, kGroupSpacing = 18;
constexpr int kPictureWidth = 190;
constexpr std::array kCaptions = {kTextColorRed, kTextColorGreen, kTextColorBlue};

}  // namespace

Back01::Back01(std::string_view ends, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent), texts_(texts), state_(OpenedBack01(ends)), g1(new GradientPicture(this)) {
  setObjectName(QStringLiteral("Back01"));
  setWindowTitle(Text(kTextBackgroundDialog));
  setAccessibleName(windowTitle());
  Build();
  Connect();
  Show();
  rows_[0].Slider->setFocus();
}

// A box that has the keyboard tells that it is left; there has to be somebody to tell.
Back01::~Back01() {
  hide();
}

std::optional<std::array<int, 6>> Back01::Choose(std::string_view ends, const LanguageTexts& texts,
                                                 QWidget* parent) {
  Back01 dialog(ends, texts, parent);
  return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Result()) : std::nullopt;
}

void Back01::accept() {
  // All are read before any is shown again.
  for (std::size_t n = 0; n < rows_.size(); ++n)
    LeaveBack01(state_, n, rows_[n].Box->text().toLatin1().toStdString());
  QDialog::accept();
}

QString Back01::Text(int number) const {
  return ToQString(texts_.Text(number));
}

void Back01::Build() {
  g1->setObjectName(QStringLiteral("g1"));
  g1->setAccessibleName(Text(kTextChartGradient));
  g1->setFixedWidth(kPictureWidth);
  auto* sliders = new QVBoxLayout;
  sliders->setSpacing(kRowSpacing);
  BuildColour(*sliders, kTextBackgroundFirst, 0);
  sliders->addSpacing(kGroupSpacing);
  BuildColour(*sliders, kTextBackgroundSecond, 3);
  sliders->addStretch();
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kMargin);
  columns->addLayout(sliders, 1);
  columns->addWidget(g1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addLayout(columns, 1);
  layout->addLayout(AcceptAndCancel(this, "Command1", "Command2", texts_));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void Back01::BuildColour(QVBoxLayout& column, int heading, std::size_t first) {
  auto* caption = new QLabel(Text(heading), this);
  QFont bold = caption->font();
  bold.setBold(true);
  caption->setFont(bold);
  caption->setAccessibleName(caption->text());
  column.addWidget(caption);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kRowSpacing);
  grid->setVerticalSpacing(kRowSpacing);
  for (std::size_t n = 0; n < kCaptions.size(); ++n)
    rows_[first + n] = AddSliderRow(*grid, static_cast<int>(n), kBackSliders[first + n], Text(kCaptions[n]),
                                    Text(heading), this);
  column.addLayout(grid);
}

void Back01::Connect() {
  for (std::size_t n = 0; n < rows_.size(); ++n) {
    rows_[n].Box->installEventFilter(this);
    connect(rows_[n].Slider, &QSlider::valueChanged, this, [this, n](int value) {
      SlideBack01(state_, n, value);
      Show();
    });
    connect(rows_[n].Box, &QLineEdit::editingFinished, this, [this, n] { Leave(n); });
  }
}

// Enter takes the number over and is not the dialog's.
bool Back01::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(watched, event);
  for (std::size_t n = 0; n < rows_.size(); ++n)
    if (rows_[n].Box == watched) Leave(n);
  return true;
}

void Back01::Leave(std::size_t slider) {
  LeaveBack01(state_, slider, rows_[slider].Box->text().toLatin1().toStdString());
  Show();
}

void Back01::Show() {
  for (std::size_t n = 0; n < rows_.size(); ++n)
    ShowSliderRow(rows_[n], state_.Sliders[n], state_.Boxes[n]);
  g1->SetEnds(state_.Sliders);
}

}  // namespace kev
