// SPDX-License-Identifier: MIT
#include "platform/forms/kav_edit01.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <array>
#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <utility>

#include "app/documentation.h"
#include "app/toolbar_table.h"
#include "app/zoom_steps.h"
#include "base/numbers.h"
#include "base/text_numbers.h"
#include "data/sample_check.h"
#include "platform/app_style.h"
#include "platform/forms/combocol.h"
#include "platform/forms/command_menus.h"
#include "platform/forms/findings_dock.h"
#include "platform/forms/kavsplash.h"
#include "platform/forms/language_menu.h"
#include "platform/forms/page_frame.h"
#include "platform/forms/pane_keys.h"
#include "platform/forms/panel_place.h"
#include "platform/forms/progress_window.h"
#include "platform/forms/quick_panel.h"
#include "platform/forms/recent_menu.h"
#include "platform/forms/status_panels.h"
#include "platform/forms/text_tools.h"
#include "platform/forms/tool_bars.h"
#include "platform/forms/zoom_box.h"
#include "platform/forms/zoom_menu.h"
#include "platform/text_bridge.h"
#include "platform/window_caption.h"

#ifndef KEV_HELP_HOST
#define KEV_HELP_HOST ""
#endif

namespace kev {

namespace {

constexpr QSize kFirstSize(1180, 814);

// Milliseconds: what the programs that are waited for still get when the user wants to close, and how soon
// those go that are started in their place.
constexpr int kPatience = 3000;
constexpr int kNoPatience = 50;

constexpr std::array kFilterCommands = {std::pair(DisplayFilter::All, Command::SeeAll),
                                        std::pair(DisplayFilter::Ebeu, Command::SeeModifiable),
                                        std::pair(DisplayFilter::Print, Command::SeePrinted)};

// Nobody is there to read a box.
void TellOnErrors(const std::function<std::optional<FileFailure>()>& work) {
  try {
    const std::optional<FileFailure> failure = work();
    if (failure) std::cerr << "kev: " << failure->path << ": " << failure->reason << '\n';
  } catch (const std::exception& failure) {
    std::cerr << "kev: " << failure.what() << '\n';
  }
}

bool IsSampleData(const std::string& path) {
  return SampleKindOf(path) != SampleKind::Other;
}

// The template or data file that a drop brings, native; empty for anything but one local file of those.
std::string DroppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.constFirst().isLocalFile()) return {};
  const QString path = urls.constFirst().toLocalFile();
  const bool isTemplate = path.endsWith(QLatin1String(".kev"), Qt::CaseInsensitive);
  return isTemplate || IsSampleData(ToNative(path)) ? ToNative(path) : std::string();
}

}  // namespace

KavEdit01::KavEdit01(Designer& designer, QtHost& host, FontCache& fonts, ImageCache& images)
    : designer_(designer),
      host_(host),
      fonts_(fonts),
      images_(images),
      charts_(fonts, images, *this),
      page_(designer, fonts, images, this),
      input_(designer, page_.Canvas(), page_.Layer(), fonts) {
  setObjectName(QStringLiteral("KavEdit01"));
  setAcceptDrops(true);
  BuildMenus();
  BuildToolRow();
  BuildPage(fonts);
  BuildPanels();
  ConnectHost();
  PlaceOnScreen();
  designer_.AttachView(this);
  designer_.Charts().SetPainter(&charts_);
  ShowZoom(FormatNumber(designer_.ZoomFactor() * 100) + "%");
}

KavEdit01::~KavEdit01() {
  designer_.Charts().SetPainter(nullptr);
  designer_.AttachView(nullptr);
}

// --- Building ---------------------------------------------------------------------------------------------

