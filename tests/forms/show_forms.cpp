// SPDX-License-Identifier: MIT
// Shows every form of the program, one after the other, to a client outside of the process: writes the name
// of the form that stands on the screen, and goes on when a line is given: show_forms [LANGUAGE]
#include <QApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <iostream>
#include <string>

#include <unistd.h>

#include "forms/form_walk.h"
#include "platform/ui_language.h"

namespace {

void WaitForLine() {
  QEventLoop loop;
  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
  loop.exec();
  std::string line;
  std::getline(std::cin, line);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("show_forms"));
  QApplication::setQuitOnLastWindowClosed(false);
  const char language = argc > 1 ? argv[1][0] : 'E';
  kev::ApplyUiLanguage(application, language);
  kev::test::FormWalk walk(language);
  walk.Run([](const std::string& name, QWidget& form) {
    std::cout << name << '\t' << form.windowTitle().toStdString() << std::endl;
    WaitForLine();
  });
  for (const std::string& form : walk.Missed())
    std::cerr << "this form did not come: " << form << '\n';
  return walk.Missed().empty() ? 0 : 1;
}
