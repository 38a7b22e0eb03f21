// SPDX-License-Identifier: MIT
// How far a read has come: a calm panel in the middle of the window. Work that is done at once does not show
// it, so that nothing flickers. It takes no input but the press of its button, where the work can be stopped.
#pragma once

#include <QElapsedTimer>
#include <QFrame>

#include "platform/forms/stop_input.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace kev {

class ProgressWindow final : public QFrame {
  Q_OBJECT

 public:
  // Stands above `parent`, or by itself where there is none.
  explicit ProgressWindow(QWidget* parent = nullptr);

  // Work of less than this shows nothing.
  static constexpr int kQuietMilliseconds = 150;

  void SetStopCaption(const QString& caption);

  void Begin(const QString& text, int maximum);
  // Behind Begin: shows the button as well, until End.
  void OfferStop();
  void Step(int value, const QString& text);
  void End();

 Q_SIGNALS:
  void StopWanted();

 private:
  void Appear();
  void HandleEvents();

  QLabel* text_;
  QProgressBar* bar_;
  QPushButton* stop_;
  StopInput stopInput_;
  QElapsedTimer sinceBegin_;
  QElapsedTimer sincePaint_;
  bool running_ = false;
  bool stoppable_ = false;
};

}  // namespace kev
