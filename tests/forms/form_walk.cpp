// SPDX-License-Identifier: MIT
#include "forms/form_walk.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/chart_runs.h"
#include "app/recover.h"
#include "base/text_numbers.h"
#include "platform/app_style.h"
#include "platform/forms/back01.h"
#include "platform/forms/form_props.h"
#include "platform/forms/kavsplash.h"
#include "platform/forms/progress_window.h"
#include "platform/forms/quick_panel.h"
#include "platform/forms/show_colors.h"
#include "platform/text_bridge.h"
#include "platform/ui_language.h"
#include "surface/object_description.h"

namespace kev::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSample =
    "[CONFIGURATION]\r\nSample_Kex_file=work.kex\r\n$Col_01=2400\r\nKEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}"
    "\r\n[DATA]\r\n"
    "{F=Arial;S=10}\r\n{1000;}@name{\\n}\r\n{Spacing=600;\\n}\r\n{2000;}@name2{\\n}\r\n"
    "{Spacing=4000;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n";
constexpr const char* kSampleData = "TEMPLATE=form.kev\r\n|DATA|@name|@name2|\r\n|DATA|1|2|\r\n";

constexpr auto kInserted = std::to_array<Command>(
    {Command::InsertTextBox, Command::InsertBox, Command::InsertHorizontalLine, Command::InsertAnyLine,
     Command::InsertCircle, Command::InsertBarcode, Command::InsertPageBreak, Command::InsertExecuteCommand});

void WriteFile(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

void CloseModal(QWidget& form) {
  if (auto* dialog = qobject_cast<QDialog*>(&form)) return dialog->reject();
  form.close();
}

// A form with pages is visited once for each.
void VisitPages(const FormVisit& visit, const std::string& name, QWidget& form) {
  const QList<QTabWidget*> tabs = form.findChildren<QTabWidget*>();
  if (tabs.isEmpty()) return visit(name, form);
  for (QTabWidget* pages : tabs)
    for (int page = 0; page < pages->count(); ++page) {
      pages->setCurrentIndex(page);
      QCoreApplication::processEvents();
      visit(name + " page " + std::to_string(page + 1), form);
    }
}

}  // namespace

FormWalk::FormWalk(char language, const std::string& languageFile) {
  ApplyStyle(*qApp);
  InstallProgram(languageFile, language);
  StartInput input = home_.Input({});
  input.ProgramFolder = home_.Path("program");
  designer_ = std::make_unique<Designer>(host_, measurer_, std::move(input));
  host_.UseNativeDialogs(false);
  if (!designer_->Load() || designer_->Language() != language) throw std::runtime_error("no language file");
  SetButtonCaptions(host_, designer_->Texts());
  window_ = std::make_unique<KavEdit01>(*designer_, host_, fonts_, images_);
  designer_->BeginActivation();  // no splash, no start
  window_->show();
  window_->activateWindow();
  if (!QTest::qWaitForWindowExposed(window_.get())) throw std::runtime_error("the window does not show");
  OpenSample();
}

FormWalk::~FormWalk() = default;

// The program's own folder, with another language file.
void FormWalk::InstallProgram(const std::string& languageFile, char language) {
  const fs::path program = home_.Path("program");
  fs::create_directory(program);
  for (const auto& entry : fs::directory_iterator(KEV_PROGRAM_DIR))
    if (entry.path().filename() != "Kev.lng")
      fs::create_symlink(entry.path(), program / entry.path().filename());
  fs::copy_file(languageFile, program / "Kev.lng");
  WriteFile(home_.Path("data/Kev/activelang"), "ACTIVELANG=" + std::string(1, language) + "\r\n");
}

void FormWalk::OpenSample() {
  WriteFile(home_.Path("work/form.kev"), kSample);
  WriteFile(home_.Path("work/work.kex"), kSampleData);
  if (!designer_->OpenTemplate(home_.Path("work/form.kev"))) throw std::runtime_error("no sample");
  for (const Command command : kInserted) {
    const PageWork work = designer_->Surface().Work();
    for (const int row : ObjectsInReadingOrder(work))
      if (work.document.Objects[row].Content == "@name2") designer_->Surface().PickObject(row);
    window_->Run(command);
  }
}

void FormWalk::Run(FormVisit visit) {
  VisitWindow(visit);
  VisitDialogs(visit);
}

// --- The window ---

