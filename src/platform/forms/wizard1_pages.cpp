// SPDX-License-Identifier: MIT
#include "platform/forms/wizard1_pages.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/forms/colour_widgets.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kMargin = 20, kRowSpacing = 9, kColumnSpacing = 12, kFieldSpacing = 8;
constexpr int kHeadingSpace = 14;
constexpr int kColourWidth = 104;

// The labels in front of fields; the widest one in this language gives the width of all.
constexpr std::array kLabels = {kTextChartTitle,      kTextChartFont,       kTextChartColor,
                                kTextChartWidth,      kTextChartX,          kTextChartKind,
                                kTextChartLabels,     kTextChartAxisStyle,  kTextChartAxisColor1,
                                kTextChartAxisColor2, kTextChartSeriesCount};

int LabelWidth(const Wizard1Fields& fields, const QFontMetrics& metrics) {
  int width = 0;
  for (const int label : kLabels)
    width = std::max(width, metrics.horizontalAdvance(fields.Word(label)));
  return width;
}

}  // namespace

Wizard1Page::Wizard1Page(const char* name, Wizard1Fields& fields, QWidget* parent)
    : QFrame(parent), fields_(fields), grid_(new QGridLayout(this)) {
  setObjectName(QString::fromLatin1(name));
  grid_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid_->setHorizontalSpacing(kColumnSpacing);
  grid_->setVerticalSpacing(kRowSpacing);
  grid_->setColumnMinimumWidth(0, LabelWidth(fields, fontMetrics()));
  grid_->setColumnStretch(1, 1);
}

void Wizard1Page::Heading(int text) {
  auto* label = new QLabel(Word(text), this);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  label->setAccessibleName(label->text());
  if (row_ > 0) grid_->setRowMinimumHeight(row_++, kHeadingSpace);
  grid_->addWidget(label, row_++, 0, 1, 2);
}

void Wizard1Page::Row(int label, std::initializer_list<QWidget*> fields, bool wide) {
  auto* caption = Caption(label, *fields.begin());
  grid_->addWidget(caption, row_, 0, Qt::AlignLeft | Qt::AlignVCenter);
  auto* line = new QHBoxLayout;
  line->setSpacing(kFieldSpacing);
  for (QWidget* field : fields)
    line->addWidget(field, wide && field == *fields.begin() ? 1 : 0);
  if (!wide) line->addStretch();
  grid_->addLayout(line, row_++, 1);
}

void Wizard1Page::FieldRow(std::initializer_list<QWidget*> fields) {
  auto* line = new QHBoxLayout;
  line->setSpacing(kFieldSpacing);
  for (QWidget* field : fields)
    line->addWidget(field);
  line->addStretch();
  grid_->addLayout(line, row_++, 1);
}

void Wizard1Page::Across(QWidget* control) {
  grid_->addWidget(control, row_++, 0, 1, 2);
}

QLabel* Wizard1Page::Caption(int text, QWidget* field) {
  auto* label = new QLabel(Word(text), this);
  label->setBuddy(field);
  label->setAccessibleName(label->text());
  captions_.emplace_back(label, text);
  return label;
}

QCheckBox* Wizard1Page::Check(const char* name, int text) {
  QCheckBox* check = fields_.Check(QString::fromLatin1(name), Word(text), Word(text));
  captions_.emplace_back(check, text);
  return check;
}

QLineEdit* Wizard1Page::Text(const char* name, int label, int width) {
  QLineEdit* edit = fields_.Text(QString::fromLatin1(name), Word(label));
  if (width > 0) edit->setFixedWidth(width);
  return edit;
}

std::pair<QWidget*, QWidget*> Wizard1Page::Colour(const char* name, int heading, int label) {
  const QString words = heading == label ? Word(label) : Word(heading) + QStringLiteral(": ") + Word(label);
  const ColourField made = fields_.Colour(QString::fromLatin1(name), words);
  made.Text->setFixedWidth(kColourWidth);
  return {made.Text, made.Swatch};
}

void Wizard1Page::End() {
  grid_->setRowStretch(row_, 1);
}

void Wizard1Page::MarkLetters(const std::vector<std::string>& taken) {
  std::vector<std::string> words = taken;
  for (const auto& [control, text] : captions_)
    words.push_back(fields_.Texts().Text(text));
  const std::vector<std::string> marked = WithMnemonics(std::move(words));
  std::size_t next = taken.size();
  for (const auto& [control, text] : captions_) {
    const QString caption = ToQString(marked[next++]);
    if (auto* label = qobject_cast<QLabel*>(control)) label->setText(caption);
    if (auto* button = qobject_cast<QAbstractButton*>(control)) button->setText(caption);
  }
}

}  // namespace kev
