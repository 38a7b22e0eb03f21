// SPDX-License-Identifier: MIT
// Programs that the designer starts: tools that it waits for, and those that it lets go.
#pragma once

#include <QObject>
#include <QProcess>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "base/host.h"

namespace kev {

class Processes final : public QObject {
  Q_OBJECT

 public:
  Processes() = default;
  // What still runs is killed.
  ~Processes() override;

  // Nothing when it can't be started. What it prints is thrown away. `ended` runs in a later event.
  std::optional<ProcessId> Start(const ProgramStart& start, std::function<void()> ended);
  // Outlives this program.
  static std::optional<ProcessId> StartDetached(const ProgramStart& start);
  // Handles events until the process has ended, or this program wants to end.
  void Wait(ProcessId process);

 private:
  void OnEnded(ProcessId id);

  struct Running {
    std::unique_ptr<QProcess> process;
    std::function<void()> ended;
  };
  std::map<ProcessId, Running> running_;
};

}  // namespace kev
