// SPDX-License-Identifier: MIT
#include "platform/forms/progress_window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace kev {

namespace {
constexpr int kPaintEveryMilliseconds = 40;
constexpr int kPanelWidth = 360;
}  // namespace

ProgressWindow::ProgressWindow(QWidget* parent)
    : QFrame(parent),
      text_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      stop_(new QPushButton(this)),
      stopInput_(*stop_) {
  setObjectName(QStringLiteral("progresswindow"));
  text_->setObjectName(QStringLiteral("progresstext"));
  text_->setTextFormat(Qt::PlainText);
  bar_->setObjectName(QStringLiteral("progressbar"));
  bar_->setTextVisible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(20, 16, 20, 18);
  layout->setSpacing(10);
  layout->addWidget(text_);
  layout->addWidget(bar_);
  stop_->setObjectName(QStringLiteral("progressstop"));
  stop_->setFocusPolicy(Qt::NoFocus);
  stop_->hide();
  layout->addWidget(stop_, 0, Qt::AlignRight);
  connect(stop_, &QPushButton::clicked, this, [this] {
    stop_->setEnabled(false);
    Q_EMIT StopWanted();
  });
  setFixedWidth(kPanelWidth);
  hide();
}

void ProgressWindow::SetStopCaption(const QString& caption) {
  stop_->setText(caption);
  stop_->setAccessibleName(caption);
}

void ProgressWindow::Begin(const QString& text, int maximum) {
  text_->setText(text);
  setAccessibleName(text);
  bar_->setAccessibleName(text);
  bar_->setRange(0, std::max(1, maximum));
  bar_->setValue(0);
  running_ = true;
  stoppable_ = false;
  stop_->hide();
  sinceBegin_.start();
  sincePaint_.start();
}

void ProgressWindow::OfferStop() {
  stoppable_ = running_;
  stop_->setEnabled(true);
  stop_->setVisible(stoppable_);
}

void ProgressWindow::Step(int value, const QString& text) {
  if (!running_ || sinceBegin_.elapsed() < kQuietMilliseconds) return;
  if (isVisible() && sincePaint_.elapsed() < kPaintEveryMilliseconds) return;
  sincePaint_.restart();
  bar_->setValue(value);
  if (!text.isEmpty()) text_->setText(text);
  Appear();
  HandleEvents();
}

void ProgressWindow::HandleEvents() {
  if (stoppable_) return stopInput_.ProcessEvents();
  // Painting only: what the user types or clicks waits until the work is done.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

void ProgressWindow::End() {
  running_ = false;
  stoppable_ = false;
  hide();
  stopInput_.Finish();
}

void ProgressWindow::Appear() {
  if (isVisible()) return;
  adjustSize();
  if (parentWidget() != nullptr) move(parentWidget()->rect().center() - rect().center());
  raise();
  show();
}

}  // namespace kev
