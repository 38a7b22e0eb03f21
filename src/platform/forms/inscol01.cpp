// SPDX-License-Identifier: MIT
#include "platform/forms/inscol01.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include "app/commands.h"
#include "platform/forms/select_all_edit.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr int kListWidth = 220;
constexpr int kFieldWidth = 180;

template <typename Control>
Control* Named(const char* name, QWidget* parent) {
  auto* control = new Control(parent);
  control->setObjectName(QString::fromLatin1(name));
  return control;
}

}  // namespace

inscol01::inscol01(ColumnsDialogRun& run, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent),
      run_(run),
      texts_(texts),
      List1(Named<QListWidget>("List1", this)),
      colname(Named<QLabel>("colname", this)),
      positionLabel_(Named<QLabel>("Label2", this)),
      colposition(Named<SelectAllEdit>("colposition", this)),
      Command1(Named<QPushButton>("Command1", this)),
      Command2(Named<QPushButton>("Command2", this)),
      Command3(Named<QPushButton>("Command3", this)),
      Command4(Named<QPushButton>("Command4", this)) {
  setObjectName(QStringLiteral("inscol01"));
  setWindowTitle(Text(kTextColumnsDialog));
  setAccessibleName(windowTitle());
  Build();
  Connect();
  Show();
  setMinimumSize(sizeHint());
  colposition->setFocus();
}

QString inscol01::Text(int number) const {
  return ToQString(texts_.Text(number));
}

// --- Building ---

void inscol01::Build() {
  auto* grid = new QGridLayout(this);
  List1->setAccessibleName(windowTitle());
  List1->setMinimumWidth(kListWidth);
  auto* hint = Named<QLabel>("Label4", this);
  hint->setText(Text(kTextColumnsHint));
  hint->setAccessibleName(hint->text());
  hint->setTextFormat(Qt::PlainText);
  hint->setWordWrap(true);
  grid->addWidget(List1, 0, 0, 8, 1);
  grid->addWidget(hint, 8, 0, 1, 2);
  BuildFields(*grid);
  BuildButtons(*grid);
}

void inscol01::BuildFields(QGridLayout& grid) {
  auto* nameLabel = Named<QLabel>("Label1", this);
  nameLabel->setText(Text(kTextColumnName));
  nameLabel->setAccessibleName(nameLabel->text());
  colname->setAccessibleName(nameLabel->text());
  colname->setTextFormat(Qt::PlainText);
  positionLabel_->setBuddy(colposition);
  positionLabel_->setAccessibleName(Text(kTextColumnPosition));
  colposition->setAccessibleName(Text(kTextColumnPosition));
  colposition->setMinimumWidth(kFieldWidth);
  grid.addWidget(nameLabel, 0, 1);
  grid.addWidget(colname, 1, 1);
  grid.addWidget(positionLabel_, 2, 1);
  grid.addWidget(colposition, 3, 1);
}

void inscol01::BuildButtons(QGridLayout& grid) {
  Command1->setDefault(true);
  int row = 4;
  for (QPushButton* button : {Command1, Command3, Command4, Command2})
    grid.addWidget(button, row++, 1);
  setTabOrder(colposition, Command1);
  setTabOrder(Command1, Command3);
  setTabOrder(Command3, Command4);
  setTabOrder(Command4, Command2);
  setTabOrder(Command2, List1);
}

void inscol01::Connect() {
  connect(List1, &QListWidget::itemSelectionChanged, this, [this] {
    if (!List1->selectedItems().isEmpty()) Choose(List1->currentRow());
  });
  connect(List1, &QListWidget::itemClicked, this, [this] {
    Choose(List1->currentRow());
    colposition->setFocus();
  });
  connect(Command1, &QPushButton::clicked, this, &inscol01::Accept);
  connect(Command2, &QPushButton::clicked, this, &QDialog::accept);
  connect(Command3, &QPushButton::clicked, this, [this] {
    run_.Remove();
    Show();
  });
  connect(Command4, &QPushButton::clicked, this, [this] {
    run_.Organize();
    Show();
  });
}

// --- What happens ---

void inscol01::Choose(int item) {
  run_.Choose(item);
  Show();
}

void inscol01::Accept() {
  QString refused;
  const std::optional<std::string> typed = FromLine(colposition->text(), run_.Page(), &refused);
  if (typed) {
    run_.TypePosition(*typed);
    run_.AddOrModify();
  } else {
    run_.RefuseCharacter(refused.toStdString());
  }
  Show();
}

void inscol01::Show() {
  const ColumnsDialog& state = run_.State();
  ShowList();
  colname->setText(ToQString(state.colname, run_.Page()));
  colposition->setText(ToQString(state.colposition, run_.Page()));
  colposition->selectAll();
  ShowCaptions();
  Command3->setEnabled(state.Command3);
}

void inscol01::ShowList() {
  const ColumnsDialog& state = run_.State();
  const QSignalBlocker quiet(List1);
  QStringList items;
  for (const std::string& item : state.List1)
    items << ToQString(item, run_.Page());
  // An item that goes while it is pressed is never clicked.
  if (items != items_) {
    items_ = items;
    List1->clear();
    List1->addItems(items_);
  }
  if (state.Chosen >= 0) {
    List1->setCurrentRow(state.Chosen);
  } else {
    List1->clearSelection();
  }
}

void inscol01::ShowCaptions() {
  const std::vector<std::string> captions = WithMnemonics(
      {texts_.Text(run_.State().Command1), texts_.Text(kTextColumnRemove), texts_.Text(kTextColumnOrganize),
       texts_.Text(kTextOk), texts_.Text(kTextColumnPosition)});
  int next = 0;
  for (QPushButton* button : {Command1, Command3, Command4, Command2}) {
    button->setText(ToQString(captions[static_cast<std::size_t>(next)]));
    button->setAccessibleName(button->text().remove(QLatin1Char('&')));
    ++next;
  }
  positionLabel_->setText(ToQString(captions.back()));
}

}  // namespace kev
