// SPDX-License-Identifier: MIT
// The page that is worked on: pointer, selection, undo and what is under way. The designer owns it; the
// window sends it what the user does, each in a guard of its own, and shows what it says.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "app/commands.h"
#include "app/recovery.h"
#include "surface/clipboard.h"
#include "surface/font_tools.h"
#include "surface/insertion.h"
#include "surface/page_keys.h"
#include "surface/page_work.h"
#include "surface/pointer_tracker.h"
#include "surface/rulers.h"
#include "surface/undo.h"
#include "surface/visuals.h"

namespace kev {

class Designer;

class DesignSurface final : public PageServices {
 public:
  explicit DesignSurface(Designer& designer);
  ~DesignSurface() override;

  // --- What the user does ---
  void PointerPress(const PointerInput& input);
  void PointerMove(const PointerInput& input);
  void PointerRelease(const PointerInput& input);
  void DoubleClick(const PointerInput& input);
  // Whether the key was meant for the page. `text` is what it types, if anything.
  bool KeyDown(int code, int shift, std::string_view text);
  // Escape, another window, an opening dialog: what is under way changes nothing.
  void CancelGesture();
  // The cell or text box that is open is committed before anything else happens.
  void CommitOpenEdits();
  void FieldTextChanged(std::string text);
  // The text box is left: its text is stored, or given up.
  void EndFieldScreen(bool keep);
  // False when the command is not one of the page's.
  bool Run(Command command);
  bool Enabled(Command command) const;
  // An item of the toolbar's list of columns was chosen; counted from 0.
  void ChooseColumn(int item);
  // A button of the tool bar: the tool waits for the next click on the page, or waits no more.
  void ToggleTool(std::string_view tool);
  // The tools for text, on the current object or the group. What is chosen while the tools are being filled
  // is nobody's choice.
  void ChooseFont(std::string_view name);
  void ChooseFontSize(std::string_view size);
  void PressFontTool(FontTool tool);
  void ChooseTextColour();
  // Selects and shows the row as a click on it would; what is inserted next goes there. For the keyboard and
  // for screen readers.
  void PickObject(int row);
  // The context menu of what is selected, or that of the page.
  void OpenMenuByKey();
  // A row from the findings: selected and shown.
  void GoToObject(int row);

  // --- What the designer tells it ---
  void DocumentReplaced();
  // The page was zoomed: places of the pointer follow.
  void ZoomChanged(double before);
  void FilterChanged();
  // The tables were put back as they were then.
  void PutBackLevels(UndoStore levels) noexcept { undo_ = std::move(levels); }
  // Paints the page. Painting may store measured sizes in rows.
  void Redraw();
  // Images that the page waited for are there.
  void ShowMadePictures();
  // The image of the QR in the row, after its text, size or place was edited.
  void RemakeQrImage(int row);

  // --- What is shown ---
  bool DrawGrid() const { return drawGrid_; }
  void ToggleDrawGrid();
  // The unit of the rulers, see surface/rulers.h.
  int RulerMode() const { return rulerMode_; }
  void NextRulerMode();
  CursorShape Cursor(const PointerInput& input);
  const PointerState& Pointer() const { return pointer_; }
  PointerState& Pointer() { return pointer_; }
  // The rows of bar codes that the last redraw could not paint to their end.
  const std::set<int>& StoppedRows() const { return bars_.Stopped; }
  const UndoStore& Undo() const { return undo_; }
  const ClipboardTable& Clipboard() const { return clipboard_; }
  const TextEdit& Edit() const { return edit_; }
  Recovery& TheRecovery() { return recovery_; }
  // Of the document as it stands; tells nobody where it fails.
  std::optional<FileFailure> WriteRecovery();
  bool Busy() const { return tracker_.Busy(); }
  PageWork Work();

  // --- PageServices ---
  void PushUndo() override;
  void MarkChanged() override;
  void FullRepaint() override;
  void BandsChanged() override;
  void BuildRulers() override;
  void SelectionChanged() override;
  void CommandsChanged() override;
  const std::string& Text(int number) const override;
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons buttons) override;
  void OpenContextMenu(ContextMenu menu) override;
  void OpenProperties(int row) override;
  void ShowFieldScreen(const FieldScreenLook& look) override;
  void HideFieldScreen() override;
  void StartAllowTimer(int milliseconds, std::function<void()> done) override;
  void RunPendingTool() override;
  void ShowColumnList(const ColumnList& list) override;
  void Renew(PageWork& work) override;

 private:
  // For a bar, or for a new one where the row is 0. Until the dialog is closed.
  void OpenSubsection(int row);
  // `Wizard1`, until it is closed.
  void OpenChart(int row);
  // Sets Modified, writes the recovery file and then the caption.
  void Protect();
  void WriteRecoveryOrTell();
  InsertionWork Inserting(PageWork& work);
  void DoUndo();
  void DoRedo();
  void RunColumnCommand(PageWork& work, Command command);
  void RunClipboardCommand(PageWork& work, Command command);
  void RunGroupCommand(PageWork& work, Command command);
  bool TextHasKeys() const;
  void ShowFontTools();
  void UseTextTool(const std::function<void(PageWork&)>& change);
  void HoverColumn(const PointerInput& input);
  // False at either end of the page, where the key then leads away from it.
  bool StepObject(int step);
  // Behind another level: no selection, everything shown anew.
  void ShowLevel();

  Designer& designer_;
  PointerState pointer_;
  PointerTracker tracker_;
  UndoStore undo_;
  Recovery recovery_;
  TextEdit edit_;
  ClipboardTable clipboard_;
  bool fillingTools_ = false;
  PaintResult painted_;
  BarcodeState bars_;
  double canvasWidth_ = 0, canvasHeight_ = 0;
  bool drawGrid_ = false;
  int rulerMode_ = kFirstRulerMode;
  // Recovery can't be written, and the user knows.
  bool recoveryFailed_ = false;
};

}  // namespace kev
