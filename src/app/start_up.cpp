// SPDX-License-Identifier: MIT
// The first and the last steps of a run.
#include <ctime>

#include "app/designer.h"
#include "app/message_texts.h"
#include "base/files.h"
#include "base/folder.h"
#include "base/text_numbers.h"

namespace kev {
namespace {

bool IsSampleCopy(const std::string& name) {
  const std::string capitals = CodePage::Default().Upper(name);
  return capitals.starts_with("SAMPLEDATA") && (capitals.ends_with(".KEX") || capitals.ends_with(".KED"));
}

// All of them, whoever left them there.
void DeleteSampleCopies(const std::string& folder) {
  for (const std::string& name : NamesIn(folder)) {
    const std::string copy = JoinPath(folder, name);
    if (IsSampleCopy(name) && FileExists(copy)) DeleteFileIfThere(copy);
  }
}

}  // namespace

ClockTime StartInput::LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_hour, local.tm_min, local.tm_sec};
}

bool Designer::Load() {
  zoomPercent_ = 100;
  folders_ = FindFolders(input_.Variables, input_.ProgramFolder);
  theme_ = LoadTheme(InProgramFolder(folders_, kThemeFile));
  language_ = FindActiveLanguage(folders_);
  Result<LanguageTexts> texts = LoadLanguage(InProgramFolder(folders_, "\\Kev.lng"), language_);
  if (!texts) {
    host_.ShowMessage({std::string(kLanguageErrorTitle), std::string(kLanguageErrorText), {}});
    return false;
  }
  texts_ = std::move(*texts);
  command_ = ParseCommandLine(input_.Arguments);
  firstActivation_ = true;
  return true;
}

bool Designer::BeginActivation() {
  return std::exchange(firstActivation_, false);
}

void Designer::SplashLoad() {
  command_.CommandLine = ResolveTemplatePath(command_.CommandLine);
  document_.Objects.Restart();
  document_.Columns.Clear();
  document_.Settings = DocumentSettings();
  language_ = FindActiveLanguage(folders_);
  session_ = NextSession(InDataFolder(folders_, kSessionFile));
  options_ = LoadOptions(InDataFolder(folders_, kLastRunFile));
  optionsAsRead_ = options_;
  optionsRead_ = true;
  last_ = LastUsedIn(options_);
  settings_ = LoadUserSettings(InDataFolder(folders_, kSettingsFile));
  document_.Page = settings_.Page;
  pictures_.SetPage(*document_.Page);
  pictures_.AllowRemote(settings_.RemotePictures);
}

void Designer::AfterSplash() {
  // Each on its own, so that a document stands there behind all of it.
  GuardedView([this] {
    sheets_.Start();
    TellMissingFolders();
    TellUnknownSettings();
    RefreshRecentMenu();
  });
  bool recovered = false;
  GuardedView([&] { recovered = OfferRecovered(); });
  if (!recovered) DecideTemplate();
  const bool isFresh = documentPath_.empty() && !modified_;
  if (isFresh && options_.ShowWelcome == 1) ShowWelcome();
}

void Designer::TellMissingFolders() {
  std::string lines;
  for (const MissingFolder& folder : MissingFolders(folders_))
    lines += "\r\n" + folder.Path + ": " + NativeText(texts_, folder.RoleText);
  if (!lines.empty()) ShowText(kTextFolderMissing, BoxIcon::Warning, lines);
}

void Designer::TellUnknownSettings() {
  std::string lines;
  for (const UnknownSetting& setting : settings_.Unknown)
    lines += "\r\n" + std::string(setting.Key) + "=" + CodePage::Default().ToUtf8(setting.Value);
  if (!lines.empty()) ShowText(kTextUnknownSettings, BoxIcon::Warning, lines);
}

void Designer::DecideTemplate() {
  if (!command_.CommandLine.empty() && OpenTemplate(command_.CommandLine, OpenedFrom::Start)) return;
  if (!documentShown_) NewTemplate();
}

void Designer::ShutDown() {
  // The user was asked: nothing is left to recover.
  modified_ = false;
  if (const auto failure = ShutDownSilently())
    ShowText(kTextWriteFailed, BoxIcon::Critical,
             failure->path + "\r\n" + ReasonInLanguage(texts_, failure->reason));
}

std::optional<FileFailure> Designer::KeepUnsaved() {
  // In the middle of a command the file from before it is the whole one.
  if (changes_ > 0) return std::nullopt;
  surface_.CommitOpenEdits();
  // What was opened from the cache lies there, until something is changed.
  const bool isThere = !opened_.RecoveryFile().empty() && surface_.TheRecovery().RecoveryFile().empty();
  return modified_ && !isThere ? surface_.WriteRecovery() : std::nullopt;
}

std::optional<FileFailure> Designer::ShutDownSilently() {
  if (modified_) {
    surface_.TheRecovery().LeaveBehind();
  } else {
    surface_.TheRecovery().Delete();
  }
  opened_.LeaveBehind();
  hold_.Release();
  qrImages_.End();
  std::optional<FileFailure> failure = WriteLastRunOptions();
  DeleteSampleCopies(folders_.DataFolder);
  samples_.Delete();
  charts_.DeleteFiles();
  return failure;
}

std::optional<FileFailure> Designer::WriteLastRunOptions() {
  // A run that ends while it starts must not replace the user's options by the defaults.
  if (!optionsRead_) return std::nullopt;
  KeepLastUsed(last_, options_);
  std::optional<FileFailure> failure =
      SaveChangedOptions(InDataFolder(folders_, kLastRunFile), options_, optionsAsRead_);
  // A folder that is missing altogether was told at the start.
  return FolderExists(folders_.DataFolder) ? failure : std::nullopt;
}

bool Designer::ChooseLanguage(char letter) {
  if (const auto failure = WriteActiveLanguage(folders_, letter)) {
    ShowText(kTextWriteFailed, BoxIcon::Critical,
             failure->path + "\r\n" + ReasonInLanguage(texts_, failure->reason));
    return false;
  }
  ShowText(kTextLanguageAtNextStart, BoxIcon::Information);
  return true;
}

}  // namespace kev
