// SPDX-License-Identifier: MIT
#include "platform/forms/progress_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QTest>

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

}  // namespace
}  // namespace kev
