// SPDX-License-Identifier: MIT
// Painting the table: every shown row in the sorted order, top to bottom, left to right, by row. Painting the
// same rows always gives the same operations. Nothing here reports an error to the user: what cannot be
// painted is left out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "barcode/painters.h"
#include "document/document.h"
#include "document/sort_keys.h"
#include "document/text_measurer.h"
#include "surface/object_area.h"
#include "surface/surface_ops.h"

namespace kev {

// `seeall`, `see_ebeu`, `see_printnoprint`: everything, what the end user may modify, what is printed.
enum class DisplayFilter : std::uint8_t { All, Ebeu, Print };

// Bands pass every filter. A row that does not pass is neither painted nor selectable.
bool PassesFilter(const ObjectRecord& record, DisplayFilter filter);

// What the names of the images of this run are made of.
struct WorkImages {
  std::string TempFolder;
  int SessionNumber = 0;
};
std::string QrImageName(const WorkImages& images, int row, std::int32_t y);
std::string ChartImageName(const WorkImages& images, int row);

// The images of QR codes and of charts are made beside the painting and lie in files. Whether the image of a
// row may be painted from `file` (as its PictureFile names it). Where it has to be made first, that is begun,
// and the page is painted again once it is there. Who has none to give paints a frame with a caption instead.
class QrPictures {
 public:
  virtual ~QrPictures() = default;
  virtual bool IsReady(int row, const ObjectRecord& record, const std::string& file) = 0;
  // Makes the image now and returns when that is done, whether or not it could be. Events are handled
  // meanwhile, so that the document may be another one behind the call.
  virtual void Make(int /*row*/, const ObjectRecord& /*record*/, const std::string& /*file*/) {}
};
class ChartPictures {
 public:
  virtual ~ChartPictures() = default;
  virtual bool IsReady(int row, const ObjectRecord& record, const std::string& file, double zoom) = 0;
};
struct MadePictures {
  QrPictures* Qr = nullptr;
  ChartPictures* Charts = nullptr;
};

struct PaintContext {
  Document& document;
  SurfaceOps& surface;
  const TextMeasurer& measurer;
  double ZoomFactor = 1;
  DisplayFilter filter = DisplayFilter::All;
  double canvasWidth = 0;  // canvas units, as DrawPageBackground gives it
  WorkImages images;
  MadePictures pictures = {};
  // What bar codes keep from one painting to the next; without it they begin anew.
  BarcodeState* bars = nullptr;
};

struct PaintResult {
  int SelectionCount = 0;
  // Around all selected objects, and at least 75 units each way; only with a selection.
  CanvasArea SelectionBounds;

  bool MultiSelected() const { return SelectionCount > 0; }
};

// Paints the shown rows and the corner marks of those that are selected. Rows learn by it what only painting
// finds out: a line width of 0 becomes 1, a LINE's Width is its X2 less its X, a COMMAND is measured, QR and
// CHART get the name of their image, and a BARCODE is as wide as its bars.
PaintResult RedrawDocument(PaintContext& context, const SortedRows& sorted);

// One row, whether or not the filter shows it.
void PaintObject(PaintContext& context, int row);

// The same changes to the rows as a redraw makes, without a surface.
void ApplyRedrawWriteBack(Document& document, const TextMeasurer& measurer, DisplayFilter filter,
                          const WorkImages& images = {}, BarcodeState* bars = nullptr);

// The first panel of the status bar behind a redraw: empty unless several objects are selected.
// `selectedWord` is the text "selected" of the language.
std::string SelectionStatus(int selectionCount, std::string_view selectedWord);

}  // namespace kev
