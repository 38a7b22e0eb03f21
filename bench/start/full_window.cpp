// SPDX-License-Identifier: MIT
// The program at work on one template, until its undo store is full and the page was seen at 200 %. Prints
// the kilobytes of the process at their most, and those of a bitmap of the whole canvas. The home is the
// first argument, the template the second.
#include <QScrollBar>
#include <iostream>

#include "start/designer_window.h"
#include "support/memory.h"
#include "surface/undo.h"

namespace {

constexpr int kPagesSeen = 20;

void Settle(const kev::PageCanvas& page) {
  QCoreApplication::processEvents();
  while (!page.IsPaintedAhead())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Another label with each change, so that no level is like another.
void FillUndo(kev::Designer& designer) {
  const kev::ObjectTable& objects = std::as_const(designer).OpenDocument().Objects;
  int changes = 2 * kev::UndoStore::kLastLevel;
  for (int row = objects.LastScanned(); row > 0 && changes > 0; --row) {
    if (objects[row].Kind != kev::ObjectKind::Label) continue;
    designer.Surface().GoToObject(row);
    designer.Sheets().Edited(1, "Subtotal");
    QCoreApplication::processEvents();
    --changes;
  }
}

void SeePage(const kev::PageCanvas& page) {
  QScrollBar& bar = *page.verticalScrollBar();
  for (int seen = 0; seen <= kPagesSeen; ++seen) {
    bar.setValue(bar.maximum() / kPagesSeen * seen);
    Settle(page);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  int ownArguments = 1;
  QApplication application(ownArguments, argv);
  kev::bench::DesignerWindow program(application, argv);
  if (!program.Load()) return 1;
  program.Show();
  kev::Designer& designer = program.TheDesigner();
  while (designer.DocumentPath().empty())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  designer.SetZoom("200");
  FillUndo(designer);
  SeePage(program.Page());
  const QSizeF pixels = program.Page().ListSize() / kev::kUnitsPerPixel;
  std::cout << kev::bench::StatusOf("VmHWM:") << ' ' << pixels.width() * pixels.height() * 4 / 1024 << '\n';
  return 0;
}
