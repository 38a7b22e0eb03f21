// SPDX-License-Identifier: MIT
// What the designer remembers between runs, and the two files beside it that tell the user's editor and count
// the runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/result.h"
#include "surface/last_used.h"

namespace kev {

inline constexpr std::string_view kLastRunFile = "\\LASTRV.DAT";
inline constexpr std::string_view kSettingsFile = "\\KEV.INI";
inline constexpr std::string_view kSessionFile = "\\SN.DAT";

// The places that the property panel can have.
inline constexpr std::int32_t kPanelClosed = -1;

struct DesignerOptions {
  std::int32_t ShowWelcome = 1;  // 1 or 0
  std::int32_t PropFix = 1;      // -1 closed, else 0, 1 or 3
  // The floating panel and the docked panel's width, twips.
  std::int32_t PropLeft = 1000;
  std::int32_t PropTop = 1000;
  std::int32_t PropHeight = 3000;
  std::int32_t PropWidth = 3000;
  std::int32_t PropFixWidth = 3500;
  // For the next LABEL.
  std::string LastFontName = "Arial";
  std::int32_t LastFontSize = 8;  // points
  std::string LastFontColor = "0,0,0";
  bool LastFontUnderline = false;
  bool LastFontItalic = false;
  std::int32_t ShowQuickProps = 1;  // 1 or 0
  // Where the quick panel stood, twips; nothing until it was shown.
  std::optional<std::int32_t> QuickPropsX;
  std::optional<std::int32_t> QuickPropsY;
  // For the next TEXTBOX; never written at the end of a run.
  std::string LastTextBoxFontName = "Arial";
  std::int32_t LastTextBoxFontSize = 8;
  std::string LastTextBoxFontColor = "0,0,0";
  std::string LastTextBoxBackColor = "255,255,255";
  bool LastTextBoxFontUnderline = false;
  std::string LastTextBoxFontCharSet = "0";
  bool LastTextBoxFontItalic = false;

  bool operator==(const DesignerOptions&) const = default;
};

// The options of a text; what is missing, empty, no number or no colour gets its default.
DesignerOptions ReadOptions(std::string_view bytes);
// What a first run writes: no heading, and the text box's keys among them.
std::string FirstOptionsText();
// What the end of each run writes.
std::string OptionsText(const DesignerOptions& options);

// Makes the file where it is missing, then reads it. A file that cannot be made or read gives the defaults.
DesignerOptions LoadOptions(const std::string& path);
std::optional<FileFailure> SaveOptions(const std::string& path, const DesignerOptions& options);
// The same at the end of a run, beside others: what this run has not changed since it read them stays as the
// file has it now. Runs that end at the same time wait for each other.
std::optional<FileFailure> SaveChangedOptions(const std::string& path, const DesignerOptions& options,
                                              const DesignerOptions& asRead);

// What the next text begins with. The options know nothing of bold, and nothing that is chosen for a text box
// outlives the run.
LastUsed LastUsedIn(const DesignerOptions& options);
void KeepLastUsed(const LastUsed& last, DesignerOptions& options);

// A panel or the screen, twips.
struct PanelArea {
  std::int32_t Left = 0, Top = 0, Width = 0, Height = 0;

  bool operator==(const PanelArea&) const = default;
};
// A panel that a former screen had room for comes back into sight; its left top corner counts most.
void MovePanelIn(PanelArea& panel, const PanelArea& screen);

struct UnknownSetting {
  std::string_view Key;
  std::string Value;
};
// What only the user writes, by hand.
struct UserSettings {
  std::string DefaultEditor = "notepad";
  std::string DefaultPaperSize = "A4";
  const CodePage* Page = &CodePage::Default();
  bool RemotePictures = true;  // whether pictures may be fetched
  // What stands in the file and means nothing, so that the default holds.
  std::vector<UnknownSetting> Unknown;
};
UserSettings LoadUserSettings(const std::string& path);

// Counts this run and gives its number; 1 where the counter cannot be read, and behind the highest number.
// Runs that start at the same time get numbers of their own.
int NextSession(const std::string& path);

}  // namespace kev
