// SPDX-License-Identifier: MIT
// Clipboard, the commands of a group, and the tools for font, colour and alignment.
#include <optional>
#include <string>

#include "app/design_surface.h"
#include "app/designer.h"
#include "app/group_runs.h"
#include "base/text_numbers.h"
#include "surface/group_commands.h"

namespace kev {

// The grid and the text box keep these keys for their own text.
bool DesignSurface::TextHasKeys() const {
  return designer_.Sheets().HasGridFocus() || edit_.Active();
}

void DesignSurface::RunClipboardCommand(PageWork& work, Command command) {
  switch (command) {
    case Command::Cut:
    case Command::CutContext:
    case Command::CutGroup:
      return CutObjects(work, clipboard_);
    case Command::Copy:
    case Command::CopyContext:
    case Command::CopyGroup:
      return CopyObjects(work, clipboard_);
    default:
      if (const std::optional<std::string> missing = PasteObjects(work, clipboard_))
        designer_.ShowText(kTextPasteRefused, BoxIcon::Critical, *missing);
      return;
  }
}

void DesignSurface::RunGroupCommand(PageWork& work, Command command) {
  DesignerView* view = designer_.View();
  if (command == Command::AlignHorizontally) return AlignHorizontally(work);
  if (view == nullptr) return;
  switch (command) {
    case Command::PlaceAt: {
      PlaceSelectionRun run(designer_);
      return view->OpenPlaceSelection(run);
    }
    case Command::AlignToGrid: {
      AlignToGridRun run(designer_);
      return view->OpenAlignToGrid(run);
    }
    case Command::ModifyEndUser: {
      GroupFlagRun run(designer_, GroupIsModifiable(work), SetGroupModifiable);
      return view->OpenModifyEndUser(run);
    }
    case Command::PrintNoPrint: {
      GroupFlagRun run(designer_, GroupIsPrinted(work), SetGroupPrinted);
      return view->OpenPrintNoPrint(run);
    }
    default:
      return;
  }
}

// --- Font tools ---

void DesignSurface::ShowFontTools() {
  DesignerView* view = designer_.View();
  if (view == nullptr) return;
  struct Filling {
    explicit Filling(bool& filling) : on(filling) { on = true; }
    ~Filling() { on = false; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    bool& on;
  };
  const Filling filling(fillingTools_);
  view->ShowFontTools(FontToolsOf(Work()));
}

// Tools that are refused, or used in the middle of a gesture, show again what holds.
void DesignSurface::UseTextTool(const std::function<void(PageWork&)>& change) {
  if (fillingTools_) return;
  CommitOpenEdits();
  designer_.Guarded([&] {
    PageWork work = Work();
    if (!tracker_.Busy()) change(work);
  });
  ShowFontTools();
}

void DesignSurface::ChooseFont(std::string_view name) {
  UseTextTool([&](PageWork& work) { UseFontName(work, designer_.Last(), name); });
}

void DesignSurface::ChooseFontSize(std::string_view size) {
  UseTextTool([&](PageWork& work) { UseFontSize(work, designer_.Last(), size); });
}

void DesignSurface::PressFontTool(FontTool tool) {
  UseTextTool([&](PageWork& work) { UseFontTool(work, designer_.Last(), tool); });
}

void DesignSurface::ChooseTextColour() {
  UseTextTool([this](PageWork& work) {
    const FontTools tools = FontToolsOf(work);
    DesignerView* view = designer_.View();
    if (view == nullptr || !tools.Enabled) return;
    if (const std::optional<Colour> colour = view->ChooseColour(tools.PColor))
      UseTextColour(work, designer_.Last(), *colour);
  });
}

}  // namespace kev
