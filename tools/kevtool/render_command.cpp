// SPDX-License-Identifier: MIT
#include "platform/render.h"

#include <QGuiApplication>
#include <iostream>

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

}  // namespace

int Render(const RenderChoice& choice) {
  std::optional<ReadOutcome> outcome = Open(choice.in).Outcome;
  if (!outcome) return kRefused;
  // No display is needed, whatever the environment says.
  qInstallMessageHandler(OnlyErrors);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  char name[] = "kevtool";
  char* arguments[] = {name, nullptr};
  const QGuiApplication application(count, arguments);
  RenderOptions options;
  options.ZoomFactor = choice.zoom / 100;
  options.scale = choice.scale;
  options.filter = FilterOf(choice.filter);
  options.grid = choice.grid;
  options.folders.ProgramFolder = QGuiApplication::applicationDirPath().toStdString();
  options.TemplateFolder = FolderOf(AbsolutePath(choice.in));
  RenderQrPictures codes(options.folders.ProgramFolder, *outcome->Read.Page);
  options.images.TempFolder = codes.Folder();
  options.pictures.Qr = &codes;
  BarcodeState bars;
  options.bars = &bars;
  if (const auto reason = RenderToFile(outcome->Read, options, choice.out)) {
    std::cerr << choice.out << ": " << *reason << '\n';
    return kRefused;
  }
  for (const int row : codes.Failed())
    std::cerr << choice.in << ": the QR code of object " << row << " could not be made and is not shown\n";
  TellStopped(choice.in, outcome->Read, bars);
  return kGood;
}

}  // namespace kev::tool
