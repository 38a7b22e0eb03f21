// SPDX-License-Identifier: MIT
#include "platform/forms/new_template.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <array>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr int kWidth = 560;
constexpr int kMargin = 18;
constexpr int kSpacing = 8;
constexpr int kGroupSpacing = 14;
constexpr int kBarHeight = 6;
constexpr int kStatusLines = 3;
// A check of less than this shows nothing while it runs.
constexpr int kQuietMilliseconds = 150;
constexpr int kPaintEveryMilliseconds = 40;

template <typename Control>
Control* Named(const char* name, QWidget* parent) {
  auto* control = new Control(parent);
  control->setObjectName(QString::fromLatin1(name));
  return control;
}

}  // namespace

NewTemplate::NewTemplate(NewTemplateRun& run, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent),
      run_(run),
      texts_(texts),
      usenothing(Named<QRadioButton>("usenothing", this)),
      usekex(Named<QRadioButton>("usekex", this)),
      useked(Named<QRadioButton>("useked", this)),
      fileLabel_(Named<QLabel>("Label1", this)),
      Text1(Named<QLineEdit>("Text1", this)),
      Command1(Named<QPushButton>("Command1", this)),
      Command2(Named<QPushButton>("Command2", this)),
      Command3(Named<QPushButton>("Command3", this)),
      EditKEX(Named<QPushButton>("EditKEX", this)),
      ReloadKEX(Named<QPushButton>("ReloadKEX", this)),
      CreateTemplate(Named<QPushButton>("CreateTemplate", this)),
      Progress1(Named<QProgressBar>("Progress1", this)),
      StatusLabel(Named<QLabel>("StatusLabel", this)),
      stopInput_(*Command3) {
  setObjectName(QStringLiteral("NewTemplate"));
  setWindowTitle(Text(kTextAssistantDialog));
  setAccessibleName(windowTitle());
  Name();
  Caption();
  LayOut();
  Connect();
  Show();
  usenothing->setFocus();
  if (!run_.State().Text1.empty()) QTimer::singleShot(0, this, &NewTemplate::Check);
}

NewTemplate::~NewTemplate() {
  run_.OnProgress = nullptr;
}

QString NewTemplate::Text(int number) const {
  return ToQString(texts_.Text(number));
}

// --- Building ---

// Names of what has no caption of its own.
void NewTemplate::Name() {
  Text1->setAccessibleName(Text(kTextAssistantDataFile));
  Text1->setClearButtonEnabled(true);
  Progress1->setAccessibleName(Text(kTextAssistantDataFile));
  Progress1->setRange(0, NewTemplateDialog::kProgressEnd);
  Progress1->setTextVisible(false);
  Progress1->setFixedHeight(kBarHeight);
  StatusLabel->setTextFormat(Qt::PlainText);
  StatusLabel->setWordWrap(true);
  StatusLabel->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  StatusLabel->setMinimumHeight(kStatusLines * fontMetrics().lineSpacing());
  fileLabel_->setBuddy(Text1);
  fileLabel_->setAccessibleName(Text(kTextAssistantDataFile));
  CreateTemplate->setDefault(true);
  Command3->setFocusPolicy(Qt::NoFocus);
  QSizePolicy policy = Command3->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  Command3->setSizePolicy(policy);
}

void NewTemplate::Caption() {
  const std::array<std::pair<QAbstractButton*, int>, 9> buttons = {{{usenothing, kTextAssistantNothing},
                                                                    {usekex, kTextAssistantKex},
                                                                    {useked, kTextAssistantKed},
                                                                    {Command1, kTextAssistantBrowse},
                                                                    {EditKEX, kTextAssistantEdit},
                                                                    {ReloadKEX, kTextAssistantReload},
                                                                    {CreateTemplate, kTextAssistantCreate},
                                                                    {Command2, kTextCancel},
                                                                    {Command3, kTextStop}}};
  std::vector<std::string> captions;
  for (const auto& [button, text] : buttons)
    captions.push_back(texts_.Text(text));
  captions.push_back(texts_.Text(kTextAssistantDataFile));
  captions = WithMnemonics(std::move(captions));
  std::size_t next = 0;
  for (const auto& [button, text] : buttons) {
    button->setText(ToQString(captions[next++]));
    button->setAccessibleName(button->text().remove(QLatin1Char('&')));
  }
  Command1->setText(Command1->text() + QStringLiteral(" ..."));
  fileLabel_->setText(ToQString(captions.back()));
}

