// SPDX-License-Identifier: MIT
// The owner of everything that lives for the length of a run: the one open document, the options, the
// language texts, the theme and the folders. It decides; what it needs of the window system it asks the Host,
// and what the window must show anew it tells the DesignerView.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/chart_images.h"
#include "app/command_line.h"
#include "app/design_surface.h"
#include "app/folders.h"
#include "app/language.h"
#include "app/options.h"
#include "app/picture_source.h"
#include "app/property_sheets.h"
#include "app/qr_images.h"
#include "app/quick_properties.h"
#include "app/template_hold.h"
#include "app/theme.h"
#include "base/finding.h"
#include "base/host.h"
#include "document/document.h"
#include "document/object_creation.h"
#include "surface/null_surface.h"
#include "surface/page_work.h"
#include "surface/visuals.h"
#include "template/reader.h"
#include "template/sample_copy.h"
#include "template/writer.h"
#include "testrun/test_run.h"

namespace kev {

struct SubsectionDialog;
struct RecoverDialog;
struct FoundInFile;
struct SavedCheck;

// In the order of the list. Any other number may be typed.
inline constexpr auto kZoomList =
    std::to_array<std::string_view>({"25%", "50%", "75%", "80%", "100%", "120%", "150%", "180%", "200%"});

inline constexpr std::string_view kFreshTitle = "Noname.kev";

// How a read is shown that gives a document without a file.
struct ReadLook {
  std::string_view Title = kFreshTitle;
  bool ShowsProgress = true;
};

// Percent. A zoom outside is refused.
inline constexpr double kSmallestZoom = 10;
inline constexpr double kLargestZoom = 800;

class ChartWizardRun;
class ColumnsDialogRun;
class SetColumnRun;
class PlaceSelectionRun;
class AlignToGridRun;
class GroupFlagRun;
class WelcomeRun;
class DocumentPropertiesRun;
struct ThumbnailLook;
class NewTemplateRun;

// What the window does when the document has changed under it. The window implements it; every call comes
// from the one thread, and none before AttachView.
class DesignerView {
 public:
  virtual ~DesignerView() = default;
  // Another document stands in the tables: selection, pending tool and open cells of the old one are void.
  virtual void DocumentReplaced() = 0;
  // Where the page is painted and its widgets stand.
  virtual SurfaceOps& Canvas() = 0;
  // The canvas was painted anew.
  virtual void PageShown() = 0;
  // Rulers follow the page, its bands and the zoom.
  virtual void ShowRulers() {}
  // Scrolls so that the area can be seen; canvas units.
  virtual void ShowArea(const CanvasArea&) {}
  // The zoom box shows this text ("100%") again.
  virtual void ShowZoom(std::string_view text) = 0;
  // The list of findings is another one.
  virtual void FindingsChanged() = 0;
  // Menus and tools ask anew what can be used.
  virtual void CommandsChanged() {}
  virtual void OpenContextMenu(ContextMenu) {}
  // The text box over a label; shown once more, it is moved and sized.
  virtual void ShowFieldScreen(const FieldScreenLook&) {}
  virtual void HideFieldScreen() {}
  virtual void StartAllowTimer(int, std::function<void()>) {}
  // The dialog of a subsection, until it is closed. OK calls `accept`; where that is false, it stays open.
  virtual void OpenSubsectionDialog(SubsectionDialog&, const std::function<bool()>&) {}
  // The property panel: its sheet, the row to go to (0 stays), and its place (`PROPFIX`).
  virtual void ShowSheet(const Sheet&, const std::string& /*title*/, int /*selectRow*/) {}
  virtual void ShowPanel(std::int32_t) {}
  virtual void FocusPanel() {}
  // A cell that is open is told as edited before this returns.
  virtual void CommitOpenCell() {}
  // The form of what earlier runs left behind; returns when it has closed. Before the first document.
  virtual void ShowRecoverDialog(RecoverDialog&) {}
  // What `Combocol` holds and shows; what it shows need not be one of its items.
  virtual void ShowColumnList(const ColumnList&) {}
  // The dialogs `inscol01` and `SetThisColumn`; each returns when its dialog has closed.
  virtual void OpenColumnsDialog(ColumnsDialogRun&) {}
  virtual void OpenSetThisColumn(SetColumnRun&) {}
  // The dialogs of the group's menu: `placeselection`, `AlignToGridFrm`, `Modifyenduser`, `PrintNoPrintFrm`.
  virtual void OpenPlaceSelection(PlaceSelectionRun&) {}
  virtual void OpenAlignToGrid(AlignToGridRun&) {}
  virtual void OpenModifyEndUser(GroupFlagRun&) {}
  virtual void OpenPrintNoPrint(GroupFlagRun&) {}
  // What the tools for text show and whether they can be used.
  virtual void ShowFontTools(const FontTools&) {}
  // Asks for a colour, with this one to begin with; nothing when the user gives up.
  virtual std::optional<Colour> ChooseColour(const Colour&) { return std::nullopt; }
  // The entries `archivo1` to `archivo8`: their captions as native bytes; those behind the last are hidden.
  virtual void ShowRecentFiles(const std::vector<std::string>& /*captions*/) {}
  // The top of the page as a bitmap file's bytes, without selection and grid; empty where there is none.
  virtual std::string PaintThumbnail(const ThumbnailLook&) { return {}; }
  // The forms `Fastopen` and `docpropertiesfrm`; each returns when it has closed.
  virtual void OpenWelcome(WelcomeRun&) {}
  virtual void OpenDocumentProperties(DocumentPropertiesRun&) {}
  // The small panel over the page shows this; it keeps what is typed while it stays the same.
  virtual void ShowQuickPanel(const QuickPanel&, const std::string& /*title*/) {}
  // The assistant `NewTemplate`; returns when it has closed.
  virtual void OpenNewTemplate(NewTemplateRun&) {}
  // The dialog `Wizard1`; returns when it has closed.
  virtual void OpenChartWizard(ChartWizardRun&) {}
};

// What a process gives to its designer.
struct StartInput {
  Environment Variables;               // of the process
  std::string ProgramFolder;           // see ExecutableFolder
  std::vector<std::string> Arguments;  // without the program's name
  std::function<ClockTime()> Clock = LocalTime;

