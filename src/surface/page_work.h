// SPDX-License-Identifier: MIT
// What work on the page needs: the document, where the pointer is, the surface, and the designer's services.
// Gestures and commands take it by reference and keep none of it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/host.h"
#include "document/document.h"
#include "document/text_measurer.h"
#include "surface/pointer_state.h"
#include "surface/surface_ops.h"
#include "surface/visuals.h"

namespace kev {

// `edit` belongs to the empty page, `Contextmen` to the current object, `Contextmen2` to the ruler,
// `Contextmen3` to a column line and `Contextmen4` to a group.
enum class ContextMenu : std::uint8_t { Edit, Object, Ruler, ColumnLine, Group };

// The one-line box over a label whose text is being typed.
struct FieldScreenLook {
  CanvasArea Place;  // canvas units
  FontSpec Font;     // with the size times the zoom
  std::string Text;
  Rgb Colour = 0;
  char Align = 'L';
};

struct ColumnList;
struct PageWork;

// The designer's part in it. Whatever changes the document calls PushUndo before the change, never after, and
// FullRepaint behind it.
class PageServices {
 public:
  virtual ~PageServices() = default;

  // A snapshot and a new recovery file; the document counts as modified.
  virtual void PushUndo() = 0;
  // For a change without a snapshot: the document counts as modified, and nothing can be redone.
  virtual void MarkChanged() = 0;

  // Assigns, sorts and lays out; paints page, column lines and objects; shows the current object's overlay
  // and handles anew.
  virtual void FullRepaint() = 0;
  // The same for a change of the bands themselves (a body made higher or lower, a subsection made, moved or
  // deleted): they are laid out first and objects assigned then. Rulers follow.
  virtual void BandsChanged() = 0;
  virtual void BuildRulers() = 0;
  // Another object or group is selected, or none: status panel, sheets and the commands that can be used
  // follow.
  virtual void SelectionChanged() = 0;
  // A command can be used that could not, or the other way round.
  virtual void CommandsChanged() = 0;

  virtual const std::string& Text(int number) const = 0;
  // A box under the program's title.
  virtual BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons buttons = BoxButtons::Ok) = 0;

  // At the pointer.
  virtual void OpenContextMenu(ContextMenu menu) = 0;
  // What a double click on an object opens: its sheet, or the dialog of a subsection.
  virtual void OpenProperties(int row) = 0;
  virtual void ShowFieldScreen(const FieldScreenLook& look) = 0;
  virtual void HideFieldScreen() = 0;
  // `done` runs once, after this time; the next start forgets the one before.
  virtual void StartAllowTimer(int milliseconds, std::function<void()> done) = 0;
  // The pending tool puts its object at LastX, LastY.
  virtual void RunPendingTool() = 0;
  // The toolbar's list of columns is another one, or shows another text.
  virtual void ShowColumnList(const ColumnList&) {}
  // Behind a wait in which the user could act: zoom, filter and sizes as they are now.
  virtual void Renew(PageWork&) {}
};

struct PageWork {
  Document& document;
  PointerState& pointer;
  SurfaceOps& surface;
  PageServices& services;
  const TextMeasurer& measurer;
  double ZoomFactor = 1;
  DisplayFilter filter = DisplayFilter::All;
  WorkImages images;
  double canvasWidth = 0, canvasHeight = 0;  // canvas units
  MadePictures pictures = {};
  BarcodeState* bars = nullptr;
};

}  // namespace kev
