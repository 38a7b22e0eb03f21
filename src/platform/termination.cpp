// SPDX-License-Identifier: MIT
#include "platform/termination.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>

namespace kev {

namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// A signal handler is given nothing, so what it writes to has to stand here.
volatile std::sig_atomic_t writeEnd = -1;

void TellLoop(int /*signal*/) {
  const char byte = 1;
  // A full pipe holds a message already.
  [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
}

}  // namespace

TerminationWatch::TerminationWatch(std::function<void()> onTermination, QObject* parent)
    : QObject(parent), onTermination_(std::move(onTermination)) {
  QCoreApplication::instance()->installEventFilter(this);
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  readEnd_ = ends[0];
  writeEnd = ends[1];
  auto* notifier = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] {
    std::array<char, 16> bytes{};
    while (read(readEnd_, bytes.data(), bytes.size()) > 0) {
    }
    onTermination_();
  });
  for (const int signal : kSignals)
    std::signal(signal, TellLoop);
}

bool TerminationWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Quit || watched != QCoreApplication::instance()) return false;
  onTermination_();
  return true;
}

TerminationWatch::~TerminationWatch() {
  if (readEnd_ < 0) return;
  for (const int signal : kSignals)
    std::signal(signal, SIG_DFL);
  close(readEnd_);
  close(static_cast<int>(writeEnd));
  writeEnd = -1;
}

}  // namespace kev
