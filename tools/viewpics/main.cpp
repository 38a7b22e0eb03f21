// SPDX-License-Identifier: MIT
// viewpics: shows a picture in a window.
#include <QApplication>
#include <QMessageBox>
#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/folders.h"
#include "app/language.h"
#include "base/files.h"
#include "base/text_numbers.h"
#include "picture_window.h"
#include "platform/app_style.h"
#include "platform/text_bridge.h"

namespace {

constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

constexpr std::string_view kUsage =
    "Usage: viewpics PICTURE\n"
    "Shows the picture in a window, made smaller where it would not fit. Escape closes the window.\n"
    "\n"
    "  --help        show this text, where it is the only argument\n"
    "\n"
    "Exit status: 0 the picture was shown, 1 it is missing or can't be read, 2 wrong usage.\n";

// The words of the designer that lies beside it; English where it has none.
std::string TextOf(int number, std::string_view english) {
  kev::DesignerFolders folders = kev::FindFolders(kev::ProcessEnvironment(), kev::ExecutableFolder());
  const auto texts =
      kev::LoadLanguage(kev::InProgramFolder(folders, "\\Kev.lng"), kev::FindActiveLanguage(folders));
  const std::string text = texts ? texts->Text(number) : std::string();
  return text.empty() ? std::string(english) : text;
}

int Refuse(const std::string& path) {
  const bool there = kev::FileExists(path);
  const std::string text =
      there ? TextOf(kev::kTextPictureUnreadable, "This file cannot be shown as a picture.")
            : TextOf(kev::kTextFileMissing, "The file does not exist.");
  const QString whole = kev::WithDetail(text, path);
  std::cerr << "viewpics: " << whole.toStdString() << '\n';
  QMessageBox box(QMessageBox::Critical, kev::FromNative(kev::FileNameOf(path)), whole);
  box.setTextFormat(Qt::PlainText);
  box.exec();
  return kRefused;
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> list(words + 1, words + std::max(count, 1));
  if (list.size() == 1 && list[0] == "--help") {
    std::cout << kUsage;
    return 0;
  }
  if (list.size() != 1) {
    std::cerr << kUsage;
    return kWrongUsage;
  }
  // The window system gets the program's name alone: the argument is a path, whatever it begins with.
  int ownCount = 1;
  char* ownWords[] = {words[0], nullptr};
  QApplication application(ownCount, ownWords);
  QApplication::setApplicationName(QStringLiteral("viewpics"));
  kev::ApplyStyle(application);
  kev::ImageCache images([](std::string_view file) { return std::string(file); });
  if (images.SizeOf(list[0]).isEmpty()) return Refuse(list[0]);
  kev::tool::PictureWindow window(images, list[0]);
  window.show();
  return QApplication::exec();
}
