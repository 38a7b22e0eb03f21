// SPDX-License-Identifier: MIT
// The least that a program with a window of that size can do.
#include "start/first_paint.h"

int main(int argc, char** argv) {
  kev::bench::FirstPaint application(argc, argv);
  QWidget window;
  application.Await(window, [] { return true; });
  window.resize(1180, 814);
  window.show();
  return QApplication::exec();
}
