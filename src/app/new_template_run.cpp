// SPDX-License-Identifier: MIT
#include "app/new_template_run.h"

#include <algorithm>

#include "app/designer.h"
#include "app/message_texts.h"
#include "base/files.h"
#include "base/reasons.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "template/skeleton.h"
#include "testrun/editor.h"

namespace kev {
namespace {

constexpr std::string_view kRecordFiles = "*.kex *.KEX";
constexpr std::string_view kVariableFiles = "*.ked *.KED";

// A character that a line of the template can't hold, as UTF-8; empty when there is none.
std::string RefusedIn(const std::string& path, const CodePage& page, std::string& text) {
  std::string refused;
  const std::optional<std::string> converted = page.FromUtf8(path, &refused);
  if (!converted) return refused;
  text = *converted;
  return text.find_first_of("\r\n") == std::string::npos ? std::string() : "\\n";
}

// What stands behind the first colon of a head is no part of its name, so these subsections are of no
// records.
std::vector<Finding> NamesWithColon(const Document& document, const std::vector<RecordType>& types) {
  std::vector<Finding> findings;
  for (const RecordType& type : types) {
    if (type.Name.find(':') == std::string::npos) continue;
    const std::string head = " [" + type.Name + ":";
    for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
      if (document.Objects[row].SectionTitle.Text().find(head) == std::string::npos) continue;
      findings.push_back({0, 0, FindingKind::NameWithColon, type.Name, row});
      break;
    }
  }
  return findings;
}

}  // namespace

NewTemplateRun::NewTemplateRun(Designer& designer, const std::string& path) : designer_(designer) {
  if (!path.empty()) TakePath(path);
}

std::string NewTemplateRun::StatusText() const {
  std::string text;
  for (const NumberedText& line : StatusLines(state_)) {
    if (!text.empty()) text += '\n';
    text += designer_.Text(line.Text) + line.Words;
  }
  return text;
}

void NewTemplateRun::ChooseStart(TemplateStart start) {
  if (state_.Checking || start == state_.Start) return;
  state_.Start = start;
  // A file of the other kind is not what is wanted now.
  const SampleKind kind = KindOfStart(start);
  if (kind == SampleKind::Other || SampleKindOf(Trim(state_.Text1)) == kind) return;
  state_.Text1.clear();
  state_.Survey.reset();
}

void NewTemplateRun::TakePath(const std::string& path) {
  state_.Text1 = path;
  state_.Start = StartOfFile(state_.Start, path);
  state_.Survey.reset();
  state_.Progress1 = 0;
}

void NewTemplateRun::TypePath(const std::string& path) {
  if (!state_.Checking && path != state_.Text1) TakePath(path);
}

// What is typed may be relative to the open template, or written as on another system.
std::string NewTemplateRun::DataFile() const {
  const std::string typed(Trim(state_.Text1));
  const std::string folder = designer_.TemplateFolder();
  return AbsolutePath(FindFile(typed, folder).value_or(typed));
}

void NewTemplateRun::Browse() {
  designer_.GuardedView([this] {
    if (!CanChooseFile(state_)) return;
    FileChoice choice;
    choice.Title = designer_.Text(kTextAssistantDataFile);
    choice.Folder = state_.Text1.empty() ? designer_.TemplateFolder() : FolderOf(DataFile());
    const std::string_view patterns = state_.Start == TemplateStart::Records ? kRecordFiles : kVariableFiles;
    choice.Filters = {{designer_.Text(kTextAssistantDataFile), std::string(patterns)}};
    const std::optional<std::string> path = designer_.TheHost().ChooseFileToOpen(choice);
    if (!path || path->empty()) return;
    TakePath(*path);
    Check();
  });
}

void NewTemplateRun::Check() {
  designer_.GuardedView([this] {
    if (!CanReload(state_)) return;
    Survey();
    if (const auto message = MessageOn(state_.Survey->Check, DataFile())) Tell(*message);
  });
}