void KavEdit01::BuildMenus() {
  menus_ = new CommandMenus(*menuBar(), designer_.Texts(), [this](Command command) { Run(command); });
  menuBar()->setObjectName(QStringLiteral("menubar"));
  menuBar()->setAccessibleName(ToQString(designer_.Text(kTextProgramTitle)));
  menus_->ActionOf(Command::SeeAll).setChecked(true);
  BuildZoomMenu();
  BuildLanguageMenu();
  BuildRecentMenu();
}

void KavEdit01::BuildZoomMenu() {
  QMenu& view = menus_->MenuOf(MenuId::View);
  zoomMenu_ = new ZoomMenu(MenuCaption(kTextMenuZoom), &view);
  view.insertMenu(view.actions().constFirst(), zoomMenu_);
  view.insertSeparator(view.actions().at(1));
  connect(zoomMenu_, &ZoomMenu::ZoomChosen, this, &KavEdit01::SetZoom);
}

void KavEdit01::BuildLanguageMenu() {
  QMenu& help = menus_->MenuOf(MenuId::Help);
  auto* languages = new LanguageMenu(MenuCaption(kTextMenuLanguage), designer_.Language(), &help);
  help.addMenu(languages);
  connect(languages, &LanguageMenu::LanguageChosen, this, [this, languages](char letter) {
    designer_.GuardedView([&] {
      if (designer_.ChooseLanguage(letter)) languages->Mark(letter);
    });
  });
}

void KavEdit01::BuildRecentMenu() {
  recentMenu_ = new RecentMenu(menus_->MenuOf(MenuId::File), [this](std::size_t entry) {
    if (designer_.Surface().Busy()) return;
    designer_.Surface().CommitOpenEdits();
    designer_.GuardedView([&] { designer_.OpenRecent(entry); });
  });
}

QString KavEdit01::MenuCaption(int text) const {
  return ToQString(WithMnemonics({designer_.Text(text)}).front());
}

void KavEdit01::BuildToolRow() {
  toolBars_ = new ToolBars(*this, designer_,
                           {[this](Command command) { Run(command); },
                            [this](std::string_view tool) {
                              designer_.Surface().ToggleTool(tool);
                              // Escape gives the tool up.
                              page_.Canvas().setFocus();
                            },
                            [this](FontTool tool) { designer_.Surface().PressFontTool(tool); }});
  QToolBar& bar = toolBars_->First();
  textTools_ = new TextTools(bar, designer_, [this] { page_.Canvas().setFocus(); });
  bar.addSeparator();
  auto* label = new QLabel(MenuCaption(kTextMenuZoom), &bar);
  label->setObjectName(QStringLiteral("zoomlabel"));
  label->setContentsMargins(8, 0, 6, 0);
  zoomBox_ = new ZoomBox(&bar);
  zoomBox_->setAccessibleName(ToQString(designer_.Text(kTextMenuZoom)));
  label->setBuddy(zoomBox_);
  bar.addWidget(label);
  bar.addWidget(zoomBox_);
  columnBox_ = new Combocol(ToQString(designer_.Text(kTextToolColumn)), &bar);
  bar.addWidget(columnBox_);
  connect(zoomBox_, &ZoomBox::ZoomChosen, this, &KavEdit01::SetZoom);
  connect(columnBox_, &Combocol::ColumnChosen, this,
          [this](int item) { designer_.Surface().ChooseColumn(item); });
}

void KavEdit01::BuildPage(FontCache& fonts) {
  PageCanvas& canvas = page_.Canvas();
  frame_ = new PageFrame(canvas, fonts, designer_.Options(), designer_.Texts(), this);
  setCentralWidget(frame_);
  ConnectPageFrame();
  quick_ = new QuickPanelForm(designer_, canvas);
  canvas.setAccessibleName(ToQString(designer_.Text(kTextPage)));
  canvas.viewport()->setAccessibleName(canvas.accessibleName());
  canvas.verticalScrollBar()->setAccessibleName(ToQString(designer_.Text(kTextScrollVertical)));
  canvas.horizontalScrollBar()->setAccessibleName(ToQString(designer_.Text(kTextScrollHorizontal)));
  connect(&canvas, &PageCanvas::ZoomRequested, this, &KavEdit01::OnZoomWheel);
}

