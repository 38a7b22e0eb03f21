// SPDX-License-Identifier: MIT
#include "platform/forms/fastopen.h"

#include <QCheckBox>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/forms/recent_delegate.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr QSize kFirstSize(820, 560);
constexpr QSize kPictureSize(272, 372);
constexpr int kMargin = 20;
constexpr int kHeadHeight = 72;
constexpr int kLogoWidth = 240;
constexpr int kButtonHeight = 34;

// Colours agree with the palette of the program. A click chooses also where a desktop opens by one.
constexpr const char* kSheet = R"(
#recentlist { border: 1px solid #cfd5dc; border-radius: 6px; background: #ffffff; activate-on-singleclick: 0; }
#Picc { border: 1px solid #cfd5dc; border-radius: 6px; background: #ffffff; color: #6e7781; }
#openbutt:enabled { background: #1b6ac9; color: #ffffff; border: 1px solid #1658a8; border-radius: 4px; }
#openbutt:hover:enabled { background: #2a78d6; }
#openbutt:pressed:enabled { background: #1658a8; }
#openbutt:focus:enabled { border: 2px solid #123a6f; }
)";

// The band along the upper edge: one drawing stretched over it, another at its left end.
class HeadBand final : public QWidget {
 public:
  HeadBand(const QString& images, QWidget* parent)
      : QWidget(parent),
        bar_(images + QStringLiteral("bar.prbm")),
        logo_(images + QStringLiteral("logobar2.prbm")) {
    setObjectName(QStringLiteral("welcomehead"));
    setFixedHeight(kHeadHeight);
    bar_.setAspectRatioMode(Qt::IgnoreAspectRatio);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    bar_.render(&painter, rect());
    logo_.render(&painter, QRectF(0, 0, kLogoWidth, kHeadHeight));
  }

 private:
  QSvgRenderer bar_, logo_;
};

template <typename Control>
Control* Named(const char* name, QWidget* parent) {
  auto* control = new Control(parent);
  control->setObjectName(QString::fromLatin1(name));
  return control;
}

}  // namespace

Fastopen::Fastopen(WelcomeRun& run, const LanguageTexts& texts, const QString& images, QWidget* parent)
    : QDialog(parent),
      run_(run),
      texts_(texts),
      list_(Named<QListWidget>("recentlist", this)),
      Picc(Named<QLabel>("Picc", this)),
      Check1(Named<QCheckBox>("Check1", this)),
      openbutt(NewButton("openbutt", kTextWelcomeOpen)),
      prevbutt(NewButton("prevbutt", kTextWelcomePreview)),
      new_(NewButton("newtemplate", kTextWelcomeNew)),
      openOther_(NewButton("opentemplate", kTextWelcomeOpenOther)),
      close_(NewButton("closebutt", kTextCloseButton)) {
  setObjectName(QStringLiteral("Fastopen"));
  setWindowTitle(Text(kTextWelcomeDialog));
  setAccessibleName(windowTitle());
  setModal(true);
  setStyleSheet(QString::fromLatin1(kSheet));
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addWidget(new HeadBand(images, this));
  Build();
  FillList();
  Connect();
  resize(kFirstSize);
  ShowChosen();
  // Enter goes on where the last run ended.
  if (!run_.Files().empty()) list_->setCurrentRow(0);
  (run_.Files().empty() ? static_cast<QWidget*>(new_) : list_)->setFocus();
}

QString Fastopen::Text(int number) const {
  return ToQString(texts_.Text(number));
}

// --- Building ---

QPushButton* Fastopen::NewButton(const char* name, int text) {
  auto* button = Named<QPushButton>(name, this);
  button->setAccessibleName(Text(text));
  button->setMinimumHeight(kButtonHeight);
  button->setAutoDefault(false);
  return button;
}

void Fastopen::Build() {
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kMargin);
  columns->addLayout(NewLists(), 1);
  columns->addLayout(NewPreview());
  auto* body = new QVBoxLayout;
  body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  body->setSpacing(kMargin);
  body->addLayout(columns, 1);
  body->addLayout(NewFoot());
  static_cast<QVBoxLayout*>(layout())->addLayout(body, 1);
  const std::vector<QAbstractButton*> captioned = {openbutt, prevbutt, new_, openOther_, close_, Check1};
  const std::vector<std::string> captions = WithMnemonics(
      {texts_.Text(kTextWelcomeOpen), texts_.Text(kTextWelcomePreview), texts_.Text(kTextWelcomeNew),
       texts_.Text(kTextWelcomeOpenOther), texts_.Text(kTextCloseButton), texts_.Text(kTextWelcomeNotAgain)});
  for (std::size_t i = 0; i < captioned.size(); ++i)
    captioned[i]->setText(ToQString(captions[i]));
}

