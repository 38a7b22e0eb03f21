// SPDX-License-Identifier: MIT
// While work runs in the one thread: the window stays alive, the user can press one button, and nothing else
// that is clicked or typed gets through.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QEvent;

namespace kev {

class StopInput final : public QObject {
  Q_OBJECT

 public:
  // The button outlives it. It should take no focus: an editor that loses the focus would be committed.
  explicit StopInput(QAbstractButton& button);

  // Between two pieces of the work. Esc presses the button.
  void ProcessEvents();
  // Behind the work: a window that was asked to close meanwhile is asked again.
  void Finish();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool IsForButton(QObject* receiver, const QEvent& event) const;

  QAbstractButton& button_;
  QPointer<QWidget> closing_;
};

}  // namespace kev
