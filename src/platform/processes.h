// SPDX-License-Identifier: MIT
// Programs that the designer starts: tools that it waits for, and those that it lets go.
#pragma once

#include <QObject>
#include <QProcess>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "base/host.h"

namespace kev {

class Processes final : public QObject {
  Q_OBJECT

 public:
  Processes() = default;
  // What still runs is killed, and told to nobody.
  ~Processes() override;

  // Nothing when it can't be started. What it prints is thrown away. `ended` runs once, in a later event.
  std::optional<ProcessId> Start(const ProgramStart& start, std::function<void()> ended);
  // Outlives this program; nobody can wait for it.
  std::optional<ProcessId> StartDetached(const ProgramStart& start);
  // Handles events until the process has ended and that was told, or this program wants to end. What the user
  // does is held back for a moment, so that with a quick program nothing overtakes the event that waits.
  void Wait(ProcessId process);
  // Kills it; its `ended` is not called.
  void Stop(ProcessId process);

  bool Waiting() const { return !waitedFor_.empty(); }
  // Kills what is waited for, which then ends as if by itself: its `ended` is called and the wait returns.
  void KillWaitedFor();

 Q_SIGNALS:
  void Ended(qint64 process);
  // The outermost wait is over.
  void WaitsEnded();

 private:
  void OnEnded(ProcessId id);

  struct Running {
    std::unique_ptr<QProcess> process;
    std::function<void()> ended;
  };
  std::map<ProcessId, Running> running_;
  // Numbers of our own: the system gives those of ended processes to others.
  ProcessId last_ = 0;
  std::vector<ProcessId> waitedFor_;  // the innermost wait last
};

}  // namespace kev
