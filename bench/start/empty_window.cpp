// SPDX-License-Identifier: MIT
// The least that a program with a window of that size can do.
#include <QApplication>

#include "start/first_paint.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  const kev::bench::FirstPaint painted(window, [] { return true; });
  window.resize(1180, 814);
  window.show();
  return QApplication::exec();
}
