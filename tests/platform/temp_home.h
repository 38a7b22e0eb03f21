// SPDX-License-Identifier: MIT
// The folders that the designer expects, fresh for one test.
#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "app/designer.h"

namespace kev {

class TempHome {
 public:
  TempHome() {
    for (const char* folder : {"temp/Kev/Cache", "temp/Kev/Temp", "data/Kev/temp", "work"}) {
      std::filesystem::create_directories(Path(folder));
    }
    ShowWelcome(false);
  }

  // Whether an empty document begins with the welcome screen.
  void ShowWelcome(bool shown) const {
    std::ofstream(Path("data/Kev/LASTRV.DAT")) << "SHOWWELCOME=" << (shown ? 1 : 0) << "\r\n";
  }

  std::string Path(std::string_view below) const {
    return dir_.path().toStdString() + "/" + std::string(below);
  }
  // A copy of an example that a test may change.
  std::string CopyOf(const std::string& example) const {
    const std::string copy = Path("work/" + example);
    std::filesystem::copy_file(std::string(KEV_EXAMPLES_DIR) + "/" + example, copy,
                               std::filesystem::copy_options::overwrite_existing);
    return copy;
  }
  StartInput Input(std::vector<std::string> arguments) const {
    return {[this](std::string_view name) -> std::optional<std::string> {
              if (name == "TEMP") return Path("temp");
              if (name == "appdata") return Path("data");
              return std::nullopt;
            },
            program_, std::move(arguments)};
  }
  // A folder "program" of its own, with nothing but the language file.
  void InstallProgram() {
    program_ = Path("program");
    std::filesystem::create_directory(program_);
    std::filesystem::copy_file(KEV_PROGRAM_DIR "/Kev.lng", program_ + "/Kev.lng");
  }

 private:
  QTemporaryDir dir_;
  std::string program_ = KEV_PROGRAM_DIR;
};

}  // namespace kev