QBoxLayout* Fastopen::NewLists() {
  auto* fixed = new QHBoxLayout;
  fixed->addWidget(new_);
  fixed->addWidget(openOther_);
  fixed->addStretch(1);
  auto* heading = Named<QLabel>("recentheading", this);
  heading->setText(Text(kTextWelcomeRecent));
  QFont bold = heading->font();
  bold.setWeight(QFont::DemiBold);
  heading->setFont(bold);
  heading->setBuddy(list_);
  list_->setAccessibleName(Text(kTextWelcomeRecent));
  list_->setItemDelegate(new RecentDelegate(list_));
  list_->setMouseTracking(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->viewport()->installEventFilter(this);
  auto* lists = new QVBoxLayout;
  lists->addLayout(fixed);
  lists->addSpacing(kMargin / 2);
  lists->addWidget(heading);
  lists->addWidget(list_, 1);
  return lists;
}

QBoxLayout* Fastopen::NewPreview() {
  Picc->setFixedSize(kPictureSize);
  Picc->setAlignment(Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(openbutt, 1);
  buttons->addWidget(prevbutt, 1);
  auto* preview = new QVBoxLayout;
  preview->addWidget(Picc);
  preview->addLayout(buttons);
  preview->addStretch(1);
  return preview;
}

QBoxLayout* Fastopen::NewFoot() {
  Check1->setAccessibleName(Text(kTextWelcomeNotAgain));
  Check1->setChecked(run_.NotAgain());
  auto* foot = new QHBoxLayout;
  foot->addWidget(Check1);
  foot->addStretch(1);
  foot->addWidget(close_);
  return foot;
}

void Fastopen::FillList() {
  for (const std::string& path : run_.Files()) {
    auto* item = new QListWidgetItem(FromNative(path), list_);
    item->setToolTip(item->text());
  }
  if (!run_.Files().empty()) return;
  auto* item = new QListWidgetItem(Text(kTextWelcomeNoRecent), list_);
  item->setFlags(Qt::NoItemFlags);
}

void Fastopen::Connect() {
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    run_.Choose(row);
    ShowChosen();
  });
  connect(list_, &QListWidget::itemEntered, this,
          [this](QListWidgetItem* item) { ShowPicture(list_->row(item)); });
  connect(list_, &QListWidget::itemActivated, this, [this] { CloseIf(run_.Open()); });
  connect(openbutt, &QPushButton::clicked, this, [this] { CloseIf(run_.Open()); });
  connect(prevbutt, &QPushButton::clicked, this, [this] { run_.Preview(); });
  connect(new_, &QPushButton::clicked, this, [this] { CloseIf(run_.New()); });
  connect(openOther_, &QPushButton::clicked, this, [this] { CloseIf(run_.OpenOther()); });
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  connect(Check1, &QCheckBox::toggled, this, [this](bool ticked) { run_.SetNotAgain(ticked); });
}

// --- What happens ---

void Fastopen::CloseIf(bool closes) {
  if (closes) accept();
}

bool Fastopen::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_->viewport() && event->type() == QEvent::Leave) ShowPicture(run_.Chosen());
  return QDialog::eventFilter(watched, event);
}

void Fastopen::ShowChosen() {
  openbutt->setEnabled(run_.CanOpen());
  prevbutt->setEnabled(run_.CanPreview());
  ShowPicture(run_.Chosen());
}

void Fastopen::ShowPicture(int entry) {
  const std::string file = run_.Thumbnail(entry);
  const QPixmap picture = file.empty() ? QPixmap() : QPixmap(FromNative(file));
  if (picture.isNull()) {
    Picc->setText(entry < 0 ? QString() : Text(kTextWelcomeNoPicture));
  } else {
    Picc->setPixmap(picture.scaled(kPictureSize - QSize(kMargin, kMargin) / 2, Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation));
  }
  Picc->setAccessibleName(Text(picture.isNull() ? kTextWelcomeNoPicture : kTextWelcomePreview));
}

}  // namespace kev
