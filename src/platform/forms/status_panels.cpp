// SPDX-License-Identifier: MIT
#include "platform/forms/status_panels.h"

#include <QFrame>
#include <QLabel>
#include <QToolButton>

namespace kev {

namespace {

constexpr int kSelectionWidth = 160;
constexpr int kSideMargin = 10;

QLabel* AddPanel(QStatusBar& bar, const QString& name, int stretch) {
  auto* label = new QLabel(&bar);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setContentsMargins(kSideMargin, 3, kSideMargin, 3);
  bar.addWidget(label, stretch);
  return label;
}

}  // namespace

StatusPanels::StatusPanels(const QString& idleText, const QString& findingsWord, QWidget* parent)
    : QStatusBar(parent),
      idleText_(idleText),
      findingsWord_(findingsWord),
      selection_(AddPanel(*this, QStringLiteral("statusselection"), 0)),
      text_(AddPanel(*this, QStringLiteral("statustext"), 1)),
      divider_(new QFrame(this)),
      findings_(new QToolButton(this)) {
  setObjectName(QStringLiteral("statusbar"));
  setSizeGripEnabled(false);
  divider_->setObjectName(QStringLiteral("statusdivider"));
  divider_->setFrameShape(QFrame::VLine);
  divider_->setForegroundRole(QPalette::Mid);
  divider_->setFrameShadow(QFrame::Plain);
  insertWidget(1, divider_);
  selection_->setMinimumWidth(kSelectionWidth);
  // A long message is cut at the window's edge instead of widening the window.
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  findings_->setObjectName(QStringLiteral("findingsbutton"));
  findings_->setAutoRaise(true);
  findings_->setAccessibleName(findingsWord);
  findings_->hide();
  ShowSelection(QString());
  ShowText(QString());
  addPermanentWidget(findings_);
  connect(findings_, &QToolButton::clicked, this, &StatusPanels::FindingsWanted);
}

void StatusPanels::ShowSelection(const QString& text) {
  selection_->setText(text);
  // An empty box beside a line would only look unfinished.
  selection_->setVisible(!text.isEmpty());
  divider_->setVisible(!text.isEmpty());
}

void StatusPanels::ShowText(const QString& text) {
  text_->setText(text.isEmpty() ? idleText_ : text);
  text_->setToolTip(text);
}

void StatusPanels::ShowFindingCount(int count) {
  findings_->setText(findingsWord_ + QStringLiteral(": ") + QString::number(count));
  findings_->setVisible(count > 0);
}

}  // namespace kev
