// SPDX-License-Identifier: MIT
#include "platform/forms/docpropertiesfrm.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "base/text_numbers.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr int kFieldWidth = 340;
constexpr int kMargin = 18;

template <typename Control>
Control* Named(const char* name, QWidget* parent) {
  auto* control = new Control(parent);
  control->setObjectName(QString::fromLatin1(name));
  return control;
}

}  // namespace

docpropertiesfrm::docpropertiesfrm(DocumentPropertiesRun& run, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent),
      run_(run),
      texts_(texts),
      EditableYESNO(Named<QComboBox>("EditableYESNO", this)),
      ebeuby(Named<QLineEdit>("ebeuby", this)),
      Command1(Named<QPushButton>("Command1", this)),
      Command2(Named<QPushButton>("Command2", this)) {
  setObjectName(QStringLiteral("docpropertiesfrm"));
  setWindowTitle(Text(kTextFactsDialog));
  setAccessibleName(windowTitle());
  Build();
  connect(Command1, &QPushButton::clicked, this, &docpropertiesfrm::Accept);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
  EditableYESNO->setFocus();
}

QString docpropertiesfrm::Text(int number) const {
  return ToQString(texts_.Text(number));
}

void docpropertiesfrm::Build() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  grid->setVerticalSpacing(kMargin / 2);
  grid->setColumnStretch(1, 1);
  BuildFacts(*grid);
  BuildFields(*grid);
  BuildButtons(*grid);
}

void docpropertiesfrm::BuildFacts(QGridLayout& grid) {
  const DocumentFacts& facts = run_.Facts();
  const QString format =
      QStringLiteral("%1 (%2)").arg(ToQString(facts.FileFormat, run_.Page()), Text(run_.FormatText()));
  AddFact(grid, "Report_title_lbl", kTextFactsTitle, ToQString(facts.ReportTitle, run_.Page()));
  AddFact(grid, "FileNameLbl", kTextFactsFile, FromNative(facts.File));
  AddFact(grid, "objectslbl", kTextFactsObjects, QString::number(facts.Objects));
  AddFact(grid, "subsectionslbl", kTextFactsSubsections, QString::number(facts.Subsections));
  AddFact(grid, "FileFormat", kTextFactsFormat, format);
}

void docpropertiesfrm::AddFact(QGridLayout& grid, const char* name, int caption, const QString& value) {
  auto* fact = Named<QLabel>(name, this);
  fact->setTextFormat(Qt::PlainText);
  fact->setText(value);
  fact->setToolTip(value);
  fact->setWordWrap(true);
  fact->setMinimumWidth(kFieldWidth);
  // A long path has no blank to break at and must not widen the dialog.
  fact->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  fact->setTextInteractionFlags(Qt::TextSelectableByMouse);
  AddRow(grid, caption, fact);
}

void docpropertiesfrm::AddRow(QGridLayout& grid, int caption, QWidget* control) {
  auto* label = new QLabel(Text(caption), this);
  label->setObjectName(control->objectName() + QStringLiteral("caption"));
  label->setBuddy(control);
  control->setAccessibleName(label->text());
  const int row = grid.rowCount();
  grid.addWidget(label, row, 0);
  grid.addWidget(control, row, 1);
}

void docpropertiesfrm::BuildFields(QGridLayout& grid) {
  const DocumentFacts& facts = run_.Facts();
  EditableYESNO->addItems({QStringLiteral("Y"), QStringLiteral("N")});
  EditableYESNO->setCurrentText(ToQString(facts.Editable));
  EditableYESNO->setToolTip(Text(kTextFactsYesOrNo));
  ebeuby->setText(ToQString(facts.EditableBy, run_.Page()));
  AddRow(grid, kTextFactsEditable, EditableYESNO);
  AddRow(grid, kTextFactsWhoMayEdit, ebeuby);
}

void docpropertiesfrm::BuildButtons(QGridLayout& grid) {
  Command1->setText(Text(kTextOk));
  Command2->setText(Text(kTextCancel));
  Command1->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kMargin / 2);
  buttons->addStretch(1);
  for (QPushButton* button : {Command1, Command2}) {
    button->setAccessibleName(button->text());
    buttons->addWidget(button);
  }
  const int row = grid.rowCount();
  grid.setRowMinimumHeight(row, kMargin);
  grid.addLayout(buttons, row + 1, 0, 1, 2);
}

void docpropertiesfrm::Accept() {
  QString refused;
  const std::optional<std::string> by = FromLine(ebeuby->text(), run_.Page(), &refused);
  if (!by) {
    run_.RefuseCharacter(refused.toStdString());
    ebeuby->setFocus();
    return;
  }
  if (run_.Accept(EditableYESNO->currentText().toStdString(), *by)) accept();
}

}  // namespace kev
