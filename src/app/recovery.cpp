// SPDX-License-Identifier: MIT
#include "app/recovery.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <utility>

#include "base/code_page.h"
#include "base/files.h"
#include "base/folder.h"
#include "base/reasons.h"
#include "template/snapshot_text.h"

namespace kev {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "Recovered_";
constexpr std::string_view kEnding = ".kev";
constexpr std::size_t kLongestName = 255;
constexpr int kSecondsOfADay = 24 * 60 * 60;

bool HasEnding(std::string_view name) {
  return CodePage::Default().Upper(name).ends_with(".KEV");
}

bool IsRecoveryName(const std::string& name) {
  return CodePage::Default().Upper(name).starts_with("RECOVERED_") && HasEnding(name);
}

ClockTime Later(const ClockTime& time, int seconds) {
  const int all = (time.Hour * 3600 + time.Minute * 60 + time.Second + seconds) % kSecondsOfADay;
  return {all / 3600, all / 60 % 60, all % 60};
}

// No character of a name in UTF-8 is cut in two.
std::string Shortened(std::string name, std::size_t most) {
  if (name.size() <= most) return name;
  const std::string ending = name.substr(name.size() - kEnding.size());
  std::size_t length = most - kEnding.size();
  while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80)
    --length;
  return name.substr(0, length) + ending;
}

Result<std::string> TextFor(const Document& document, const WriteOptions& options) {
  try {
    WriteReport report;
    return SnapshotText(document, options, report);
  } catch (const std::bad_alloc&) {
    return FileFailure{{}, kReasonOutOfMemory};
  } catch (const std::exception& failure) {
    return FileFailure{{}, failure.what()};
  }
}

std::string PathIn(const std::string& folder, const std::string& name) {
  return (fs::path(folder) / name).string();
}

}  // namespace

std::string RecoveryName(const ClockTime& time, std::string_view documentTitle) {
  std::string name = FileNameOf(documentTitle);
  if (!HasEnding(name)) name += kEnding;
  std::array<char, 32> digits{};
  std::snprintf(digits.data(), digits.size(), "%02d%02d%02d_", time.Hour, time.Minute, time.Second);
  return std::string(kPrefix) + digits.data() + Shortened(std::move(name), kLongestName - kRecoveryPrefix);
}

std::string RecoveredTitle(std::string_view fileName) {
  return std::string(fileName.substr(std::min(fileName.size(), kRecoveryPrefix)));
}

std::optional<FileFailure> Recovery::Write(const std::string& folder, const ClockTime& time,
                                           const std::string& documentTitle, const Document& document,
                                           const WriteOptions& options) {
  const std::string wanted = PathIn(folder, RecoveryName(time, documentTitle));
  const Result<std::string> text = TextFor(document, options);
  if (!text) return FileFailure{wanted, text.Error().reason};
  Result<NewHeldFile> written = NewHeldFile::Write(folder, *text);
  if (!written) return FileFailure{wanted, written.Error().reason};
  return Name(*written, folder, time, documentTitle);
}

std::optional<FileFailure> Recovery::Name(NewHeldFile& written, const std::string& folder,
                                          const ClockTime& time, const std::string& documentTitle) {
  bool isOurs = false;
  for (int seconds = 0; seconds < kSecondsOfADay; ++seconds) {
    const std::string path = PathIn(folder, RecoveryName(Later(time, seconds), documentTitle));
    isOurs = isOurs || path == file_;
    if (path == file_) continue;
    const int error = written.Name(path);
    if (error == EEXIST) continue;
    if (error != 0) return FailureOfSystem(path, error);
    // Two changes in one second keep the name; at no time is there no whole file.
    const bool replaced = isOurs && std::rename(path.c_str(), file_.c_str()) == 0;
    if (!replaced) {
      Delete();
      file_ = path;
    }
    hold_ = written.Take();
    return std::nullopt;
  }
  return FailureOfSystem(PathIn(folder, RecoveryName(time, documentTitle)), EEXIST);
}

bool Recovery::TakeOver(const std::string& file) {
  Descriptor hold = HoldFile(file);
  if (!hold) return false;
  LeaveBehind();
  file_ = file;
  hold_ = std::move(hold);
  return true;
}

void Recovery::Delete() {
  if (!file_.empty()) DeleteFileIfThere(file_);
  LeaveBehind();
}

void Recovery::LeaveBehind() {
  file_.clear();
  hold_.Close();
}

void Recovery::DeleteUnlessSavedTo(const std::string& path) {
  std::error_code ignored;
  if (!file_.empty() && fs::equivalent(file_, path, ignored)) return LeaveBehind();
  Delete();
}

std::vector<std::string> RecoveryFilesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const std::string& name : NamesIn(folder)) {
    const std::string path = PathIn(folder, name);
    if (IsRecoveryName(name) && FileExists(path) && !IsHeld(path)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace kev