void KavEdit01::ConnectPageFrame() {
  input_.SetRulerTest([this](const QPoint& global) { return frame_->IsOverRuler(global); });
  connect(frame_, &PageFrame::NextRulerModeWanted, this, [this] { designer_.Surface().NextRulerMode(); });
  connect(frame_, &PageFrame::ZoomStepWanted, this,
          [this](int steps) { OnZoomWheel(steps, QRectF(page_.Canvas().viewport()->rect()).center()); });
  connect(frame_, &PageFrame::RulerPointer, this, [this](const PagePointer& pointer) {
    const PointerInput input{.Source = PointerSource::Ruler,
                             .Button = PointerButton::Right,
                             .X = pointer.canvas.x(),
                             .Y = pointer.canvas.y()};
    if (pointer.action == PagePointer::Action::Press)
      designer_.Surface().PointerPress(input);
    else
      designer_.Surface().PointerRelease(input);
  });
}

void KavEdit01::BuildPanels() {
  const QString findingsWord = ToQString(designer_.Text(kTextMenuFindings));
  status_ = new StatusPanels(ToQString(designer_.Text(kTextStatusReady)), findingsWord, this);
  status_->setAccessibleName(ToQString(designer_.Text(kTextProgramTitle)));
  setStatusBar(status_);
  findings_ = new FindingsDock(designer_.Texts(), this);
  addDockWidget(Qt::BottomDockWidgetArea, findings_);
  findings_->hide();
  progress_ = new ProgressWindow(this);
  progress_->SetStopCaption(ToQString(designer_.Text(kTextStop)));
  panel_ = new PanelPlace(designer_, frame_->Properties(), *this);
  connect(&panel_->Panel(), &PropertyPanel::FilterWanted, this, &KavEdit01::ShowFilter);
  QAction& toggle = menus_->ActionOf(Command::ShowFindings);
  connect(findings_, &QDockWidget::visibilityChanged, &toggle,
          [this, &toggle] { toggle.setChecked(!findings_->isHidden()); });
  connect(findings_, &FindingsDock::ObjectWanted, this,
          [this](int row) { designer_.GuardedView([&] { designer_.Surface().GoToObject(row); }); });
  connect(status_, &StatusPanels::FindingsWanted, this, [this] { findings_->show(); });
  // The quick panel stands on the page and comes behind it.
  new PaneKeys(*this, [this] {
    return QList<QWidget*>{&page_.Canvas(),      quick_, &panel_->Panel(), findings_, &toolBars_->First(),
                           &toolBars_->Second(), status_};
  });
}

void KavEdit01::ConnectHost() {
  host_.SetWindow(this);
  connect(&host_, &QtHost::StatusChanged, status_, &StatusPanels::ShowText);
  connect(&host_, &QtHost::SelectionStatusChanged, status_, &StatusPanels::ShowSelection);
  connect(&host_, &QtHost::ProgressBegun, progress_, &ProgressWindow::Begin);
  connect(&host_, &QtHost::ProgressStepped, progress_, &ProgressWindow::Step);
  connect(&host_, &QtHost::ProgressEnded, progress_, &ProgressWindow::End);
  connect(&host_, &QtHost::WaitsEnded, this, &KavEdit01::CloseIfWanted, Qt::QueuedConnection);
  patience_.setSingleShot(true);
  connect(&patience_, &QTimer::timeout, this, &KavEdit01::GiveUpWaits);
  connect(&host_, &QtHost::StopOffered, progress_, &ProgressWindow::OfferStop);
  connect(progress_, &ProgressWindow::StopWanted, &host_, &QtHost::StopProgress);
  connect(&host_, &QtHost::CaptionChanged, this, [this](const QString& title, bool modified) {
    setWindowTitle(WindowCaption(title, modified, ToQString(designer_.Text(kTextModified)),
                                 ToQString(designer_.Text(kTextProgramTitle))));
  });
}

