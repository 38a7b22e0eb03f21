// SPDX-License-Identifier: MIT
#include "platform/forms/wizard1.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/chart_control.h"
#include "platform/forms/dialog_buttons.h"
#include "platform/forms/wizard1_pages.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

// The pages stand 3120 twips from the left edge.
constexpr int kPagesLeft = 3120 / 15;
constexpr int kMargin = 16;
constexpr QSize kSize(1262, 640);
constexpr QSize kLeastPreview(300, 240);
constexpr double kMostEnlarged = 2.5;
constexpr std::array kPageCaptions = {kTextChartPageGeneral, kTextChartPageSeries, kTextChartPageTexts,
                                      kTextChartPageColors};
constexpr std::array kLinkNames = {"Link01", "Link02", "Link03", "Link04"};

constexpr const char* kLook = R"(
#links, #previewground { background: #ffffff; }
#links { border-right: 1px solid #e3e6ea; }
#links QPushButton { border: 1px solid transparent; border-radius: 5px; padding: 9px 14px; text-align: left;
  background: transparent; }
#links QPushButton:hover { background: #f1f4f8; }
#links QPushButton:checked { background: #e3edf9; color: #1b6ac9; font-weight: bold; }
#links QPushButton:focus { border-color: #1b6ac9; }
#previewground { border: 1px solid #e3e6ea; border-radius: 6px; }
#wizardbuttons { border-top: 1px solid #e3e6ea; }
)";

}  // namespace

Wizard1::Wizard1(ChartWizardRun& run, const Services& services, QWidget* parent)
    : QDialog(parent),
      run_(run),
      texts_(services.Texts),
      fields_(new Wizard1Fields(run, services.Texts, this)) {
  setObjectName(QStringLiteral("Wizard1"));
  setWindowTitle(ToQString(texts_.Text(kTextChartDialog)));
  setAccessibleName(windowTitle());
  setStyleSheet(QString::fromLatin1(kLook));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(0);
  columns->addWidget(BuildLinks());
  columns->addWidget(BuildPages());
  columns->addWidget(BuildPreview(services), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(columns, 1);
  layout->addWidget(BuildButtons());
  MarkLetters();
  connect(fields_, &Wizard1Fields::Changed, this, &Wizard1::ShowChart);
  fields_->Refresh();
  ShowPage(0);
  resize(kSize.expandedTo(minimumSizeHint()));
  findChild<QLineEdit*>(QStringLiteral("graph_title"))->setFocus();
}

// A control that has the keyboard tells that it is left, also while it is deleted with the dialog; by then
// nobody may listen.
Wizard1::~Wizard1() {
  delete fields_;
}

void Wizard1::accept() {
  if (run_.Accept()) QDialog::accept();
}

// --- Building ---

QWidget* Wizard1::BuildLinks() {
  auto* area = new QFrame(this);
  area->setObjectName(QStringLiteral("links"));
  area->setFixedWidth(kPagesLeft);
  auto* column = new QVBoxLayout(area);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(4);
  for (std::size_t n = 0; n < links_.size(); ++n) {
    links_[n] = NamedButton(kLinkNames[n], ToQString(texts_.Text(kPageCaptions[n])), area);
    links_[n]->setCheckable(true);
    links_[n]->setAutoExclusive(true);
    column->addWidget(links_[n]);
    connect(links_[n], &QPushButton::clicked, this, [this, n] { ShowPage(static_cast<int>(n)); });
  }
  column->addStretch();
  return area;
}

QWidget* Wizard1::BuildPages() {
  frames_ = new QStackedWidget(this);
  pages_ = {GeneralPage(*fields_, frames_), SeriesPage(*fields_, frames_), TextsPage(*fields_, frames_),
            BackgroundPage(*fields_, frames_)};
  for (std::size_t n = 0; n < pages_.size(); ++n) {
    pages_[n]->setAccessibleName(ToQString(texts_.Text(kPageCaptions[n])));
    frames_->addWidget(pages_[n]);
  }
  frames_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  return frames_;
}

QWidget* Wizard1::BuildPreview(const Services& services) {
  auto* ground = new QFrame(this);
  ground->setObjectName(QStringLiteral("previewground"));
  preview_ = new KevGraph(services.Fonts, services.Images, ground);
  preview_->setAccessibleName(ToQString(texts_.Text(kTextChartPreview)));
  preview_->setMinimumSize(kLeastPreview);
  preview_->EnlargeUpTo(kMostEnlarged);
  preview_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* inside = new QVBoxLayout(ground);
  inside->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  inside->addWidget(preview_);
  auto* area = new QWidget(this);
  auto* around = new QVBoxLayout(area);
  around->setContentsMargins(0, kMargin, kMargin, kMargin);
  around->addWidget(ground);
  return area;
}

QWidget* Wizard1::BuildButtons() {
  auto* area = new QFrame(this);
  area->setObjectName(QStringLiteral("wizardbuttons"));
  QHBoxLayout* row = AcceptAndCancel(this, "Command6", "Command13", texts_);
  row->setContentsMargins(kMargin, 12, kMargin, 12);
  area->setLayout(row);
  accept_ = findChild<QPushButton*>(QStringLiteral("Command6"));
  cancel_ = findChild<QPushButton*>(QStringLiteral("Command13"));
  return area;
}

// The links and buttons are in sight beside each page, so their letters are the same on all.
void Wizard1::MarkLetters() {
  std::vector<std::string> words;
  for (const int caption : kPageCaptions)
    words.push_back(texts_.Text(caption));
  words.push_back(texts_.Text(kTextOk));
  words.push_back(texts_.Text(kTextCancel));
  const std::vector<std::string> marked = WithMnemonics(std::move(words));
  for (std::size_t n = 0; n < links_.size(); ++n)
    links_[n]->setText(ToQString(marked[n]));
  accept_->setText(ToQString(marked[links_.size()]));
  cancel_->setText(ToQString(marked[links_.size() + 1]));
  for (Wizard1Page* page : pages_)
    page->MarkLetters(marked);
}

// --- What happens ---

void Wizard1::ShowPage(int page) {
  frames_->setCurrentIndex(page);
  links_[static_cast<std::size_t>(page)]->setChecked(true);
}

void Wizard1::ShowChart() {
  preview_->Show(PreviewOf(run_.Wizard()));
}

}  // namespace kev
