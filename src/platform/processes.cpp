// SPDX-License-Identifier: MIT
#include "platform/processes.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <utility>

#include "platform/text_bridge.h"

namespace kev {

namespace {

constexpr int kWaitSlice = 100;  // milliseconds
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

}  // namespace

Processes::~Processes() {
  for (auto& [id, running] : running_) {
    running.process->disconnect(this);
    running.process->kill();
    running.process->waitForFinished();
  }
}

std::optional<ProcessId> Processes::Start(const ProgramStart& start, std::function<void()> ended) {
  auto process = std::make_unique<QProcess>();
  ThrowAwayOutput(*process);
  process->start(FromNative(start.Program), ArgumentsOf(start), QIODevice::NotOpen);
  if (!process->waitForStarted(kStartLimit)) return std::nullopt;
  const ProcessId id = process->processId();
  connect(
      process.get(), &QProcess::finished, this, [this, id] { OnEnded(id); }, Qt::QueuedConnection);
  const bool over = process->state() == QProcess::NotRunning;
  running_.insert_or_assign(id, Running{std::move(process), std::move(ended)});
  if (over) QTimer::singleShot(0, this, [this, id] { OnEnded(id); });
  return id;
}

std::optional<ProcessId> Processes::StartDetached(const ProgramStart& start) {
  QProcess process;
  ThrowAwayOutput(process);
  process.setProgram(FromNative(start.Program));
  process.setArguments(ArgumentsOf(start));
  qint64 id = 0;
  return process.startDetached(&id) ? std::optional<ProcessId>(id) : std::nullopt;
}

void Processes::Wait(ProcessId process) {
  while (running_.contains(process) && !QCoreApplication::closingDown()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, kWaitSlice);
  }
}

void Processes::OnEnded(ProcessId id) {
  auto node = running_.extract(id);
  if (node.empty()) return;
  // Deleted behind this event, which may be one of its own.
  node.mapped().process.release()->deleteLater();
  node.mapped().ended();
}

}  // namespace kev