void FormWalk::VisitWindow(const FormVisit& visit) {
  window_->ShowPanel(kPanelDocked);
  window_->Run(Command::ShowFindings);
  QCoreApplication::processEvents();
  VisitSheets(visit);
  window_->Run(Command::ShowFindings);
  window_->ShowPanel(kPanelFloating);
  QCoreApplication::processEvents();
  visit("FormPROPS", *window_->findChild<FormPROPS*>());
  window_->ShowPanel(kPanelDocked);
  QCoreApplication::processEvents();
  kavsplash splash(ToQString(designer_->Text(kTextProgramTitle)), window_.get());
  splash.show();
  visit("kavsplash", splash);
  auto* progress = window_->findChild<ProgressWindow*>();
  progress->Begin(ToQString(designer_->Text(kTextStatusReading)), 10);
  progress->OfferStop();
  visit("progresswindow", *progress);
  progress->End();
}

// Sheet and quick panel of nothing, and of the first object of each kind.
void FormWalk::VisitSheets(const FormVisit& visit) {
  designer_->Surface().CancelGesture();
  visit("KavEdit01", *window_);
  if (!designer_->Options().ShowQuickProps) window_->Run(Command::ShowQuickPanel);
  std::vector<ObjectKind> seen;
  for (const int row : ObjectsInReadingOrder(designer_->Surface().Work())) {
    const ObjectKind kind = designer_->OpenDocument().Objects[row].Kind;
    if (std::find(seen.begin(), seen.end(), kind) != seen.end()) continue;
    seen.push_back(kind);
    designer_->Surface().PickObject(row);
    window_->Run(Command::Properties);
    QCoreApplication::processEvents();
    visit("KavEdit01 with " + std::string(KindText(kind)), *window_);
  }
}

// --- Dialogs ---

void FormWalk::VisitModal(const FormVisit& visit, const char* form, const std::function<void()>& open) {
  bool seen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, qApp, [&] {
    QWidget* shown = QApplication::activeModalWidget();
    if (shown == nullptr || !shown->isVisible()) return;
    look.stop();
    const QString name = QString::fromLatin1(shown->metaObject()->className());
    seen = name.endsWith(QLatin1String(form));
    QCoreApplication::processEvents();
    if (seen) VisitPages(visit, form, *shown);
    CloseModal(*shown);
    if (!seen) look.start(1);
  });
  look.start(1);
  open();
  if (!seen) missed_.emplace_back(form);
}

void FormWalk::VisitDialogs(const FormVisit& visit) {
  const auto command = [this](Command id) { return [this, id] { window_->Run(id); }; };
  const LanguageTexts& texts = designer_->Texts();
  VisitModal(visit, "SubSectionpropert", command(Command::NewSubsection));
  VisitModal(visit, "inscol01", command(Command::SetColumns));
  VisitModal(visit, "SetThisColumn", [this] {
    designer_->Surface().Pointer().MenuAt.Slot = 1;
    window_->Run(Command::SetColumn);
  });
  VisitModal(visit, "Wizard1", command(Command::InsertChart));
  VisitModal(visit, "Back01", [&] { Back01::Choose("255,0,0,0,0,255", texts, window_.get()); });
  VisitModal(visit, "ShowColors", [&] { ShowColors::Choose(0xFF0000, texts, window_.get()); });
  VisitModal(visit, "docpropertiesfrm", command(Command::DocumentProperties));
  VisitModal(visit, "NewTemplate", command(Command::NewFromData));
  VisitModal(visit, "Fastopen", [this] { designer_->ShowWelcome(); });
  VisitGroupDialogs(visit);
  VisitRecovery(visit);
  VisitBoxes(visit);
}

void FormWalk::VisitGroupDialogs(const FormVisit& visit) {
  for (const auto& [form, command] :
       {std::pair("placeselection", Command::PlaceAt), std::pair("AlignToGridFrm", Command::AlignToGrid),
        std::pair("Modifyenduser", Command::ModifyEndUser),
        std::pair("PrintNoPrintFrm", Command::PrintNoPrint)}) {
    VisitModal(visit, form, [this, id = command] {
      window_->Run(Command::SelectAll);
      window_->Run(id);
    });
  }
}

void FormWalk::VisitRecovery(const FormVisit& visit) {
  WriteFile(home_.Path("temp/Kev/Cache/Recovered_090530_report.kev"), kSample);
  RecoverDialog dialog = ListRecovered(home_.Path("temp/Kev/Cache"));
  SelectRecovered(dialog, 0);
  VisitModal(visit, "Recover_form", [&] { window_->ShowRecoverDialog(dialog); });
}

void FormWalk::VisitBoxes(const FormVisit& visit) {
  VisitModal(visit, "QMessageBox", [this] {
    host_.ShowMessage({designer_->Text(kTextProgramTitle),
                       designer_->Text(kTextObjectsTooFarApart),
                       {},
                       BoxIcon::Question,
                       BoxButtons::YesNoYesToAll});
  });
}

}  // namespace kev::test
