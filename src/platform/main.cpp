// SPDX-License-Identifier: MIT
// The designer: one process, one window, one document.
#include <QApplication>
#include <array>
#include <csignal>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/command_line.h"
#include "app/designer.h"
#include "base/descriptor.h"
#include "base/process.h"
#include "platform/app_style.h"
#include "platform/forms/kav_edit01.h"
#include "platform/qt_host.h"
#include "platform/qt_measurer.h"
#include "platform/termination.h"
#include "platform/text_bridge.h"
#include "platform/ui_language.h"

namespace {

int RunDesigner(QApplication& application, const std::vector<std::string>& arguments) {
  kev::ApplyStyle(application);
  kev::QtHost host;
  kev::FontCache fonts;
  kev::ImageCache images({});
  const kev::QtMeasurer measurer(fonts);
  kev::Designer designer(host, measurer, {kev::ProcessEnvironment(), kev::ExecutableFolder(), arguments});
  if (!designer.Load()) return 1;
  kev::ApplyUiLanguage(application, designer.Language());
  kev::SetButtonCaptions(host, designer.Texts());
  kev::KavEdit01 window(designer, host, fonts, images);
  const kev::TerminationWatch termination([&window] { window.EndWithoutAsking(); });
  window.show();
  return QApplication::exec();
}

int TellAboutItself(std::string_view text) {
  std::cout << text;
  const int error = kev::FlushStandardOutput();
  if (error == 0) return 0;
  std::cerr << "kev: standard output: " << kev::FailureOfSystem({}, error).reason << '\n';
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  kev::PrepareProcess();
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const kev::CommandLineParts command = kev::ParseCommandLine(arguments);
  if (command.Help || command.Version)
    return TellAboutItself(command.Help ? kev::HelpText() : kev::VersionText());
  // Whoever reads the warnings of the window system may be gone before the work is.
  kev::OutliveSignal(SIGPIPE);
  // The window system gets the program's name alone: every argument is part of the template's path.
  int ownArguments = 1;
  std::array<char*, 2> ownNames = {argv[0], nullptr};
  QApplication application(ownArguments, ownNames.data());
  QApplication::setApplicationName(QStringLiteral("kev"));
  QApplication::setApplicationVersion(QStringLiteral(KEV_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("kev"));
  return RunDesigner(application, arguments);
}
