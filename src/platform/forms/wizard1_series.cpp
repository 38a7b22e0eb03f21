// SPDX-License-Identifier: MIT
// The second page: how many series there are, and a line for each.
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "base/text_numbers.h"
#include "platform/forms/colour_widgets.h"
#include "platform/forms/wizard1_pages.h"

namespace kev {
namespace {

constexpr int kCountWidth = 70;
constexpr int kNameWidth = 84, kValuesWidth = 118, kFormatWidth = 56, kColourWidth = 86, kTypeWidth = 108;
constexpr int kSpacing = 7;

constexpr std::array kHeads = {kTextChartSeriesName, kTextChartSeriesValues, kTextChartSeriesFormat,
                               kTextChartColor,      kTextChartSeriesType,   kTextChartSeriesShow};
// Where the head of each column stands; a colour has its swatch beside it.
constexpr std::array kColumns = {1, 2, 3, 4, 6, 7};

// Broken at its blank, as the column below holds a check box alone.
QString Head(const QString& word) {
  QString broken = word;
  const qsizetype blank = broken.indexOf(QLatin1Char(' '));
  if (blank > 0) broken[blank] = QLatin1Char('\n');
  return broken;
}

void AddHeads(QGridLayout& grid, const Wizard1Page& page, QWidget* parent) {
  for (std::size_t n = 0; n < kHeads.size(); ++n) {
    const QString word = page.Word(kHeads[n]);
    auto* head = new QLabel(kHeads[n] == kTextChartSeriesShow ? Head(word) : word, parent);
    head->setAccessibleName(word);
    grid.addWidget(head, 0, kColumns[n], Qt::AlignLeft | Qt::AlignBottom);
  }
}

void AddSerie(QGridLayout& grid, Wizard1Page& page, int n, QWidget* parent) {
  Wizard1Fields& fields = page.Fields();
  const QString number = QString::number(n);
  const QString series = page.Word(kTextChartPageSeries) + QLatin1Char(' ') + number + QStringLiteral(": ");
  const auto text = [&](const char* suffix, int label, int width) {
    QLineEdit* edit =
        fields.Text(QStringLiteral("serie_") + number + QLatin1String(suffix), series + page.Word(label));
    edit->setFixedWidth(width);
    return edit;
  };
  auto* caption = new QLabel(number, parent);
  caption->setAccessibleName(series + number);
  grid.addWidget(caption, n, 0);
  grid.addWidget(text("_name", kTextChartSeriesName, kNameWidth), n, 1);
  grid.addWidget(text("_values", kTextChartSeriesValues, kValuesWidth), n, 2);
  grid.addWidget(text("_format", kTextChartSeriesFormat, kFormatWidth), n, 3);
  const ColourField colour = fields.Colour(QStringLiteral("serie_") + number + QStringLiteral("_color"),
                                           series + page.Word(kTextChartColor));
  colour.Text->setFixedWidth(kColourWidth);
  grid.addWidget(colour.Text, n, 4);
  grid.addWidget(colour.Swatch, n, 5);
  QComboBox* type =
      fields.ClosedList(QStringLiteral("Comboserie") + number, series + page.Word(kTextChartSeriesType),
                        {kSeriesTypes.begin(), kSeriesTypes.end()});
  type->setFixedWidth(kTypeWidth);
  grid.addWidget(type, n, 6);
  QCheckBox* show =
      fields.Check(QStringLiteral("sv") + number, QString(), series + page.Word(kTextChartSeriesShow));
  grid.addWidget(show, n, 7, Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace

Wizard1Page* SeriesPage(Wizard1Fields& fields, QWidget* parent) {
  auto* page = new Wizard1Page("Frame_2", fields, parent);
  page->Heading(kTextChartPageSeries);
  QComboBox* count = fields.ClosedList(QStringLiteral("Comboseries"), page->Word(kTextChartSeriesCount),
                                       {kSeriesCounts.begin(), kSeriesCounts.end()});
  count->setFixedWidth(kCountWidth);
  page->Row(kTextChartSeriesCount, {count});
  auto* table = new QWidget(page);
  auto* grid = new QGridLayout(table);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kSpacing);
  AddHeads(*grid, *page, table);
  for (int n = 1; n <= kChartSeriesCount; ++n)
    AddSerie(*grid, *page, n, table);
  grid->setColumnStretch(8, 1);
  page->Across(table);
  page->End();
  return page;
}

}  // namespace kev
