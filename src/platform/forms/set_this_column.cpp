// SPDX-License-Identifier: MIT
#include "platform/forms/set_this_column.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/forms/select_all_edit.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr int kFieldWidth = 220;

// The blank key types nothing; what is pasted is judged when the dialog is accepted.
class NameEdit final : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->text() != QStringLiteral(" ")) QLineEdit::keyPressEvent(event);
  }
};

QLabel* MadeLabel(const char* name, const std::string& caption, QWidget* field) {
  auto* label = new QLabel(ToQString(caption), field->parentWidget());
  label->setObjectName(QString::fromLatin1(name));
  label->setAccessibleName(label->text().remove(QLatin1Char('&')));
  label->setBuddy(field);
  field->setAccessibleName(label->accessibleName());
  return label;
}

QPushButton* MadeButton(const char* name, const std::string& caption, QWidget* parent) {
  auto* button = new QPushButton(ToQString(caption), parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(button->text().remove(QLatin1Char('&')));
  return button;
}

}  // namespace

SetThisColumn::SetThisColumn(SetColumnRun& run, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent), run_(run), Text2(new NameEdit(this)), Text1(new SelectAllEdit(this)) {
  setObjectName(QStringLiteral("SetThisColumn"));
  setWindowTitle(ToQString(texts.Text(kTextSetColumnDialog)));
  setAccessibleName(windowTitle());
  Text2->setObjectName(QStringLiteral("Text2"));
  Text1->setObjectName(QStringLiteral("Text1"));
  Build(texts);
  Show();
}

void SetThisColumn::Build(const LanguageTexts& texts) {
  const std::vector<std::string> captions =
      WithMnemonics({texts.Text(kTextColumnName), texts.Text(kTextColumnPosition), texts.Text(kTextOk),
                     texts.Text(kTextCancel)});
  auto* grid = new QGridLayout(this);
  grid->addWidget(MadeLabel("Label2", captions[0], Text2), 0, 0);
  grid->addWidget(MadeLabel("Label1", captions[1], Text1), 1, 0);
  Text2->setMinimumWidth(kFieldWidth);
  grid->addWidget(Text2, 0, 1, 1, 2);
  grid->addWidget(Text1, 1, 1, 1, 2);
  QPushButton* ok = MadeButton("Command2", captions[2], this);
  QPushButton* cancel = MadeButton("Command1", captions[3], this);
  ok->setDefault(true);
  grid->addWidget(ok, 2, 1);
  grid->addWidget(cancel, 2, 2);
  connect(ok, &QPushButton::clicked, this, &SetThisColumn::Accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void SetThisColumn::Show() {
  Text2->setText(ToQString(run_.State().Text2, run_.Page()));
  Text1->setText(ToQString(run_.State().Text1, run_.Page()));
}

bool SetThisColumn::TakeOver(const QLineEdit& field, void (SetColumnRun::*typed)(std::string)) {
  QString refused;
  const std::optional<std::string> text = FromLine(field.text(), run_.Page(), &refused);
  if (text)
    (run_.*typed)(*text);
  else
    run_.RefuseCharacter(refused.toStdString());
  return text.has_value();
}

void SetThisColumn::Accept() {
  if (TakeOver(*Text2, &SetColumnRun::TypeName) && TakeOver(*Text1, &SetColumnRun::TypePosition) &&
      run_.Accept())
    return accept();
  Show();
}

}  // namespace kev
