// SPDX-License-Identifier: MIT
// The first page: title, size and place, kind.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "base/text_numbers.h"
#include "platform/forms/wizard1_pages.h"

namespace kev {
namespace {

constexpr int kFontWidth = 210, kSmallWidth = 56, kNumberWidth = 104, kPlaceWidth = 160;

void AddTitle(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  const QString title = page.Word(kTextChartTitle) + QStringLiteral(": ");
  page.Heading(kTextChartTitle);
  page.Row(kTextChartTitle, {page.Text("graph_title", kTextChartTitle, 0)}, true);
  QComboBox* font =
      fields.OpenList(QStringLiteral("Combo_font"), title + page.Word(kTextChartFont), fields.Families());
  font->setFixedWidth(kFontWidth);
  QLineEdit* size = fields.Text(QStringLiteral("title_fontsize"), title + page.Word(kTextChartFontSize));
  size->setFixedWidth(kSmallWidth);
  page.Row(kTextChartFont, {font, page.Caption(kTextChartFontSize, size), size});
  const auto [colour, swatch] = page.Colour("title_fontcolor", kTextChartTitle, kTextChartColor);
  page.Row(
      kTextChartColor,
      {colour, swatch, fields.Toggle(QStringLiteral("GrBold01"), "boldregular", page.Word(kTextChartBold)),
       fields.Toggle(QStringLiteral("GrItalic01"), "italicregular", page.Word(kTextChartItalic)),
       fields.Toggle(QStringLiteral("GrUnderline01"), "underlineregular", page.Word(kTextChartUnderline))});
}

void AddPlace(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  page.Heading(kTextChartSizeAndPlace);
  QLineEdit* width = page.Text("graph_width", kTextChartWidth, kNumberWidth);
  QLineEdit* height = page.Text("graph_height", kTextChartHeight, kNumberWidth);
  page.Row(kTextChartWidth, {width, page.Caption(kTextChartHeight, height), height});
  QComboBox* x =
      fields.OpenList(QStringLiteral("combo_graphX"), page.Word(kTextChartX), fields.Run().Columns());
  QComboBox* y =
      fields.OpenList(QStringLiteral("combo_graphY"), page.Word(kTextChartY), fields.Run().Heights());
  x->setFixedWidth(kPlaceWidth);
  y->setFixedWidth(kNumberWidth);
  page.Row(kTextChartX, {x, page.Caption(kTextChartY, y), y});
}

void AddKind(Wizard1Page& page) {
  Wizard1Fields& fields = page.Fields();
  page.Heading(kTextChartKind);
  page.Row(kTextChartKind, {fields.Option(QStringLiteral("option_2d"), page.Word(kTextChart2D),
                                          [](const Wizard1State& state) { return state.option_2d; }),
                            fields.Option(QStringLiteral("option_3d"), page.Word(kTextChart3D),
                                          [](const Wizard1State& state) { return state.option_3d; }),
                            fields.Option(QStringLiteral("option_pie"), page.Word(kTextChartPie),
                                          [](const Wizard1State& state) { return state.option_pie; })});
}

}  // namespace

Wizard1Page* GeneralPage(Wizard1Fields& fields, QWidget* parent) {
  auto* page = new Wizard1Page("Frame_1", fields, parent);
  AddTitle(*page);
  AddPlace(*page);
  AddKind(*page);
  page->End();
  return page;
}

}  // namespace kev
