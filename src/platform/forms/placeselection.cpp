// SPDX-License-Identifier: MIT
#include "platform/forms/placeselection.h"

#include <QComboBox>
#include <QGridLayout>
#include <optional>
#include <vector>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/forms/dialog_parts.h"
#include "platform/forms/select_all_edit.h"

namespace kev {

namespace {
constexpr int kFieldWidth = 220;
}  // namespace

placeselection::placeselection(PlaceSelectionRun& run, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent),
      run_(run),
      YPosition(NamedControl<SelectAllEdit>("YPosition", this)),
      Combocol(NamedControl<QComboBox>("Combocol", this)) {
  setObjectName(QStringLiteral("placeselection"));
  setWindowTitle(ToQString(texts.Text(kTextPlaceDialog)));
  setAccessibleName(windowTitle());
  Build(texts);
  Show();
  YPosition->setFocus();
}

void placeselection::Build(const LanguageTexts& texts) {
  const std::vector<std::string> captions =
      WithMnemonics({texts.Text(kTextPlaceVertical), texts.Text(kTextPlaceHorizontal), texts.Text(kTextOk),
                     texts.Text(kTextCancel)});
  auto* grid = new QGridLayout(this);
  YPosition->setMinimumWidth(kFieldWidth);
  Combocol->setEditable(true);
  Combocol->setInsertPolicy(QComboBox::NoInsert);
  Combocol->setCompleter(nullptr);
  grid->addWidget(FieldLabel("Label1", captions[0], YPosition), 0, 0);
  grid->addWidget(YPosition, 0, 1, 1, 2);
  grid->addWidget(FieldLabel("Label2", captions[1], Combocol), 1, 0);
  grid->addWidget(Combocol, 1, 1, 1, 2);
  auto* ok = CaptionedControl<QPushButton>("Command1", captions[2], this);
  auto* cancel = CaptionedControl<QPushButton>("Command2", captions[3], this);
  ok->setDefault(true);
  grid->addWidget(ok, 2, 1);
  grid->addWidget(cancel, 2, 2);
  for (const std::string& item : run_.State().Items)
    Combocol->addItem(ToQString(item, run_.Page()));
  connect(ok, &QPushButton::clicked, this, &placeselection::Accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void placeselection::Show() {
  YPosition->setText(ToQString(run_.State().YPosition, run_.Page()));
  Combocol->setCurrentIndex(-1);
  Combocol->setEditText(ToQString(run_.State().Combocol, run_.Page()));
}

bool placeselection::TakeOver(const QString& text, void (PlaceSelectionRun::*typed)(std::string)) {
  QString refused;
  const std::optional<std::string> bytes = FromLine(text, run_.Page(), &refused);
  if (bytes) {
    (run_.*typed)(*bytes);
  } else {
    run_.RefuseCharacter(refused.toStdString());
    Show();
  }
  return bytes.has_value();
}

void placeselection::Accept() {
  if (TakeOver(YPosition->text(), &PlaceSelectionRun::TypeY) &&
      TakeOver(Combocol->currentText(), &PlaceSelectionRun::TypeX) && run_.Accept())
    accept();
}

}  // namespace kev