void NewTemplateRun::Survey() {
  struct Working {
    NewTemplateDialog& state;
    ~Working() { state.Checking = false; }
  } working{state_};
  stopped_ = false;
  state_.Survey.reset();
  state_.Progress1 = 0;
  state_.Checking = true;
  const auto watch = [this](std::uint64_t done, std::uint64_t size) {
    const std::uint64_t of = std::max<std::uint64_t>(size, 1);
    state_.Progress1 = static_cast<int>(std::min(done, of) * NewTemplateDialog::kProgressEnd / of);
    if (OnProgress) OnProgress();
    return !stopped_;
  };
  state_.Survey = SurveySampleFile(DataFile(), *designer_.OpenDocument().Page, watch);
}

void NewTemplateRun::Tell(const SampleMessage& message) const {
  std::string text = designer_.Text(message.Text);
  if (message.Behind != 0) text += " " + designer_.Text(message.Behind);
  if (message.Line != 0) text += " " + std::to_string(message.Line);
  if (message.Hint != 0) text += "\r\n" + designer_.Text(message.Hint);
  if (!message.Path.empty()) text += "\r\n";
  const std::string detail =
      message.Path.empty() ? std::string()
                           : message.Path + "\r\n" + ReasonInLanguage(designer_.Texts(), message.Reason);
  designer_.TheHost().ShowMessage({designer_.Text(kTextProgramTitle), text, detail, BoxIcon::Critical});
}

void NewTemplateRun::Edit() {
  designer_.GuardedView([this] {
    if (!CanEdit(state_)) return;
    OpenInEditor(designer_.TheHost(), designer_.Surface(), designer_.Settings().DefaultEditor, DataFile());
  });
}

bool NewTemplateRun::Create() {
  bool created = false;
  designer_.GuardedView([&] {
    if (!CanCreate(state_)) return;
    created = state_.Start == TemplateStart::Nothing ? designer_.AskAndNew() : CreateFromData();
  });
  return created;
}

bool NewTemplateRun::CreateFromData() {
  // The file may have been edited since it was checked.
  Check();
  if (!CanCreate(state_)) return false;
  std::string text;
  return MakeText(DataFile(), text) && designer_.AskToSave() && WriteAndOpen(text);
}

bool NewTemplateRun::MakeText(const std::string& file, std::string& text) const {
  const Document& document = designer_.OpenDocument();
  MadeTemplate made{document.Settings[Setting::Spacing], {}};
  if (const std::string refused = RefusedIn(file, *document.Page, made.SamplePath); !refused.empty()) {
    designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, refused);
    return false;
  }
  if (SampleKindOf(file) == SampleKind::Ked) return MakeVariables(made, file, text);
  text = RecordsTemplateText(made, state_.Survey->Types, designer_.Text(kTextFieldWord));
  return true;
}

bool NewTemplateRun::MakeVariables(const MadeTemplate& made, const std::string& file,
                                   std::string& text) const {
  const SampleVariables variables = ReadSampleVariables(file, kMostVariables);
  if (variables.Failure || variables.TooMany) {
    const std::string reason = variables.TooMany ? kReasonTooManyObjects : variables.Failure->reason;
    Tell({.Text = kTextReadFailed, .Path = file, .Reason = reason});
    return false;
  }
  text = VariablesTemplateText(made, variables.Names);
  return true;
}

bool NewTemplateRun::WriteAndOpen(const std::string& text) const {
  const std::string path = JoinPath(designer_.Folders().TempFolder, kSkeletonFile);
  // The document is made from the same text in memory, so that it needs no folder.
  if (const std::optional<FileFailure> failure = WriteWholeFile(path, text))
    Tell({.Text = kTextWriteFailed, .Path = failure->path, .Reason = failure->reason});
  if (!designer_.OpenFresh(text)) return false;
  designer_.AddFindings(NamesWithColon(designer_.OpenDocument(), state_.Survey->Types));
  return true;
}

}  // namespace kev
