// SPDX-License-Identifier: MIT
#include "platform/forms/progress_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "platform/print_qt.h"

namespace kev {
namespace {

class ProgressWindowTest : public testing::Test {
 protected:
  ProgressWindowTest() {
    window.resize(600, 400);
    window.show();
  }

  QWidget window;
  ProgressWindow progress{&window};
};

TEST_F(ProgressWindowTest, QuickWorkShowsNothing) {
  progress.Begin(QStringLiteral("Reading"), 10);
  for (int line = 1; line <= 10; ++line)
    progress.Step(line, QStringLiteral("Reading"));
  EXPECT_FALSE(progress.isVisible());
  progress.End();
  EXPECT_FALSE(progress.isVisible());
}

TEST_F(ProgressWindowTest, LongWorkShowsHowFarItIsAndThenGoes) {
  progress.Begin(QStringLiteral("Reading"), 10);
  EXPECT_FALSE(progress.isVisible());
  QTest::qSleep(ProgressWindow::kQuietMilliseconds + 10);
  progress.Step(4, QStringLiteral("Reading more"));
  EXPECT_TRUE(progress.isVisible());
  EXPECT_EQ(progress.findChild<QProgressBar*>()->value(), 4);
  EXPECT_EQ(progress.findChild<QProgressBar*>()->maximum(), 10);
  EXPECT_EQ(progress.findChild<QLabel*>()->text(), QStringLiteral("Reading more"));
  progress.End();
  EXPECT_FALSE(progress.isVisible());
}

TEST_F(ProgressWindowTest, AStepBehindTheEndDoesNotBringItBack) {
  progress.Begin(QStringLiteral("Reading"), 10);
  progress.End();
  QTest::qSleep(ProgressWindow::kQuietMilliseconds + 10);
  progress.Step(5, QString());
  EXPECT_FALSE(progress.isVisible());
}

TEST_F(ProgressWindowTest, WorkOfUnknownLengthIsAccepted) {
  progress.Begin(QStringLiteral("Reading"), 0);
  EXPECT_EQ(progress.findChild<QProgressBar*>()->maximum(), 1);
}

class StoppableProgress : public ProgressWindowTest {
 protected:
  StoppableProgress() {
    other.setGeometry(10, 10, 80, 30);
    other.show();
    progress.SetStopCaption(QStringLiteral("Stop"));
    progress.Begin(QStringLiteral("Reading"), 100);
    progress.OfferStop();
    QTest::qSleep(ProgressWindow::kQuietMilliseconds + 10);
    progress.Step(1, QString());
  }
  // Something happens in the window while the work goes on for a while.
  template <typename Press>
  void WorkWhile(Press press) {
    QTimer::singleShot(0, &window, press);
    for (int step = 2; step < 6; ++step) {
      QTest::qSleep(50);
      progress.Step(step, QString());
    }
  }
  QPushButton& Stop() { return *progress.findChild<QPushButton*>(QStringLiteral("progressstop")); }

  QPushButton other{&window};
  QSignalSpy stops{&progress, &ProgressWindow::StopWanted};
  QSignalSpy others{&other, &QPushButton::clicked};
};

TEST_F(StoppableProgress, TheButtonCanBePressedWhileWorkRuns) {
  EXPECT_TRUE(Stop().isVisible());
  EXPECT_EQ(Stop().text(), QStringLiteral("Stop"));
  WorkWhile([this] { QTest::mouseClick(&Stop(), Qt::LeftButton); });
  EXPECT_EQ(stops.count(), 1);
  EXPECT_FALSE(Stop().isEnabled());
}

TEST_F(StoppableProgress, EscapePressesIt) {
  WorkWhile([this] { QTest::keyClick(window.windowHandle(), Qt::Key_Escape); });
  EXPECT_EQ(stops.count(), 1);
}

TEST_F(StoppableProgress, NothingElseGetsThrough) {
  other.setFocus();
  other.setShortcut(Qt::Key_F7);
  WorkWhile([this] {
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, other.geometry().center());
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    QTest::keyClick(window.windowHandle(), Qt::Key_F7);
  });
  EXPECT_EQ(others.count(), 0);
  EXPECT_EQ(stops.count(), 0);
  progress.End();
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, other.geometry().center());
  EXPECT_EQ(others.count(), 1);
}

TEST_F(StoppableProgress, AWindowThatIsAskedToCloseClosesBehindTheWork) {
  WorkWhile([this] { window.windowHandle()->close(); });
  EXPECT_TRUE(window.isVisible());
  progress.End();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }));
}

TEST_F(StoppableProgress, WorkThatCannotBeStoppedShowsNoButton) {
  progress.End();
  progress.Begin(QStringLiteral("Reading"), 10);
  QTest::qSleep(ProgressWindow::kQuietMilliseconds + 10);
  progress.Step(1, QString());
  EXPECT_TRUE(progress.isVisible());
  EXPECT_FALSE(Stop().isVisible());
}

}  // namespace
}  // namespace kev