  static ClockTime LocalTime();
};

// Who wants a template opened; it decides only where a missing file is told.
enum class OpenedFrom : std::uint8_t { Start, Command };

// What a guarded piece of work is, for the message that a failure gives.
struct GuardedWork {
  int Message = 0;   // number of the text; 0 is "could not be done and nothing was changed"
  std::string Path;  // native bytes, shown with the message
};

class Designer {
 public:
  // The host and the measurer outlive the designer.
  Designer(Host& host, const TextMeasurer& measurer, StartInput input);
  Designer(const Designer&) = delete;
  Designer& operator=(const Designer&) = delete;

  void AttachView(DesignerView* view) { view_ = view; }

  // --- Start, in this order -------------------------------------------------------------------------------
  // Before the window is built. False when the texts cannot be had: the message was shown, the process ends.
  bool Load();
  // At each activation of the window. True for the first one alone: then the splash form is shown, which
  // calls SplashLoad as it opens, and AfterSplash follows when it has closed.
  bool BeginActivation();
  void SplashLoad();
  void AfterSplash();

  // --- Documents -------------------------------------------------------------------------------------------
  // The one road for start, menu, recent files and welcome screen. Does not ask about unsaved changes. False
  // when the file was refused: one message was shown and the open document stays.
  bool OpenTemplate(const std::string& path, OpenedFrom from = OpenedFrom::Command);
  // A fresh document from the skeleton, which takes over the line step of the open one.
  void NewTemplate();
  // A document that has no file yet, from the text of a template. False when it can't be read.
  bool OpenFresh(std::string_view bytes);
  // With the question about unsaved changes before it; false when the user gave up or the file was refused.
  bool AskAndOpen(const std::string& path);
  bool ChooseAndOpen();
  bool AskAndNew();
  // The templates that the file menu offers, newest first: those of the list that are there. Native bytes.
  const std::vector<std::string>& RecentShown() const { return recent_; }
  // Fills the menu anew.
  void RefreshRecentMenu();
  // An entry of the menu, counted from 0. False when the user gave up or the file was refused.
  bool OpenRecent(std::size_t entry);
  // The welcome screen and what was chosen there.
  void ShowWelcome();
  // Facts about the document.
  void ShowDocumentProperties();
  // The assistant that makes a template of a data file; native path, may be empty.
  void NewFromData(const std::string& path = {});
  // False when the user gave up or the file could not be written.
  bool Save();
  bool SaveAs();
  // Writes the document as it stands and renews the copy of its sample data, for a save, the test run and the
  // external editor. Path, title and mark stay; what went wrong is in the report and not shown.
  WriteReport WriteDocument(const std::string& path);
  // The menu's test run, and the two files in the user's editor.
  void RunTest();
  void ShowTemplateCode();
  void ShowDataFile();
  // Asks about unsaved changes, and saves on Yes. False when what follows must not happen.
  bool AskToSave();
  // Whether the window may close.
  bool MayClose() { return AskToSave(); }
  // After the window has closed: writes the options, deletes the working files of this run.
  void ShutDown();
  // Where the program ends and nobody is there to be asked: what is typed somewhere goes into the document,
  // and the document as it stands into the recovery file. What could not be written is returned and not
  // shown.
  std::optional<FileFailure> KeepUnsaved();
  // ShutDown where nobody is there to read a box: what could not be written is returned and not shown.
  std::optional<FileFailure> ShutDownSilently();
  // Takes effect at the next start. False when it could not be stored: the message was shown.
  bool ChooseLanguage(char letter);

