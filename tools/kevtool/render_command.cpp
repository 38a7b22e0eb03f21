// SPDX-License-Identifier: MIT
#include "platform/render.h"

#include <QGuiApplication>
#include <filesystem>
#include <iostream>
#include <set>

#include "base/files.h"
#include "commands.h"
#include "render_qr_pictures.h"

namespace kev::tool {
namespace {

DisplayFilter FilterOf(const std::string& name) {
  if (name == "ebeu") return DisplayFilter::Ebeu;
  return name == "print" ? DisplayFilter::Print : DisplayFilter::All;
}

// Standard error is for reasons why a command failed; hints of the toolkit about the session are none.
void OnlyErrors(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << "kevtool: " << message.toStdString() << '\n';
}

bool RenderOne(const RenderChoice& choice, const std::string& in, const std::string& out) {
  std::optional<ReadOutcome> outcome = Open(in).Outcome;
  if (!outcome) return false;
  RenderOptions options;
  options.ZoomFactor = choice.zoom / 100;
  options.scale = choice.scale;
  options.filter = FilterOf(choice.filter);
  options.grid = choice.grid;
  options.folders.ProgramFolder = QGuiApplication::applicationDirPath().toStdString();
  options.TemplateFolder = FolderOf(AbsolutePath(in));
  RenderQrPictures codes(options.folders.ProgramFolder, *outcome->Read.Page);
  options.images.TempFolder = codes.Folder();
  options.pictures.Qr = &codes;
  BarcodeState bars;
  options.bars = &bars;
  if (const auto reason = RenderToFile(outcome->Read, options, out)) {
    std::cerr << out << ": " << *reason << '\n';
    return false;
  }
  for (const int row : codes.Failed())
    std::cerr << in << ": the QR code of object " << row << " could not be made and is not shown\n";
  TellStopped(in, outcome->Read, bars);
  return true;
}

// Two templates of one name, from two folders, would silently share a picture.
bool RenderAll(const RenderChoice& choice) {
  std::set<std::string> written;
  bool good = true;
  for (const std::string& in : choice.files) {
    const std::filesystem::path name = std::filesystem::path(in).stem().string() + "." + choice.format;
    const std::string out = (std::filesystem::path(choice.outFolder) / name).string();
    if (written.insert(out).second) {
      good = RenderOne(choice, in, out) && good;
    } else {
      std::cerr << in << ": " << out << " is the picture of another template\n";
      good = false;
    }
  }
  return good;
}

}  // namespace

int Render(const RenderChoice& choice) {
  // No display is needed, whatever the environment says.
  qInstallMessageHandler(OnlyErrors);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  char name[] = "kevtool";
  char* arguments[] = {name, nullptr};
  const QGuiApplication application(count, arguments);
  const bool good =
      choice.outFolder.empty() ? RenderOne(choice, choice.files[0], choice.files[1]) : RenderAll(choice);
  return good ? kGood : kRefused;
}

}  // namespace kev::tool
