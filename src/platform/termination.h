// SPDX-License-Identifier: MIT
// Turns the system's wish to end the process into a call from the event loop, where everything may be done.
#pragma once

#include <QEvent>
#include <QObject>
#include <functional>

namespace kev {

// One at a time in a process.
class TerminationWatch final : public QObject {
  Q_OBJECT

 public:
  explicit TerminationWatch(std::function<void()> onTermination, QObject* parent = nullptr);
  ~TerminationWatch() override;

  // The session's own way of ending a program: the desktop has it quit, and no signal comes.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> onTermination_;
  int readEnd_ = -1;
};

}  // namespace kev