  // --- Around every change ---------------------------------------------------------------------------------
  // Geometry chain, redraw, chain, redraw of what moved.
  void DeriveGeometryAndRedraw();
  // Runs a command, event or read. Where it throws, the document is put back as it was, one message says
  // what could not be done and why, and the result is false. Guards may nest; the innermost one acts. A
  // fetched picture that arrives meanwhile, or an image that is made, waits for the end of the outermost one.
  bool Guarded(const GuardedWork& work, const std::function<void()>& body);
  bool Guarded(const std::function<void()>& body) { return Guarded({}, body); }
  // For work that leaves the rows alone, or guards its own change of them: nothing is copied. What the work
  // changed elsewhere, `takeBack` undoes.
  bool GuardedView(const GuardedWork& work, const std::function<void()>& body,
                   const std::function<void()>& takeBack);
  bool GuardedView(const std::function<void()>& body, const std::function<void()>& takeBack = {}) {
    return GuardedView(GuardedWork{}, body, takeBack);
  }
  // Sets `Modified` and the caption.
  void MarkModified();
  // The two halves of it, where something has to happen between them.
  void SetModified() { modified_ = true; }
  void ShowCaption();
  // A typed or chosen percentage. Below 10 or above 800, or where the page can't be painted with it, the old
  // one is put back and the result is false. The one in force is taken without painting.
  bool SetZoom(std::string_view text);
  // False when the page can't be painted with it: the old one is put back.
  bool SetFilter(DisplayFilter filter);

  // Runs a command of the page; false when it is another's.
  bool Run(Command command) { return surface_.Run(command); }
  bool Enabled(Command command) const { return surface_.Enabled(command); }

