// SPDX-License-Identifier: MIT
// The main window. It holds the controls and their connections; what a command does, the designer decides.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <memory>

#include "app/commands.h"
#include "app/designer.h"
#include "platform/chart_files.h"
#include "platform/close_requests.h"
#include "platform/focus_keeper.h"
#include "platform/page_input.h"
#include "platform/page_view.h"
#include "platform/qt_host.h"

namespace kev {

class Combocol;
class CommandMenus;
class FindingsDock;
class PanelPlace;
class QuickPanelForm;
class PageFrame;
class ProgressWindow;
class RecentMenu;
class StatusPanels;
class TextTools;
class ToolBars;
class ZoomBox;
class ZoomMenu;

class KavEdit01 final : public QMainWindow, public DesignerView {
  Q_OBJECT

 public:
  // After the designer's Load. All outlive the window.
  KavEdit01(Designer& designer, QtHost& host, FontCache& fonts, ImageCache& images);
  ~KavEdit01() override;

  void Run(Command command);
  // Ends the program without a question or a message, also while one is open: the session is being ended and
  // nobody answers. Unsaved work stays where recovery finds it.
  void EndWithoutAsking();

  void DocumentReplaced() override;
  void OpenSubsectionDialog(SubsectionDialog& dialog, const std::function<bool()>& accept) override;
  SurfaceOps& Canvas() override { return page_.Surface(); }
  void PageShown() override;
  void ShowRulers() override;
  void ShowArea(const CanvasArea& area) override;
  void ShowZoom(std::string_view text) override;
  void FindingsChanged() override;
  void CommandsChanged() override;
  void OpenContextMenu(ContextMenu menu) override;
  void ShowFieldScreen(const FieldScreenLook& look) override { input_.ShowFieldScreen(look); }
  void ShowSheet(const Sheet& sheet, const std::string& title, int selectRow) override;
  void ShowPanel(std::int32_t state) override;
  void FocusPanel() override;
  void CommitOpenCell() override;
  void HideFieldScreen() override { input_.HideFieldScreen(); }
  void StartAllowTimer(int milliseconds, std::function<void()> done) override;
  void ShowRecoverDialog(RecoverDialog& dialog) override;
  void ShowColumnList(const ColumnList& list) override;
  void OpenColumnsDialog(ColumnsDialogRun& run) override;
  void OpenSetThisColumn(SetColumnRun& run) override;
  void OpenPlaceSelection(PlaceSelectionRun& run) override;
  void OpenAlignToGrid(AlignToGridRun& run) override;
  void OpenModifyEndUser(GroupFlagRun& run) override;
  void OpenPrintNoPrint(GroupFlagRun& run) override;
  void ShowFontTools(const FontTools& tools) override;
  std::optional<Colour> ChooseColour(const Colour& first) override;
  void ShowRecentFiles(const std::vector<std::string>& captions) override;
  std::string PaintThumbnail(const ThumbnailLook& look) override;
  void OpenWelcome(WelcomeRun& run) override;
  void OpenDocumentProperties(DocumentPropertiesRun& run) override;
  void ShowQuickPanel(const QuickPanel& panel, const std::string& title) override;
  void OpenNewTemplate(NewTemplateRun& run) override;
  void OpenChartWizard(ChartWizardRun& run) override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void FollowScreen();
  void BuildMenus();
  void BuildZoomMenu();
  void BuildLanguageMenu();
  void BuildRecentMenu();
  QString MenuCaption(int text) const;
  void BuildToolRow();
  void BuildPage(FontCache& fonts);
  void ConnectPageFrame();
  void BuildPanels();
  void ConnectHost();
  void PlaceOnScreen();
  void Activate();
  void ShowSplash();
  void Dispatch(Command command);
  void ShowFilter(DisplayFilter filter);
  void SetZoom(const QString& text);
  bool DelayClose();
  void CloseIfWanted();
  void GiveUpWaits();
  void OnZoomWheel(int steps, const QPointF& viewportPoint);
  void OpenDocumentation();

  Designer& designer_;
  QtHost& host_;
  FontCache& fonts_;
  ImageCache& images_;
  ChartFiles charts_;
  PageView page_;
  PageInput input_;
  PanelPlace* panel_ = nullptr;
  CommandMenus* menus_ = nullptr;
  ZoomMenu* zoomMenu_ = nullptr;
  RecentMenu* recentMenu_ = nullptr;
  ToolBars* toolBars_ = nullptr;
  TextTools* textTools_ = nullptr;
  ZoomBox* zoomBox_ = nullptr;
  Combocol* columnBox_ = nullptr;
  StatusPanels* status_ = nullptr;
  FindingsDock* findings_ = nullptr;
  ProgressWindow* progress_ = nullptr;
  PageFrame* frame_ = nullptr;
  QuickPanelForm* quick_ = nullptr;
  // The device ratio at which the page was painted last; 0 before it was.
  double shownRatio_ = 0;
  bool ended_ = false;
  // The question of a close is open.
  bool closing_ = false;
  // A close was asked for while something else had to be answered first.
  bool closeWanted_ = false;
  // How long a wanted close is held up by a program that is waited for.
  QTimer patience_;
  CloseRequests closeRequests_{*this, [this] { DelayClose(); }};
  FocusKeeper focusKeeper_{*this};
};

}  // namespace kev