void KavEdit01::PlaceOnScreen() {
  const QRect available = screen()->availableGeometry();
  resize(kFirstSize.boundedTo(available.size()));
  move(available.center() - rect().center());
}

// --- Start and end ----------------------------------------------------------------------------------------

bool KavEdit01::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  // Where there is no window manager a window is shown and never activated.
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show) {
    QTimer::singleShot(0, this, &KavEdit01::Activate);
  }
  if (event->type() == QEvent::ScreenChangeInternal) FollowScreen();
  if (event->type() == QEvent::WindowUnblocked) {
    QTimer::singleShot(0, this, [this] { focusKeeper_.Mend(); });
    QTimer::singleShot(0, this, &KavEdit01::CloseIfWanted);
  }
  return handled;
}

// Charts are images made for the resolution of the screen that shows them.
void KavEdit01::FollowScreen() {
  if (shownRatio_ == 0 || shownRatio_ == charts_.DeviceRatio() || designer_.Surface().Busy()) return;
  designer_.GuardedView([this] { designer_.Surface().Redraw(); });
}

void KavEdit01::Activate() {
  if (!designer_.BeginActivation()) return;
  designer_.GuardedView([this] {
    ShowSplash();
    if (!ended_) designer_.AfterSplash();
  });
}

void KavEdit01::ShowSplash() {
  kavsplash splash(ToQString(designer_.Text(kTextProgramTitle)), this);
  designer_.SplashLoad();
  splash.exec();
}

void KavEdit01::closeEvent(QCloseEvent* event) {
  if (ended_) return event->accept();
  event->ignore();
  if (DelayClose()) return;
  closing_ = true;
  bool may = false;
  designer_.GuardedView([&] { may = designer_.MayClose(); });
  closing_ = false;
  if (ended_ || !may) return;
  ended_ = true;
  designer_.GuardedView([this] { designer_.ShutDown(); });
  event->accept();
}

// What is open is answered first; only the question of a close itself is not asked twice.
bool KavEdit01::DelayClose() {
  if (QApplication::activeModalWidget() == nullptr && !host_.Waiting()) return closing_;
  closeWanted_ = !closing_;
  if (host_.Waiting() && !patience_.isActive()) patience_.start(kPatience);
  return true;
}

// A tool may hang, and the window must not stay open for ever because of it.
void KavEdit01::GiveUpWaits() {
  if (!closeWanted_ || !host_.Waiting()) return;
  host_.KillWaitedFor();
  patience_.start(kNoPatience);
}

void KavEdit01::CloseIfWanted() {
  if (std::exchange(closeWanted_, false)) close();
}

void KavEdit01::EndWithoutAsking() {
  // Leaves the loops of open boxes, and of those that the rest would show; a polite quit would ask each
  // window first.
  QCoreApplication::exit();
  if (std::exchange(ended_, true)) return;
  TellOnErrors([this] { return designer_.KeepUnsaved(); });
  TellOnErrors([this] { return designer_.ShutDownSilently(); });
}

// --- Commands ---------------------------------------------------------------------------------------------

void KavEdit01::Run(Command command) {
  // Nothing runs in the middle of a gesture, and nothing passes an open text box by.
  if (designer_.Surface().Busy()) return;
  designer_.Surface().CommitOpenEdits();
  // The next key is meant for the new object.
  if (InsertionOf(command)) page_.Canvas().setFocus(Qt::OtherFocusReason);
  designer_.GuardedView([&] { Dispatch(command); });
}

