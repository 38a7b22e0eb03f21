// SPDX-License-Identifier: MIT
// How far a read has come: a calm panel in the middle of the window. It never takes input, and work that is
// done at once does not show it, so that nothing flickers.
#pragma once

#include <QElapsedTimer>
#include <QFrame>

class QLabel;
class QProgressBar;

namespace kev {

class ProgressWindow final : public QFrame {
  Q_OBJECT

 public:
  // Stands above `parent`, or by itself where there is none.
  explicit ProgressWindow(QWidget* parent = nullptr);

  // Work of less than this shows nothing.
  static constexpr int kQuietMilliseconds = 150;

  void Begin(const QString& text, int maximum);
  void Step(int value, const QString& text);
  void End();

 private:
  void Appear();

  QLabel* text_;
  QProgressBar* bar_;
  QElapsedTimer sinceBegin_;
  QElapsedTimer sincePaint_;
  bool running_ = false;
};

}  // namespace kev