  // --- What it owns ----------------------------------------------------------------------------------------
  DesignSurface& Surface() { return surface_; }
  PropertySheets& Sheets() { return sheets_; }
  QuickProperties& Quick() { return quick_; }
  Document& OpenDocument() { return document_; }
  const Document& OpenDocument() const { return document_; }
  DesignerOptions& Options() { return options_; }
  // What the font and colour tools last gave; what they give is stored here.
  LastUsed& Last() { return last_; }
  const UserSettings& Settings() const { return settings_; }
  const DesignerFolders& Folders() const { return folders_; }
  const Theme& CurrentTheme() const { return theme_; }
  const LanguageTexts& Texts() const { return texts_; }
  const std::string& Text(int number) const { return texts_.Text(number); }
  char Language() const { return language_; }
  int SessionNumber() const { return session_; }
  const CommandLineParts& Command() const { return command_; }
  Host& TheHost() { return host_; }
  const TextMeasurer& Measurer() const { return measurer_; }
  PictureSource& Pictures() { return pictures_; }
  const SampleCopy& Samples() const { return samples_; }

  // Absolute, native bytes; empty for a document that has no file of its own yet. Save writes here.
  const std::string& DocumentPath() const { return documentPath_; }
  // Its file name; "Noname.kev" for a fresh document.
  const std::string& DocumentTitle() const { return documentTitle_; }
  // Relative paths inside the template start here; native bytes.
  std::string TemplateFolder() const;
  // The sample file that the template names, where it is or where it should be; empty when it names none.
  std::string SampleDataPath() const;
  // The file that a record's PictureFile means; nothing when there is none.
  std::optional<std::string> PictureFileOnDisk(std::string_view pictureFile) const;
  bool Modified() const { return modified_; }
  double ZoomFactor() const { return zoomPercent_ / 100; }
  // Which of the objects the page shows.
  DisplayFilter Filter() const { return filter_; }
  // Of the last read or save, and of the last redraw.
  const std::vector<Finding>& Findings() const { return findings_; }

  // --- The window, for the page that is worked on ---------------------------------------------------------
  DesignerView* View() const { return view_; }
  // A surface that shows nothing while there is no window.
  SurfaceOps& Canvas() { return view_ != nullptr ? view_->Canvas() : nowhere_; }
  WorkImages Images() const { return {folders_.TempFolder, session_}; }
  MadePictures Made() { return {.Qr = &qrImages_, .Charts = charts_.HasPainter() ? &charts_ : nullptr}; }
  ChartImages& Charts() { return charts_; }
  void PageShown();
  // Other objects than before cannot be painted as they should.
  void PaintFindingsChanged();
  // Behind those of the open document, which are replaced by the next read or save.
  void AddFindings(const std::vector<Finding>& more);
  void ShowRulers();
  void ShowArea(const CanvasArea& area);
  void CommandsChanged();
  ClockTime Now() const { return input_.Clock(); }

  // A box under the program's title with one OK. `detail` is native bytes.
  void ShowText(int number, BoxIcon icon, std::string detail = {});

 private:
  // What a failed command gives back.
  struct Kept;
  // For as long as it lives, the document may be half changed.
  class Changing {
   public:
    explicit Changing(int& count) : count_(++count) {}
    ~Changing() { --count_; }
    Changing(const Changing&) = delete;
    Changing& operator=(const Changing&) = delete;

   private:
    int& count_;
  };
  // For as long as it lives, a picture that arrives waits.
  class HeldArrivals {
   public:
    explicit HeldArrivals(Designer& designer) : designer_(designer) { ++designer_.holds_; }
    ~HeldArrivals() {
      --designer_.holds_;
      designer_.TakeArrivals();
    }
    HeldArrivals(const HeldArrivals&) = delete;
    HeldArrivals& operator=(const HeldArrivals&) = delete;

   private:
    Designer& designer_;
  };