void KavEdit01::Dispatch(Command command) {
  if (designer_.Run(command)) return;
  switch (command) {
    case Command::New:
      designer_.AskAndNew();
      break;
    case Command::NewFromData:
      designer_.NewFromData();
      break;
    case Command::Open:
      designer_.ChooseAndOpen();
      break;
    case Command::Save:
      designer_.Save();
      break;
    case Command::SaveAs:
      designer_.SaveAs();
      break;
    case Command::DocumentProperties:
      designer_.ShowDocumentProperties();
      break;
    case Command::Exit:
      close();
      break;
    case Command::SeeAll:
      ShowFilter(DisplayFilter::All);
      break;
    case Command::SeeModifiable:
      ShowFilter(DisplayFilter::Ebeu);
      break;
    case Command::SeePrinted:
      ShowFilter(DisplayFilter::Print);
      break;
    case Command::DrawGrid:
      designer_.Surface().ToggleDrawGrid();
      menus_->ActionOf(Command::DrawGrid).setChecked(designer_.Surface().DrawGrid());
      break;
    case Command::ShowFindings:
      findings_->setVisible(findings_->isHidden());
      break;
    case Command::Documentation:
      OpenDocumentation();
      break;
    case Command::TestRun:
      designer_.RunTest();
      break;
    case Command::ShowTemplateCode:
      designer_.ShowTemplateCode();
      break;
    case Command::ShowDataFile:
      designer_.ShowDataFile();
      break;
    case Command::ShowQuickPanel:
      designer_.Quick().ShowQuickPanel();
      break;
    default:
      break;
  }
}

// Menu and panel both show what holds now.
void KavEdit01::ShowFilter(DisplayFilter filter) {
  designer_.SetFilter(filter);
  panel_->Panel().ShowFilter(designer_.Filter());
  for (const auto& [shown, command] : kFilterCommands)
    menus_->ActionOf(command).setChecked(shown == designer_.Filter());
}

void KavEdit01::SetZoom(const QString& text) {
  if (designer_.Surface().Busy()) return ShowZoom(FormatNumber(designer_.ZoomFactor() * 100) + "%");
  designer_.GuardedView([&] { page_.SetZoom(text); });
}

void KavEdit01::OnZoomWheel(int steps, const QPointF& viewportPoint) {
  if (designer_.Surface().Busy()) return;
  double percent = designer_.ZoomFactor() * 100;
  for (int step = 0; step < steps; ++step)
    percent = ZoomStepUp(percent);
  for (int step = 0; step > steps; --step)
    percent = ZoomStepDown(percent);
  designer_.GuardedView([&] { page_.SetZoom(ToQString(FormatNumber(percent)), viewportPoint); });
}

void KavEdit01::OpenDocumentation() {
  constexpr std::string_view kHost = KEV_HELP_HOST;
  const std::string address = DocumentationAddress(kHost, designer_.Language());
  const std::optional<std::string> installed = InstalledDocumentation(designer_.Folders().ProgramFolder);
  if (kHost.empty() && !installed) {
    designer_.ShowText(kTextFileMissing, BoxIcon::Critical, designer_.Folders().ProgramFolder + "/docs");
    return;
  }
  const bool opened = kHost.empty() ? host_.OpenWithDesktop(*installed) : host_.OpenAddress(address);
  if (!opened)
    designer_.ShowText(kTextDocumentationNotOpened, BoxIcon::Critical, kHost.empty() ? *installed : address);
}

void KavEdit01::dragEnterEvent(QDragEnterEvent* event) {
  if (DroppedFile(*event->mimeData()).empty()) return;
  // Never a move: the program that the file comes from would delete it.
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void KavEdit01::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // The program that the file was dragged from waits for this event to end; a question would hold it up.
  QTimer::singleShot(0, this, [this, path = DroppedFile(*event->mimeData())] {
    designer_.GuardedView([&] {
      if (!IsSampleData(path)) {
        designer_.AskAndOpen(path);
      } else if (!designer_.Surface().Busy()) {
        designer_.Surface().CommitOpenEdits();
        designer_.NewFromData(path);
      }
    });
  });
}

}  // namespace kev
