// SPDX-License-Identifier: MIT
// The program as it starts with a template, until the page of that template stands in its window. The home is
// the first argument, the template the second.
#include <QApplication>

#include "platform/app_style.h"
#include "platform/forms/kav_edit01.h"
#include "platform/qt_host.h"
#include "platform/qt_measurer.h"
#include "platform/ui_language.h"
#include "start/first_paint.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string home = argv[1], path = argv[2];
  int ownArguments = 1;
  QApplication application(ownArguments, argv);
  kev::ApplyStyle(application);
  kev::QtHost host;
  kev::FontCache fonts;
  kev::ImageCache images({});
  const kev::QtMeasurer measurer(fonts);
  const auto variables = [&home](std::string_view name) -> std::optional<std::string> {
    if (name == "TEMP") return home + "/temp";
    if (name == "appdata") return home + "/data";
    return std::nullopt;
  };
  kev::Designer designer(host, measurer,
                         {variables, kev::ExecutableFolder(), {path}, kev::StartInput::LocalTime});
  if (!designer.Load()) return 1;
  kev::ApplyUiLanguage(application, designer.Language());
  kev::SetButtonCaptions(host, designer.Texts());
  kev::KavEdit01 window(designer, host, fonts, images);
  const auto* page = window.findChild<kev::PageCanvas*>();
  const kev::bench::FirstPaint painted(*page->viewport(), [&] { return !designer.DocumentPath().empty(); });
  window.show();
  return QApplication::exec();
}
