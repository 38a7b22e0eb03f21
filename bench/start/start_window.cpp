// SPDX-License-Identifier: MIT
// The program as it starts with a template, until the page of that template stands in its window. The home is
// the first argument, the template the second.
#include "start/designer_window.h"

#include "start/first_paint.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  int ownArguments = 1;
  kev::bench::FirstPaint application(ownArguments, argv);
  kev::bench::DesignerWindow program(application, argv);
  if (!program.Load()) return 1;
  application.Await(*program.Page().viewport(),
                    [&] { return !program.TheDesigner().DocumentPath().empty(); });
  program.Show();
  return QApplication::exec();
}
