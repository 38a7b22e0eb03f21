// SPDX-License-Identifier: MIT
// Opening and saving.
#include <algorithm>
#include <filesystem>

#include "app/designer.h"
#include "app/host_progress.h"
#include "app/message_texts.h"
#include "app/new_template_run.h"
#include "app/template_findings.h"
#include "base/files.h"
#include "base/reasons.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "chart/definition.h"
#include "document/sections.h"
#include "template/packed.h"
#include "template/skeleton.h"
#include "template/template_check.h"

namespace kev {
namespace {

constexpr std::string_view kExtension = ".kev";
// The values of FILEFORMAT, and the kinds of file that stand for them in the chooser; the third kind, any
// file, leaves the format as it is.
constexpr std::string_view kPlainFormat = "1";
constexpr std::string_view kEncodedFormat = "2";
constexpr int kPlainFilter = 0;
constexpr int kEncodedFilter = 1;
// In TempFolder: what is packed. No plain text ever stands beside a packed template.
constexpr std::string_view kToPackName = "pack.kev";
// The question stands under this title in all languages.
constexpr std::string_view kClosingTitle = "Kev Visual Editor";

int TextOf(Refusal refusal) {
  switch (refusal) {
    case Refusal::None:
      break;
    case Refusal::NoSections:
      return kTextNotATemplate;
    case Refusal::NoHeader:
      return kTextNoHeader;
    case Refusal::WrongStructure:
      return kTextWrongStructure;
  }
  return 0;
}

bool IsTemplateName(std::string_view path) {
  return CodePage::Default().Upper(path).ends_with(".KEV");
}

// The file that an object names; empty where it names none.
std::string FileNamedBy(const ObjectRecord& record) {
  if (record.Kind == ObjectKind::Picture) return record.PicturePath;
  if (record.Kind != ObjectKind::Chart) return {};
  const std::size_t background = *ChartKeyIndex("GRAPH_BACKGROUND_PICTURE");
  return background < record.ChartValues.size() ? record.ChartValues[background] : std::string();
}

// Files that are named relative to the folder that the template has left.
std::vector<Finding> LostFiles(const Document& document, const std::string& oldFolder,
                               const std::string& newFolder) {
  std::vector<Finding> lost;
  if (oldFolder == newFolder) return lost;
  const auto look = [&](const std::string& name, int row) {
    const std::string path = document.Page->ToUtf8(name);
    if (FindFile(path, oldFolder) && !FindFile(path, newFolder))
      lost.push_back({0, 0, FindingKind::MissingFile, name, row});
  };
  look(document.Settings[Setting::Sample_Kex_file], 0);
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    look(FileNamedBy(document.Objects[row]), row);
  return lost;
}

}  // namespace

bool Designer::OpenTemplate(const std::string& path, OpenedFrom from) {
  std::string file;
  std::optional<FileStamp> stamp;
  std::optional<std::string> bytes;
  // A file of any size is taken up here, which memory may not have room for.
  const auto look = [&] {
    file = FindFile(path, {}).value_or(path);
    // Before the read, so that no change behind it is missed.
    stamp = StampOf(file);
    bytes = BytesToOpen(path, file, from);
  };
  if (!GuardedView({kTextReadFailed, path}, look, {}) || !bytes) return false;
  if (!ReadAndAdopt(AbsolutePath(file), *bytes)) {
    NewTemplate();
    return false;
  }
  GuardedView([&] { HoldTemplate(stamp, true); });
  return true;
}

std::optional<std::string> Designer::BytesToOpen(const std::string& path, const std::string& file,
                                                 OpenedFrom from) {
  const bool checked = from != OpenedFrom::Start || !command_.SkipsChecks();
  std::error_code ignored;
  if (checked && !std::filesystem::exists(file, ignored)) {
    RefuseMissing(path, from);
    return std::nullopt;
  }
  Result<std::string> bytes = ReadPlainTemplate(file, folders_.TempFolder);
  if (!bytes) {
    TellUnreadable(path, bytes.Error().reason);
    return std::nullopt;
  }
  if (checked && Refuse(file, *bytes)) return std::nullopt;
  return std::move(*bytes);
}

void Designer::HoldTemplate(const std::optional<FileStamp>& stamp, bool tell) {
  if (!hold_.Take(documentPath_, stamp) && tell)
    ShowText(kTextOpenElsewhere, BoxIcon::Warning, documentPath_);
}

// An archive from which nothing can be had is no template.
void Designer::TellUnreadable(const std::string& path, const std::string& reason) {
  if (reason == kReasonPackedDamaged) return ShowText(kTextNotATemplate, BoxIcon::Critical, path);
  TellReadFailure(path, reason);
}

void Designer::RefuseMissing(const std::string& path, OpenedFrom from) {
  if (from == OpenedFrom::Start) return host_.ShowStatus(Text(kTextFileMissing) + " ", path);
  ShowText(kTextFileMissing, BoxIcon::Critical, path);
}

void Designer::TellReadFailure(const std::string& path, const std::string& reason) {
  host_.ShowMessage({Text(kTextProgramTitle),
                     Text(kTextReadFailed) + "\r\nFile: ", path + "\r\n" + ReasonInLanguage(texts_, reason)});
}

bool Designer::Refuse(const std::string& path, std::string_view bytes) {
  const Refusal refusal = RefusalOf(CheckTemplateBytes(bytes, *document_.Page));
  if (refusal == Refusal::None) return false;
  ShowText(TextOf(refusal), BoxIcon::Critical, path);
  return true;
}

bool Designer::ReadAndAdopt(const std::string& path, std::string_view bytes, const ReadLook& look) {
  // A picture of the new document may be there before its record is.
  const HeldArrivals held(*this);
  pictures_.SetTemplateFolder(path.empty() ? folders_.TempFolder : FolderOf(path));
  bool adopted = false;
  FoundInFile found;
  // The open document is not touched until the new one is there as a whole, so that nothing is to be kept.
  const auto read = [&] {
    HostProgress progress(host_, texts_);
    Result<ReadOutcome> outcome =
        ReadTemplateBytes(bytes, Services(look.ShowsProgress ? &progress : nullptr));
    progress.End();
    if (!outcome) return TellReadFailure(path, outcome.Error().reason);
    found = {std::move(outcome->Findings), std::move(outcome->Places), bytes};
    Adopt(std::move(*outcome), path, path.empty() ? std::string(look.Title) : FileNameOf(path));
    adopted = true;
  };
  GuardedView({kTextReadFailed, path}, read, {});
  if (adopted) {
    surface_.TheRecovery().Delete();
    opened_.LeaveBehind();
    hold_.Release();
    GuardedView([&] { ShowAdopted(std::move(found)); });
    AddRecentFile();
  } else {
    pictures_.SetTemplateFolder(TemplateFolder());
  }
  return adopted;
}

// Moves only: half of a document never stands in the tables.
void Designer::Adopt(ReadOutcome outcome, std::string path, std::string title) noexcept {
  ++generation_;
  document_ = std::move(outcome.Read);
  documentPath_ = std::move(path);
  documentTitle_ = std::move(title);
  modified_ = false;
  documentShown_ = true;
}

void Designer::ShowAdopted(FoundInFile found) {
  ShowCaption();
  surface_.DocumentReplaced();
  if (view_ != nullptr) view_->DocumentReplaced();
  // The list of the document before must not stay, whatever painting does.
  SetFindings({});
  DeriveGeometryAndRedraw();
  SetFindings(OpenedFindings(document_, std::move(found), measurer_));
  surface_.BuildRulers();
}

// A fresh document is there at once; what the status line says about another file stays.
bool Designer::OpenFresh(std::string_view bytes) {
  return ReadAndAdopt({}, bytes, {.ShowsProgress = false});
}

void Designer::NewTemplate() {
  const std::string spacing = document_.Settings[Setting::Spacing];
  // The document is made from the same text in memory, so that it needs no folder.
  static_cast<void>(WriteSkeleton(folders_.TempFolder, spacing));
  OpenFresh(SkeletonText(spacing));
}

bool Designer::AskAndOpen(const std::string& path) {
  return AskToSave() && OpenTemplate(path);
}

bool Designer::ChooseAndOpen() {
  if (!AskToSave()) return false;
  FileChoice choice;
  choice.Title = Text(kTextMenuOpen);
  choice.Folder = documentPath_.empty() ? std::string() : FolderOf(documentPath_);
  choice.Filters = {{Text(kTextFilesPlain), "*.kev *.KEV"}, {Text(kTextFilesAll), "*"}};
  const std::optional<std::string> path = host_.ChooseFileToOpen(choice);
  return path && OpenTemplate(*path);
}

bool Designer::AskAndNew() {
  if (!AskToSave()) return false;
  NewTemplate();
  return true;
}

void Designer::NewFromData(const std::string& path) {
  NewTemplateRun run(*this, path);
  if (view_ != nullptr) view_->OpenNewTemplate(run);
}

bool Designer::AskToSave() {
  // What is being typed belongs to the document that is given up.
  surface_.CommitOpenEdits();
  if (!modified_) return true;
  const BoxAnswer answer = host_.ShowMessage({std::string(kClosingTitle), Text(kTextSaveChanges) + " ",
                                              documentTitle_, BoxIcon::Question, BoxButtons::YesNoCancel});
  if (answer == BoxAnswer::Yes) return Save();
  return answer == BoxAnswer::No;
}

bool Designer::Save() {
  return documentPath_.empty() ? SaveAs() : SaveTo(documentPath_);
}

bool Designer::SaveAs() {
  FileChoice choice;
  choice.Title = Text(kTextMenuSaveAs);
  choice.Folder = documentPath_.empty() ? std::string() : FolderOf(documentPath_);
  choice.SuggestedName = documentTitle_;
  choice.Filters = {{Text(kTextFilesPlain), "*.kev *.KEV"},
                    {Text(kTextFilesEncoded), "*.kev *.KEV"},
                    {Text(kTextFilesAll), "*"}};
  int kind = IsEncoded() ? kEncodedFilter : kPlainFilter;
  choice.Filter = &kind;
  const std::optional<std::string> target = ChooseTarget(std::move(choice));
  if (!target) return false;
  std::string& format = document_.Settings[Setting::FILEFORMAT];
  const std::string before = format;
  if (kind == kPlainFilter) format = kPlainFormat;
  if (kind == kEncodedFilter && !IsEncoded()) format = kEncodedFormat;
  if (SaveTo(*target)) return true;
  document_.Settings[Setting::FILEFORMAT] = before;
  return false;
}

bool Designer::IsEncoded() const {
  return AsksForPacking(document_.Settings);
}

// The chooser asks before it lets a file be replaced, so a name that only becomes one of an existing file by
// its ending is chosen once more.
std::optional<std::string> Designer::ChooseTarget(FileChoice choice) {
  while (true) {
    const std::optional<std::string> chosen = host_.ChooseFileToSave(choice);
    // The pattern itself comes back from a chooser in which nothing was typed.
    if (!chosen || chosen->empty() || FileNameOf(*chosen) == "*.kev") return std::nullopt;
    const std::string path = AbsolutePath(*chosen);
    if (IsTemplateName(path)) return path;
    const std::string named = path + std::string(kExtension);
    if (!FileExists(named)) return named;
    choice.Folder = FolderOf(named);
    choice.SuggestedName = FileNameOf(named);
  }
}

std::string Designer::SampleDataPath() const {
  const std::string written(Trim(document_.Settings[Setting::Sample_Kex_file]));
  if (written.empty()) return {};
  const std::string named = document_.Page->ToUtf8(written);
  if (const auto found = FindFile(named, TemplateFolder())) return *found;
  // The name on the disk may be in the code page as well.
  if (const auto found = FindFile(written, TemplateFolder())) return *found;
  return (std::filesystem::path(TemplateFolder()) / named).string();
}

WriteReport Designer::WriteDocument(const std::string& path) {
  std::optional<FileFailure> sampleFailure =
      samples_.Renew(folders_.TempFolder, input_.Clock(), SampleDataPath(), path);
  WriteReport report = WriteTemplate(path, document_, WriteOptions{command_.WriterComments()});
  report.SampleFailure = std::move(sampleFailure);
  return report;
}

WriteReport Designer::WriteEncoded(const std::string& path) {
  WriteReport report;
  report.SampleFailure = samples_.Renew(folders_.TempFolder, input_.Clock(), SampleDataPath(), path);
  const std::string text = TemplateText(document_, WriteOptions{command_.WriterComments()}, report);
  const Result<WorkFile> plain = WorkFile::Write(folders_.TempFolder, std::string(kToPackName), text);
  report.Failure = plain ? PackTemplate(plain->Path(), path) : plain.Error();
  return report;
}

void Designer::TellWriteFailure(const FileFailure& failure) {
  ShowText(kTextWriteFailed, BoxIcon::Critical,
           failure.path + "\r\n" + ReasonInLanguage(texts_, failure.reason));
}

void Designer::TellUnnamedSymbologies(const WriteReport& report) {
  for (const std::string& symbology : report.UnnamedSymbologies)
    host_.ShowMessage({Text(kTextProgramTitle), symbology, {}, BoxIcon::Warning});
}

// Data that is not there needs no copy; what is there and can't be copied leaves the viewer without.
void Designer::TellSampleFailure(const WriteReport& report) {
  if (!report.SampleFailure || !FileExists(SampleDataPath())) return;
  ShowText(kTextSampleNotCopied, BoxIcon::Warning,
           report.SampleFailure->path + "\r\n" + ReasonInLanguage(texts_, report.SampleFailure->reason));
}

// Also where a link leads to it.
bool Designer::IsOwnFile(const std::string& path) const {
  std::error_code ignored;
  return !documentPath_.empty() &&
         (path == documentPath_ || std::filesystem::equivalent(path, documentPath_, ignored));
}

bool Designer::IsOwnRecovery(const std::string& path) {
  std::error_code ignored;
  const auto isSame = [&](const std::string& other) {
    return !other.empty() && std::filesystem::equivalent(path, other, ignored);
  };
  return isSame(surface_.TheRecovery().RecoveryFile()) || isSame(opened_.RecoveryFile());
}

bool Designer::MayReplace(const std::string& path) {
  int question = 0;
  if (IsOwnFile(path)) {
    if (hold_.IsChanged(path)) question = kTextChangedElsewhere;
  } else if (!IsOwnRecovery(path) && IsOpenElsewhere(path)) {
    question = kTextReplaceOpenElsewhere;
  }
  if (question == 0) return true;
  const MessageBox box{Text(kTextProgramTitle), Text(question) + " ", path,
                       BoxIcon::Question,       BoxButtons::YesNo,    true};
  return host_.ShowMessage(box) == BoxAnswer::Yes;
}

bool Designer::SaveTo(const std::string& path) {
  if (!MayReplace(path)) return false;
  host_.ShowStatus(Text(kTextStatusSaving));
  // Made before the file is written: once it is, nothing may be in the way of saying so.
  std::string written = path, title = FileNameOf(path);
  const std::string oldFolder = TemplateFolder();
  WriteReport report;
  const GuardedWork rest{kTextSavedNotAll, path};
  const std::function<void()> follow = [&] { FollowSave(path, oldFolder, report); };
  const std::function<void()> check = [&] { CheckSaved(path, oldFolder); };
  const bool done = Guarded([&] { report = IsEncoded() ? WriteEncoded(path) : WriteDocument(path); });
  if (!done || report.Failure) {
    host_.ShowStatus("");
    if (report.Failure) TellWriteFailure(*report.Failure);
    return false;
  }
  documentPath_.swap(written);
  documentTitle_.swap(title);
  modified_ = false;
  GuardedView(rest, follow, {});
  GuardedView(rest, check, {});
  return true;
}

void Designer::FollowSave(const std::string& path, const std::string& oldFolder, const WriteReport& report) {
  // At once, so that a change by somebody else is not taken for what was written here.
  HoldTemplate(StampOf(path), false);
  EndRecovery(path);
  pictures_.SetTemplateFolder(FolderOf(path));
  // Sample data that is named without a folder is looked for beside the template.
  if (TemplateFolder() != oldFolder) GuardedView([this] { quick_.UpdateQuickPanel(); });
  ShowCaption();
  host_.ShowStatus("");
  TellUnnamedSymbologies(report);
  TellSampleFailure(report);
  AddRecentFile();
}

// The file is there; whatever is found now only tells about it.
void Designer::CheckSaved(const std::string& path, const std::string& oldFolder) {
  SavedCheck back = CheckSavedFile(path);
  const std::vector<Finding> missing = LostFiles(document_, oldFolder, FolderOf(path));
  back.Findings.insert(back.Findings.end(), missing.begin(), missing.end());
  if (back.Structure) {
    host_.ShowStatus(Text(kTextReadBackDiffers));
  } else if (!back.Same) {
    host_.ShowStatus(Text(kTextSavedWithFindings));
  } else if (!missing.empty()) {
    host_.ShowStatus(Text(kTextRelativeFilesMissing));
  }
  SetFindings(std::move(back.Findings));
}

SavedCheck Designer::CheckSavedFile(const std::string& path) {
  // Sizes of pictures are not compared unless the template gives them, so that none is looked at or fetched.
  NoPictures pictures;
  ReadServices services{measurer_, pictures, settings_.DefaultPaperSize, document_.Page, nullptr};
  const Result<std::string> bytes = ReadPlainTemplate(path);
  Result<ReadOutcome> outcome =
      bytes ? ReadTemplateBytes(*bytes, services) : Result<ReadOutcome>(bytes.Error());
  if (!outcome) {
    const std::string reason = ReasonInLanguage(texts_, outcome.Error().reason);
    return {{{0, 0, FindingKind::WillNotComeBack, document_.Page->FromUtf8(reason).value_or(reason), 0}},
            false,
            true};
  }
  return SavedFindings(document_, *outcome, *bytes);
}

}  // namespace kev
