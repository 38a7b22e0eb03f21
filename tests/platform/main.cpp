// SPDX-License-Identifier: MIT
// Runs the window's tests in an application that needs no display.
#include <gmock/gmock.h>

#include <QApplication>
#include <QStandardPaths>
#include <QtGlobal>
#include <iostream>

namespace {

// The offscreen platform says of every window that it knows no size hints.
void DropPlatformNoise(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (text.contains(QLatin1String("propagateSizeHints"))) return;
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