void NewTemplate::LayOut() {
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kSpacing);
  for (QRadioButton* button : {usenothing, usekex, useked})
    all->addWidget(button);
  all->addSpacing(kGroupSpacing);
  all->addLayout(LayOutFile());
  all->addWidget(Progress1);
  all->addWidget(StatusLabel, 1);
  all->addSpacing(kGroupSpacing);
  all->addLayout(LayOutEnd());
  setMinimumWidth(kWidth);
  QWidget* before = useked;
  for (QWidget* next :
       std::initializer_list<QWidget*>{Text1, Command1, EditKEX, ReloadKEX, CreateTemplate, Command2}) {
    setTabOrder(before, next);
    before = next;
  }
}

QBoxLayout* NewTemplate::LayOutFile() {
  auto* line = new QHBoxLayout;
  line->setSpacing(kSpacing);
  line->addWidget(Text1, 1);
  line->addWidget(Command1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kSpacing);
  buttons->addWidget(EditKEX);
  buttons->addWidget(ReloadKEX);
  buttons->addStretch(1);
  buttons->addWidget(Command3);
  auto* file = new QVBoxLayout;
  file->setSpacing(kSpacing);
  file->addWidget(fileLabel_);
  file->addLayout(line);
  file->addLayout(buttons);
  return file;
}

QBoxLayout* NewTemplate::LayOutEnd() {
  auto* end = new QHBoxLayout;
  end->setSpacing(kSpacing);
  end->addStretch(1);
  end->addWidget(CreateTemplate);
  end->addWidget(Command2);
  return end;
}

// Arrows move the choice as well.
void NewTemplate::ConnectOption(QRadioButton& option, TemplateStart start) {
  connect(&option, &QRadioButton::toggled, this, [this, start](bool chosen) {
    if (!chosen) return;
    run_.ChooseStart(start);
    Show();
  });
}

void NewTemplate::Connect() {
  ConnectOption(*usenothing, TemplateStart::Nothing);
  ConnectOption(*usekex, TemplateStart::Records);
  ConnectOption(*useked, TemplateStart::Variables);
  connect(Text1, &QLineEdit::textEdited, this, [this](const QString& text) {
    run_.TypePath(ToNative(text));
    Show();
  });
  // Behind the key, which would press the button that the check enables.
  connect(Text1, &QLineEdit::returnPressed, this, &NewTemplate::Check, Qt::QueuedConnection);
  connect(Command1, &QPushButton::clicked, this, [this] {
    sinceCheck_.start();
    run_.Browse();
    Show();
  });
  connect(ReloadKEX, &QPushButton::clicked, this, &NewTemplate::Check);
  connect(EditKEX, &QPushButton::clicked, this, [this] { run_.Edit(); });
  connect(Command3, &QPushButton::clicked, this, [this] { run_.Stop(); });
  connect(Command2, &QPushButton::clicked, this, &NewTemplate::reject);
  connect(CreateTemplate, &QPushButton::clicked, this, [this] {
    sinceCheck_.start();
    if (run_.Create()) return accept();
    Show();
  });
  run_.OnProgress = [this] { OnProgress(); };
}

// --- What happens ---

void NewTemplate::Check() {
  sinceCheck_.start();
  run_.Check();
  Show();
}

void NewTemplate::reject() {
  if (run_.State().Checking) return run_.Stop();
  QDialog::reject();
}

void NewTemplate::OnProgress() {
  if (!isVisible() || !sinceCheck_.isValid() || sinceCheck_.elapsed() < kQuietMilliseconds) return;
  if (sincePaint_.isValid() && sincePaint_.elapsed() < kPaintEveryMilliseconds) return;
  sincePaint_.start();
  Show();
  stopInput_.ProcessEvents();
}

void NewTemplate::Show() {
  const NewTemplateDialog& state = run_.State();
  QRadioButton* chosen = state.Start == TemplateStart::Records     ? usekex
                         : state.Start == TemplateStart::Variables ? useked
                                                                   : usenothing;
  chosen->setChecked(true);
  // What is being typed keeps its cursor.
  if (ToNative(Text1->text()) != state.Text1) Text1->setText(FromNative(state.Text1));
  Progress1->setValue(state.Progress1);
  StatusLabel->setText(ToQString(run_.StatusText()));
  StatusLabel->setAccessibleName(StatusLabel->text());
  ShowEnabled();
  if (!state.Checking) stopInput_.Finish();
}

void NewTemplate::ShowEnabled() {
  NewTemplateDialog state = run_.State();
  CreateTemplate->setEnabled(CanCreate(state));
  Command3->setVisible(state.Checking);
  // The others do nothing during a check; greyed, they would lose the keyboard.
  state.Checking = false;
  for (QWidget* control : std::initializer_list<QWidget*>{fileLabel_, Text1, Command1})
    control->setEnabled(CanChooseFile(state));
  EditKEX->setEnabled(CanEdit(state));
  ReloadKEX->setEnabled(CanReload(state));
}

}  // namespace kev
