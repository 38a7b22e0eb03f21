// SPDX-License-Identifier: MIT
// The program as its own `main` builds it. The home is the first argument, the template the second.
#pragma once

#include <QApplication>
#include <optional>
#include <string>

#include "platform/app_style.h"
#include "platform/forms/kav_edit01.h"
#include "platform/qt_host.h"
#include "platform/qt_measurer.h"
#include "platform/ui_language.h"

namespace kev::bench {

class DesignerWindow {
 public:
  DesignerWindow(QApplication& application, char** argv)
      : application_(application),
        designer_(host_, measurer_,
                  {Variables(argv[1]), ExecutableFolder(), {argv[2]}, StartInput::LocalTime}) {
    ApplyStyle(application_);
  }

  // False where the program would end.
  bool Load() {
    if (!designer_.Load()) return false;
    ApplyUiLanguage(application_, designer_.Language());
    SetButtonCaptions(host_, designer_.Texts());
    window_.emplace(designer_, host_, fonts_, images_);
    return true;
  }
  void Show() { window_->show(); }
  Designer& TheDesigner() { return designer_; }
  PageCanvas& Page() { return *window_->findChild<PageCanvas*>(); }

 private:
  static Environment Variables(const std::string& home) {
    return [home](std::string_view name) -> std::optional<std::string> {
      if (name == "TEMP") return home + "/temp";
      if (name == "appdata") return home + "/data";
      return std::nullopt;
    };
  }

  QApplication& application_;
  QtHost host_;
  FontCache fonts_;
  ImageCache images_{{}};
  QtMeasurer measurer_{fonts_};
  Designer designer_;
  std::optional<KavEdit01> window_;
};

}  // namespace kev::bench
