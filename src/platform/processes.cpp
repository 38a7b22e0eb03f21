// SPDX-License-Identifier: MIT
#include "platform/processes.h"

#include <QEventLoop>
#include <QTimer>
#include <utility>

#include "platform/text_bridge.h"

namespace kev {

namespace {

// Milliseconds
constexpr int kQuietStart = 250;
constexpr int kStartLimit = 5000;

QStringList ArgumentsOf(const ProgramStart& start) {
  QStringList list;
  for (const std::string& argument : start.Arguments)
    list << FromNative(argument);
  return list;
}

void ThrowAwayOutput(QProcess& process) {
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
}

void Kill(QProcess& process) {
  process.kill();
  process.waitForFinished();
}

}  // namespace

Processes::~Processes() {
  for (auto& [id, running] : running_) {
    running.process->disconnect(this);
    Kill(*running.process);
  }
}

std::optional<ProcessId> Processes::Start(const ProgramStart& start, std::function<void()> ended) {
  auto process = std::make_unique<QProcess>();
  ThrowAwayOutput(*process);
  const ProcessId id = ++last_;
  // Before the start, since it may have ended when that returns; queued, since it must be told later.
  connect(
      process.get(), &QProcess::finished, this, [this, id] { OnEnded(id); }, Qt::QueuedConnection);
  process->start(FromNative(start.Program), ArgumentsOf(start), QIODevice::ReadOnly);
  if (!process->waitForStarted(kStartLimit)) {
    Kill(*process);
    return std::nullopt;
  }
  running_.emplace(id, Running{std::move(process), std::move(ended)});
  return id;
}

std::optional<ProcessId> Processes::StartDetached(const ProgramStart& start) {
  QProcess process;
  ThrowAwayOutput(process);
  process.setProgram(FromNative(start.Program));
  process.setArguments(ArgumentsOf(start));
  return process.startDetached() ? std::optional<ProcessId>(++last_) : std::nullopt;
}

void Processes::Wait(ProcessId process) {
  if (!running_.contains(process)) return;
  waitedFor_.push_back(process);
  QEventLoop loop;
  connect(this, &Processes::Ended, &loop, [&loop, process](qint64 ended) {
    if (ended == process) loop.quit();
  });
  QTimer::singleShot(kQuietStart, &loop, &QEventLoop::quit);
  // Both return at once where the program is to end.
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (running_.contains(process)) loop.exec();
  waitedFor_.pop_back();
  if (!Waiting()) Q_EMIT WaitsEnded();
}

void Processes::KillWaitedFor() {
  for (const ProcessId process : waitedFor_)
    if (const auto running = running_.find(process); running != running_.end())
      running->second.process->kill();
}

void Processes::Stop(ProcessId process) {
  auto node = running_.extract(process);
  if (node.empty()) return;
  node.mapped().process->disconnect(this);
  Kill(*node.mapped().process);
  Q_EMIT Ended(process);
}

void Processes::OnEnded(ProcessId id) {
  auto node = running_.extract(id);
  if (node.empty()) return;
  // Deleted behind this event, which may be one of its own.
  node.mapped().process.release()->deleteLater();
  node.mapped().ended();
  Q_EMIT Ended(id);
}

}  // namespace kev
