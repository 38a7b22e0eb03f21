// SPDX-License-Identifier: MIT
// The fourth page: what stands behind the chart, and the colours of a pie.
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>

#include "base/text_numbers.h"
#include "platform/forms/back01.h"
#include "platform/forms/colour_widgets.h"
#include "platform/forms/dialog_buttons.h"
#include "platform/forms/wizard1_pages.h"

namespace kev {
namespace {

constexpr int kSpacing = 9, kIndent = 24;
constexpr QSize kSampleSize(180, 76);
constexpr int kNumberWidth = 70;

// An option, its field with a button behind it, and a sample below.
struct Choice {
  const char* option;
  int caption;
  bool Wizard1State::*on;
  const char* field;
};

void AddChoice(QGridLayout& grid, Wizard1Page& page, const Choice& choice, QPushButton* button,
               QWidget* sample) {
  Wizard1Fields& fields = page.Fields();
  const int row = grid.rowCount();
  QRadioButton* option = fields.Option(QString::fromLatin1(choice.option), page.Word(choice.caption),
                                       [on = choice.on](const Wizard1State& state) { return state.*on; });
  QLineEdit* field = fields.Text(QString::fromLatin1(choice.field), page.Word(choice.caption));
  button->setAccessibleName(page.Word(choice.caption) + QStringLiteral(": ") + button->text());
  grid.addWidget(option, row, 0, 1, 3);
  grid.addWidget(field, row + 1, 1);
  grid.addWidget(button, row + 1, 2);
  grid.addWidget(sample, row + 2, 1, Qt::AlignLeft);
  QWidget::setTabOrder(option, field);
  QWidget::setTabOrder(field, button);
  QWidget::setTabOrder(button, sample);
}

QPushButton* ComposeButton(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  QPushButton* button = NamedButton("Command5", page.Word(kTextChartCompose) + QStringLiteral(" ..."), &page);
  QObject::connect(button, &QPushButton::clicked, &fields, [&fields, button] {
    ChartWizard& wizard = fields.Run().Wizard();
    if (const auto ends = Back01::Choose(wizard.Now.graph_background, fields.Texts(), button->window()))
      ComposeBackground(wizard, *ends);
    fields.Refresh();
  });
  return button;
}

QPushButton* BrowseButton(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  QPushButton* button = NamedButton("Command1", page.Word(kTextChartBrowse) + QStringLiteral(" ..."), &page);
  QObject::connect(button, &QPushButton::clicked, &fields, [&fields] {
    fields.Run().BrowsePicture();
    fields.Refresh();
  });
  return button;
}

GradientPicture* GradientSample(Wizard1Page& page) {
  auto* sample = new GradientPicture(&page);
  sample->setObjectName(QStringLiteral("P2"));
  sample->setAccessibleName(page.Word(kTextChartGradient));
  sample->setFixedSize(kSampleSize);
  Wizard1Fields& fields = page.Fields();
  QObject::connect(&fields, &Wizard1Fields::Changed, sample,
                   [&fields, sample] { sample->SetEnds(fields.Run().Wizard().Now.Gradient); });
  return sample;
}

// Read again only when another file is named.
QToolButton* PictureSample(Wizard1Page& page) {
  auto* sample = new QToolButton(&page);
  sample->setObjectName(QStringLiteral("p1"));
  sample->setAccessibleName(page.Word(kTextChartShowPicture));
  sample->setToolTip(page.Word(kTextChartShowPicture));
  sample->setFixedSize(kSampleSize);
  sample->setIconSize(kSampleSize - QSize(8, 8));
  Wizard1Fields& fields = page.Fields();
  QObject::connect(sample, &QToolButton::clicked, &fields, [&fields] { fields.Run().ShowPicture(); });
  QObject::connect(
      &fields, &Wizard1Fields::Changed, sample, [&fields, sample, shown = std::string()]() mutable {
        const std::string file = fields.Run().PictureOnDisk();
        if (file == shown) return;
        shown = file;
        const QPixmap picture(FromNative(file));
        sample->setIcon(picture.isNull() ? QIcon()
                                         : QIcon(picture.scaled(sample->iconSize() * 2, Qt::KeepAspectRatio,
                                                                Qt::SmoothTransformation)));
      });
  return sample;
}

void AddPieColours(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  page.Heading(kTextChartPieColor);
  auto* number = new QComboBox(&page);
  number->setObjectName(QStringLiteral("Pvalue"));
  number->setAccessibleName(page.Word(kTextChartPieColor));
  number->setFixedWidth(kNumberWidth);
  for (int n = 1; n <= kChartPieColourCount; ++n)
    number->addItem(QStringLiteral(" %1").arg(n));
  QObject::connect(number, &QComboBox::currentIndexChanged, &fields, [&fields](int item) {
    ChoosePieColour(fields.Run().Wizard(), item + 1);
    fields.Refresh();
  });
  page.Row(kTextChartColor, {number, fields.Swatch(ToQString(kPieSample), page.Word(kTextChartPieColor))});
}

}  // namespace

Wizard1Page* BackgroundPage(Wizard1Fields& fields, QWidget* parent) {
  auto* page = new Wizard1Page("Frame_4", fields, parent);
  page->Heading(kTextChartBackground);
  auto* choices = new QWidget(page);
  auto* grid = new QGridLayout(choices);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(kSpacing);
  grid->setColumnMinimumWidth(0, kIndent);
  grid->setColumnStretch(1, 1);
  AddChoice(*grid, *page, {"OptionBack", kTextChartGradient, &Wizard1State::OptionBack, "graph_background"},
            ComposeButton(*page), GradientSample(*page));
  AddChoice(*grid, *page,
            {"OptionPicture", kTextChartPicture, &Wizard1State::OptionPicture, "Background_picture"},
            BrowseButton(*page), PictureSample(*page));
  page->Across(choices);
  AddPieColours(*page);
  page->End();
  return page;
}

}  // namespace kev
