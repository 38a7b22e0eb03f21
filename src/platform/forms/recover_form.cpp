// SPDX-License-Identifier: MIT
#include "platform/forms/recover_form.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "base/text_numbers.h"
#include "platform/app_style.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr QSize kFirstSize(600, 400);
constexpr int kIconSize = 48;
constexpr int kMargin = 18;
constexpr int kRowHeight = 30;
constexpr int kButtonHeight = 32;
constexpr int kButtonMargin = 28;

enum ListColumn { kTemplate, kLastChange, kColumns };

// Colours agree with the palette of the program.
constexpr const char* kSheet = R"(
#recoverhead { background: #ffffff; border-bottom: 1px solid #e3e6ea; }
#recoverhead QLabel { background: transparent; }
#File1 { border: 1px solid #cfd5dc; border-radius: 6px; background: #ffffff; }
#File1::item { padding: 0 6px; }
#File1::item:selected { background: #1b6ac9; color: #ffffff; }
#File1 QHeaderView::section { background: #ffffff; color: #6e7781; padding: 6px 8px; border: none;
                              border-bottom: 1px solid #e3e6ea; }
#recover { background: #1b6ac9; color: #ffffff; border: 1px solid #1658a8; border-radius: 4px; }
#recover:hover { background: #2a78d6; }
#recover:pressed { background: #1658a8; }
#recover:focus { border: 2px solid #123a6f; }
)";

QString LastChange(const std::string& path) {
  const QDateTime changed = QFileInfo(FromNative(path)).lastModified();
  // Two runs on one template may have ended within a minute.
  return QLocale().toString(changed.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
         changed.toString(QStringLiteral("HH:mm:ss"));
}

}  // namespace

Recover_form::Recover_form(RecoverDialog& dialog, Host& host, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent), dialog_(dialog) {
  setObjectName(QStringLiteral("Recover_form"));
  setWindowTitle(ToQString(texts.Text(kTextRecoverDialog)));
  setAccessibleName(windowTitle());
  setModal(true);
  setStyleSheet(QString::fromLatin1(kSheet));
  BuildControls(texts);
  LayOut(ToQString(texts.Text(kTextRecoverHint)));
  Connect(host, texts);
  resize(kFirstSize);
  ShowAll();
  setMinimumSize(sizeHint());
  list_->setFocus();
}

QPushButton* Recover_form::NewButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(caption);
  button->setMinimumHeight(kButtonHeight);
  button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption) + kButtonMargin);
  return button;
}

// Hidden it keeps its place, so that a selection moves nothing.
QFrame* Recover_form::NewFrame(const char* name, QPushButton* button) {
  auto* frame = new QFrame(this);
  frame->setObjectName(QString::fromLatin1(name));
  frame->setAccessibleName(button->accessibleName());
  auto* layout = new QVBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(button);
  QSizePolicy policy = frame->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  frame->setSizePolicy(policy);
  return frame;
}

void Recover_form::BuildControls(const LanguageTexts& texts) {
  list_ = new QTreeWidget(this);
  list_->setObjectName(QStringLiteral("File1"));
  list_->setAccessibleName(ToQString(texts.Text(kTextRecoverHint)));
  list_->setColumnCount(kColumns);
  list_->setHeaderLabels(
      {ToQString(texts.Text(kTextRecoverTemplate)), ToQString(texts.Text(kTextRecoverLastChange))});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setAlternatingRowColors(true);
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(kTemplate, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(kLastChange, QHeaderView::ResizeToContents);
  recover_ = NewButton("recover", ToQString(texts.Text(kTextRecoverOne)));
  delete_ = NewButton("delete", ToQString(texts.Text(kTextRecoverDelete)));
  deleteAll_ = NewButton("delete_all", ToQString(texts.Text(kTextRecoverDeleteAll)));
  continue_ = NewButton("continue_without", ToQString(texts.Text(kTextRecoverContinue)));
  recover_->setDefault(true);
  recoverFrame_ = NewFrame("recoverframe", recover_);
  deleteFrame_ = NewFrame("deleteframe", delete_);
}

QFrame* Recover_form::NewHead(const QString& instruction) {
  auto* head = new QFrame(this);
  head->setObjectName(QStringLiteral("recoverhead"));
  auto* icon = new QLabel(head);
  icon->setPixmap(ProgramIcon().pixmap(kIconSize, kIconSize));
  auto* text = new QLabel(instruction, head);
  text->setObjectName(QStringLiteral("recoverhint"));
  text->setWordWrap(true);
  auto* headRow = new QHBoxLayout(head);
  headRow->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  headRow->setSpacing(kMargin);
  headRow->addWidget(icon);
  headRow->addWidget(text, 1);
  return head;
}

void Recover_form::LayOut(const QString& instruction) {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(recoverFrame_);
  buttons->addWidget(deleteFrame_);
  buttons->addStretch(1);
  buttons->addWidget(deleteAll_);
  buttons->addWidget(continue_);

  auto* body = new QVBoxLayout;
  body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  body->setSpacing(kMargin);
  body->addWidget(list_, 1);
  body->addLayout(buttons);

  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addWidget(NewHead(instruction));
  all->addLayout(body, 1);
}

void Recover_form::Connect(Host& host, const LanguageTexts& texts) {
  connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] {
    const QList<QTreeWidgetItem*> chosen = list_->selectedItems();
    SelectRecovered(dialog_, chosen.isEmpty() ? -1 : list_->indexOfTopLevelItem(chosen.constFirst()));
    ShowActions();
  });
  connect(list_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
    list_->setCurrentItem(item);
    RecoverSelected();
  });
  connect(recover_, &QPushButton::clicked, this, &Recover_form::RecoverSelected);
  connect(delete_, &QPushButton::clicked, this, [this] {
    DeleteRecovered(dialog_);
    ShowAll();
  });
  connect(deleteAll_, &QPushButton::clicked, this, [this, &host, &texts] {
    DeleteAllRecovered(dialog_, host, texts);
    ShowAll();
  });
  connect(continue_, &QPushButton::clicked, this, &QDialog::reject);
}

void Recover_form::RecoverSelected() {
  // The key that activates a row presses the button as well.
  if (dialog_.Recovering) return;
  if (Recover(dialog_)) return accept();
  ShowAll();
}

void Recover_form::ShowAll() {
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const std::string& name : dialog_.Files) {
    const std::string path = (std::filesystem::path(dialog_.Folder) / name).string();
    auto* item = new QTreeWidgetItem(list_, {FromNative(RecoveredTitle(name)), LastChange(path)});
    item->setToolTip(kTemplate, FromNative(name));
    item->setSizeHint(kTemplate, QSize(0, kRowHeight));
  }
  if (dialog_.ActionsShown()) list_->setCurrentItem(list_->topLevelItem(dialog_.Selected));
  deleteAll_->setEnabled(!dialog_.Files.empty());
  ShowActions();
}

void Recover_form::ShowActions() {
  recoverFrame_->setVisible(dialog_.ActionsShown());
  deleteFrame_->setVisible(dialog_.ActionsShown());
}

}  // namespace kev