  // Whether a document that an earlier run left stands now.
  bool OfferRecovered();
  std::optional<std::string> PlaceForRecovered(const std::string& title);
  bool CopyRecovered(const std::string& recovered, const std::string& place);
  bool OpenFromCache(RecoverDialog& dialog);
  // Behind a save: what is in the file needs no recovery.
  void EndRecovery(const std::string& savedTo);
  void DecideTemplate();
  void TellMissingFolders();
  void TellUnknownSettings();
  std::optional<FileFailure> WriteLastRunOptions();
  // What is to be read of a template; nothing where it was refused and that was told.
  std::optional<std::string> BytesToOpen(const std::string& path, const std::string& file, OpenedFrom from);
  void RefuseMissing(const std::string& path, OpenedFrom from);
  void TellReadFailure(const std::string& path, const std::string& reason);
  bool Refuse(const std::string& path, std::string_view bytes);
  // Reads and adopts; an empty path makes a document without a file, under the title of the look.
  bool ReadAndAdopt(const std::string& path, std::string_view bytes, const ReadLook& look = {});
  void Adopt(ReadOutcome outcome, std::string path, std::string title) noexcept;
  void ShowAdopted(FoundInFile found);
  bool SaveTo(const std::string& path);
  // Asks where somebody else's work would be overwritten.
  bool MayReplace(const std::string& path);
  bool IsOwnFile(const std::string& path) const;
  bool IsOwnRecovery(const std::string& path);
  // Behind a read or a save; tells where another running program has the file open.
  void HoldTemplate(const std::optional<FileStamp>& stamp, bool tell);
  // Whether FILEFORMAT asks for the packed form.
  bool IsEncoded() const;
  WriteReport WriteEncoded(const std::string& path);
  void TellUnreadable(const std::string& path, const std::string& reason);
  // Behind each open and save: the list, the thumbnail and the menu. A document without a file is none of it.
  void AddRecentFile();
  std::optional<FileFailure> StoreThumbnail();
  void TellWriteFailure(const FileFailure& failure);
  void TellUnnamedSymbologies(const WriteReport& report);
  void TellSampleFailure(const WriteReport& report);
  std::string WriteForTest(const std::string& path);
  TestRunWork TestWork();
  std::optional<std::string> ChooseTarget();
  std::optional<std::string> ChooseTarget(FileChoice choice);
  // What goes with a save that is done: recovery file, hold, list of recent files.
  void FollowSave(const std::string& path, const std::string& oldFolder, const WriteReport& report);
  void CheckSaved(const std::string& path, const std::string& oldFolder);
  SavedCheck CheckSavedFile(const std::string& path);
  void PictureArrived(const std::string& pictureFile, bool there);
  void ShowMadePictures();
  void TakeArrivals() noexcept;
  void PutBack(Kept kept) noexcept;
  void TellFailure(const GuardedWork& work, const std::string& reason);
  void SetFindings(std::vector<Finding> findings);
  ReadServices Services(ReadProgress* progress);

  Host& host_;
  const TextMeasurer& measurer_;
  StartInput input_;
  DesignerView* view_ = nullptr;
  Document document_;
  DesignerOptions options_;
  DesignerOptions optionsAsRead_;
  LastUsed last_;
  UserSettings settings_;
  DesignerFolders folders_;
  Theme theme_;
  LanguageTexts texts_;
  CommandLineParts command_;
  FolderPictures pictures_;
  QrImages qrImages_;
  SampleCopy samples_;
  std::string documentPath_;
  std::string documentTitle_{kFreshTitle};
  std::vector<std::string> recent_;
  // The file of an earlier run that was opened where it lay.
  Recovery opened_;
  TemplateHold hold_;
  std::vector<Finding> findings_;
  // Pictures that came while something else was under way, and whether they are there.
  std::vector<std::pair<std::string, bool>> arrivals_;
  int changes_ = 0;  // that are under way
  // Images that the page shows were made beside it.
  bool imagesMade_ = false;
  int holds_ = 0;
  // Counts the documents that have stood in the tables.
  int generation_ = 0;
  double zoomPercent_ = 100;
  DisplayFilter filter_ = DisplayFilter::All;
  int session_ = 0;
  char language_ = 'E';
  bool modified_ = false;
  bool firstActivation_ = false;
  bool documentShown_ = false;
  bool optionsRead_ = false;
  NullSurface nowhere_;
  ChartImages charts_{*this};
  DesignSurface surface_{*this};
  PropertySheets sheets_{*this};
  QuickProperties quick_{*this};
};

}  // namespace kev
