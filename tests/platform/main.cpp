// SPDX-License-Identifier: MIT
// Runs the window's tests in an application that needs no display.
#include <gmock/gmock.h>

#include <QApplication>
#include <QStandardPaths>
#include <QtGlobal>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
