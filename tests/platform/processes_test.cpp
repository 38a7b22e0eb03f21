// SPDX-License-Identifier: MIT
#include "platform/processes.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <iterator>

#include "platform/qt_host.h"

namespace kev {
namespace {

class ProcessesTest : public testing::Test {
 protected:
  static ProgramStart Shell(const std::string& script, std::vector<std::string> more = {}) {
    std::vector<std::string> arguments = {"-c", script, "sh"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return {"/bin/sh", arguments};
  }
  std::string File(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }
  bool There(const std::string& name) const { return QFile::exists(QString::fromStdString(File(name))); }
  std::string Read(const std::string& name) const {
    std::ifstream stream(File(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::optional<ProcessId> Start(const ProgramStart& start) {
    return processes_.Start(start, [this] { ++ended_; });
  }

  QTemporaryDir folder_;
  Processes processes_;
  int ended_ = 0;
};

TEST_F(ProcessesTest, ArgumentsArriveOneByOneAsTheyStand) {
  const std::vector<std::string> hostile = {"-x",
                                            "",
                                            "a b",
                                            "\"quoted\"",
                                            "it's",
                                            "$(touch " + File("no") + ")",
                                            ";|&<>*?",
                                            "line\nline",
                                            "\\",
                                            "\xC3\xA9\xE2\x82\xAC",
                                            std::string(2000, 'x')};
  ProgramStart start = Shell("for a; do printf '%s\\0' \"$a\"; done > \"$0\"");
  start.Arguments[2] = File("out");
  start.Arguments.insert(start.Arguments.end(), hostile.begin(), hostile.end());
  const auto id = Start(start);
  ASSERT_TRUE(id);
  processes_.Wait(*id);
  std::string wanted;
  for (const std::string& argument : hostile)
    wanted += argument + '\0';
  EXPECT_EQ(Read("out"), wanted);
  EXPECT_FALSE(There("no"));
}

TEST_F(ProcessesTest, EndIsToldOnceAndNeverBeforeTheStartReturned) {
  for (const char* script : {"exit 0", "exit 3", "kill -SEGV $$", "kill -KILL $$"}) {
    ended_ = 0;
    const auto id = Start(Shell(script));
    ASSERT_TRUE(id);
    EXPECT_EQ(ended_, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return ended_ > 0; })) << script;
    QTest::qWait(30);
    EXPECT_EQ(ended_, 1) << script;
  }
}

TEST_F(ProcessesTest, AProgramThatHasEndedBeforeAnyEventIsToldAll) {
  const auto id = Start(Shell("touch " + File("done")));
  ASSERT_TRUE(id);
  QElapsedTimer timer;
  timer.start();
  while (!There("done") && timer.elapsed() < 5000)
    QTest::qSleep(5);
  QTest::qSleep(50);
  EXPECT_EQ(ended_, 0);
  processes_.Wait(*id);
  EXPECT_EQ(ended_, 1);
}

TEST_F(ProcessesTest, WaitReturnsBehindTheEndAndAtOnceForWhatIsNotKnown) {
  const auto id = Start(Shell("sleep 0.2; touch " + File("done")));
  ASSERT_TRUE(id);
  processes_.Wait(*id);
  EXPECT_TRUE(There("done"));
  EXPECT_EQ(ended_, 1);
  processes_.Wait(*id);
  processes_.Wait(-1);
  processes_.Wait(123456789);
  EXPECT_EQ(ended_, 1);
}

TEST_F(ProcessesTest, AMissingProgramIsNotStartedAndTellsNothing) {
  EXPECT_FALSE(Start({File("missing"), {}}));
  EXPECT_FALSE(Start({"no-such-program-anywhere", {}}));
  EXPECT_FALSE(Start({folder_.path().toStdString(), {}}));
  std::ofstream(File("plain")) << "no program";
  EXPECT_FALSE(Start({File("plain"), {}}));
  EXPECT_FALSE(Start(Shell("exit 0", {std::string(300 * 1024, 'x')}))) << "longer than the system takes";
  QTest::qWait(50);
  EXPECT_EQ(ended_, 0);
}

TEST_F(ProcessesTest, MegabytesOfOutputHoldNothingUp) {
  const auto id = Start(Shell("head -c 20000000 /dev/zero; head -c 20000000 /dev/zero >&2; cat"));
  ASSERT_TRUE(id);
  processes_.Wait(*id);
  EXPECT_EQ(ended_, 1);
}

TEST_F(ProcessesTest, EventsAreHandledDuringAWait) {
  const auto id = Start(Shell("sleep 0.6"));
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
  timer.start(10);
  EXPECT_FALSE(processes_.Waiting());
  QTimer::singleShot(50, &timer, [this] { EXPECT_TRUE(processes_.Waiting()); });
  processes_.Wait(*id);
  EXPECT_FALSE(processes_.Waiting());
  EXPECT_GE(ticks, 20);
}

TEST_F(ProcessesTest, ManyRunAtOnceAndAreToldEach) {
  std::vector<ProcessId> ids;
  for (int i = 0; i < 30; ++i)
    ids.push_back(*Start(Shell("exit 0")));
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::unique(ids.begin(), ids.end()), ids.end());
  for (const ProcessId id : ids)
    processes_.Wait(id);
  EXPECT_EQ(ended_, 30);
}

TEST_F(ProcessesTest, WaitsMayBeNestedInEitherOrder) {
  for (const bool outerFirst : {true, false}) {
    ended_ = 0;
    const auto outer = Start(Shell(outerFirst ? "sleep 0.1" : "sleep 0.4"));
    const auto inner = Start(Shell(outerFirst ? "sleep 0.4" : "sleep 0.1"));
    int over = 0;
    QObject context;
    QObject::connect(&processes_, &Processes::WaitsEnded, &context, [&over] { ++over; });
    QTimer::singleShot(10, &context, [&] {
      processes_.Wait(*inner);
      EXPECT_GE(ended_, 1);
      EXPECT_EQ(over, 0);
    });
    processes_.Wait(*outer);
    EXPECT_EQ(ended_, 2);
    EXPECT_EQ(over, 1);
  }
}

TEST_F(ProcessesTest, TheEndMayStartAndWaitForAnother) {
  int second = 0;
  const auto id = processes_.Start(Shell("exit 0"), [&] {
    const auto next = processes_.Start(Shell("exit 0"), [&second] { ++second; });
    processes_.Wait(*next);
    ++ended_;
  });
  processes_.Wait(*id);
  EXPECT_EQ(second, 1);
  EXPECT_EQ(ended_, 1);
}

TEST_F(ProcessesTest, AWaitEndsWhereTheProgramIsToEnd) {
  for (const int milliseconds : {0, 30, 400}) {
    const auto id = Start(Shell("exec sleep 60"));
    ASSERT_TRUE(id);
    bool returned = false;
    // The end of a loop that was never begun would end the loops of later tests.
    QTimer::singleShot(0, qApp, [&] {
      QTimer::singleShot(milliseconds, qApp, [] { QCoreApplication::exit(7); });
      processes_.Wait(*id);
      returned = true;
    });
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(QCoreApplication::exec(), 7);
    EXPECT_TRUE(returned);
    EXPECT_LT(timer.elapsed(), 10000);
  }
  EXPECT_EQ(ended_, 0);
}

TEST_F(ProcessesTest, AStoppedProgramEndsTheWaitAndIsToldNoMore) {
  const auto id = Start(Shell("exec sleep 60"));
  QTimer::singleShot(50, qApp, [&] { processes_.Stop(*id); });
  QElapsedTimer timer;
  timer.start();
  processes_.Wait(*id);
  EXPECT_LT(timer.elapsed(), 10000);
  QTest::qWait(50);
  EXPECT_EQ(ended_, 0);
  processes_.Stop(*id);
  processes_.Stop(-1);
}

TEST_F(ProcessesTest, WhatIsWaitedForCanBeKilledAndIsTold) {
  const auto other = Start(Shell("exec sleep 60"));
  const auto id = Start(Shell("exec sleep 60"));
  QElapsedTimer timer;
  timer.start();
  QTimer::singleShot(100, &processes_, [this] { processes_.KillWaitedFor(); });
  processes_.Wait(*id);
  EXPECT_LT(timer.elapsed(), 20000);
  EXPECT_EQ(ended_, 1) << "the other one goes on";
  EXPECT_FALSE(processes_.Waiting());
  processes_.KillWaitedFor();
  QTest::qWait(50);
  EXPECT_EQ(ended_, 1);
  processes_.Stop(*other);
}

TEST_F(ProcessesTest, WhatStillRunsIsKilledAtTheEndAndTellsNothing) {
  {
    Processes processes;
    ASSERT_TRUE(processes.Start(Shell("sleep 0.5; touch " + File("late")), [this] { ++ended_; }));
    ASSERT_TRUE(processes.Start(Shell("exit 0"), [this] { ++ended_; }));
    QTest::qSleep(100);
  }
  QTest::qWait(700);
  EXPECT_EQ(ended_, 0);
  EXPECT_FALSE(There("late"));
}

TEST_F(ProcessesTest, DetachedProgramsOutliveUsAndCantBeWaitedFor) {
  std::optional<ProcessId> id;
  {
    Processes processes;
    id = processes.StartDetached(Shell("sleep 0.3; touch " + File("late")));
    ASSERT_TRUE(id);
    processes.Wait(*id);
    EXPECT_FALSE(There("late"));
    EXPECT_FALSE(processes.StartDetached({File("missing"), {}}));
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return There("late"); }));
}

TEST_F(ProcessesTest, TheHostTellsWhatItStartedAndForgetsTheRest) {
  QtHost host;
  int told = 0;
  const auto id = host.StartProgram(Shell("exit 0"), [&told] { ++told; });
  ASSERT_TRUE(id);
  host.WaitForProcess(*id);
  EXPECT_EQ(told, 1);
  ASSERT_TRUE(host.StartProgram(Shell("touch " + File("free")), {}));
  EXPECT_TRUE(QTest::qWaitFor([this] { return There("free"); }));
  const auto hanging = host.StartProgram(Shell("exec sleep 60"), [&told] { ++told; });
  QTimer::singleShot(20, qApp, [&] { EXPECT_TRUE(host.Waiting()); });
  QTimer::singleShot(100, qApp, [&] { host.StopProgram(*hanging); });
  host.WaitForProcess(*hanging);
  EXPECT_FALSE(host.Waiting());
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace kev
