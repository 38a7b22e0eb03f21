// SPDX-License-Identifier: MIT
// The third page: the labels of the X axis, the axes, and the texts of the values.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "base/text_numbers.h"
#include "platform/forms/wizard1_pages.h"

namespace kev {
namespace {

constexpr int kFontWidth = 210, kSmallWidth = 56, kStyleWidth = 70;

// Font and size, then colour.
void AddFont(Wizard1Page& page, int heading, const char* fontName, const char* sizeName,
             const char* colourName) {
  Wizard1Fields& fields = page.Fields();
  const QString group = page.Word(heading) + QStringLiteral(": ");
  QComboBox* font =
      fields.OpenList(QString::fromLatin1(fontName), group + page.Word(kTextChartFont), fields.Families());
  font->setFixedWidth(kFontWidth);
  QLineEdit* size = fields.Text(QString::fromLatin1(sizeName), group + page.Word(kTextChartFontSize));
  size->setFixedWidth(kSmallWidth);
  page.Row(kTextChartFont, {font, page.Caption(kTextChartFontSize, size), size});
  const auto [colour, swatch] = page.Colour(colourName, heading, kTextChartColor);
  page.Row(kTextChartColor, {colour, swatch});
}

void AddAxes(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  page.Heading(kTextChartAxes);
  page.FieldRow(
      {page.Check("ShowAxis", kTextChartAxes), page.Check("showaxisbackground", kTextChartAxisBackground)});
  QComboBox* style = fields.ClosedList(QStringLiteral("ComboAxis"), page.Word(kTextChartAxisStyle),
                                       {kAxisStyles.begin(), kAxisStyles.end()});
  style->setFixedWidth(kStyleWidth);
  page.Row(kTextChartAxisStyle, {style});
  const auto [first, firstSwatch] = page.Colour("AxisColor_1", kTextChartAxisColor1, kTextChartAxisColor1);
  page.Row(kTextChartAxisColor1, {first, firstSwatch});
  const auto [second, secondSwatch] = page.Colour("AxisColor_2", kTextChartAxisColor2, kTextChartAxisColor2);
  page.Row(kTextChartAxisColor2, {second, secondSwatch});
}

}  // namespace

Wizard1Page* TextsPage(Wizard1Fields& fields, QWidget* parent) {
  auto* page = new Wizard1Page("Frame_3", fields, parent);
  page->Heading(kTextChartLabels);
  page->Row(kTextChartLabels, {page->Text("layout_values", kTextChartLabels, 0)}, true);
  AddFont(*page, kTextChartLabels, "Combo_layoutfont", "Layout_fontsize", "layout_fontcolor");
  AddAxes(*page);
  page->Heading(kTextChartValueTexts);
  AddFont(*page, kTextChartValueTexts, "Combo_ShowValuesFont", "ShowvaluesFontSize", "showvalues_fontcolor");
  page->FieldRow({page->Check("graph_showseriestitles", kTextChartSeriesTitles),
                  page->Check("showvaluespie", kTextChartPieValues)});
  page->End();
  return page;
}

}  // namespace kev
