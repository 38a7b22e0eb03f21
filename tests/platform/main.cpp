// SPDX-License-Identifier: MIT
// Runs the window's tests in an application that needs no display.
#include <gmock/gmock.h>

#include <QApplication>
#include <QStandardPaths>
#include <QtGlobal>
#include <iostream>

namespace {

// The offscreen platform tells of each thing that it does not do.
void DropPlatformNoise(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  std::cerr << qFormatLogMessage(type, context, text).toStdString() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(DropPlatformNoise);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
