// SPDX-License-Identifier: MIT
#include "app/options.h"

#include <algorithm>
#include <array>
#include <variant>

#include "app/key_values.h"
#include "base/descriptor.h"
#include "base/files.h"
#include "base/key_file.h"
#include "base/text.h"
#include "document/papers.h"

namespace kev {
namespace {

using Member = std::variant<std::int32_t DesignerOptions::*, std::string DesignerOptions::*,
                            bool DesignerOptions::*, std::optional<std::int32_t> DesignerOptions::*>;

enum class Written : std::uint8_t { AlsoFirst, OnlyFirst, OnlyLast };

// Whether a number that was read is taken; the default stands otherwise.
using Accepts = bool (*)(std::int32_t);
constexpr bool Any(std::int32_t) {
  return true;
}
constexpr bool NotZero(std::int32_t value) {
  return value != 0;
}
constexpr bool FontSize(std::int32_t value) {
  return value > 0 && value <= 72;
}
// Red, green and blue: three whole numbers from 0 to 255.
bool IsColour(std::string_view value) {
  const auto isPart = [](std::string_view part) {
    return !part.empty() && part.size() <= 3 &&
           part.find_first_not_of("0123456789") == std::string_view::npos && NumericPrefix(part) <= 255;
  };
  return std::count(value.begin(), value.end(), ',') == 2 && isPart(Trim(NthToken(value, 1, ','))) &&
         isPart(Trim(NthToken(value, 2, ','))) && isPart(Trim(NthToken(value, 3, ',')));
}
constexpr bool PanelPlace(std::int32_t value) {
  return value == kPanelClosed || value == 0 || value == 1 || value == 3;
}

struct OptionRow {
  std::string_view key;
  Member member;
  Written written = Written::AlsoFirst;
  Accepts accepts = Any;
  std::string_view readKey = {};  // where the file is asked for another key than the one written
  bool colour = false;            // a text that must be a colour
};

using O = DesignerOptions;

// In the order of the file. The back colour of a text box is asked for under a name that nothing writes, so
// that it always has its default.
constexpr auto kOptions = std::to_array<OptionRow>({
    {"SHOWWELCOME", &O::ShowWelcome},
    {"PROPFIX", &O::PropFix, Written::AlsoFirst, PanelPlace},
    {"PROPLEFT", &O::PropLeft},
    {"PROPTOP", &O::PropTop},
    {"PROPHEIGHT", &O::PropHeight},
    {"PROPWIDTH", &O::PropWidth},
    {"PROPFIXWIDTH", &O::PropFixWidth, Written::AlsoFirst, NotZero},
    {"LAST_FONTNAME", &O::LastFontName},
    {"LAST_FONTSIZE", &O::LastFontSize, Written::AlsoFirst, FontSize},
    {"LAST_FONTCOLOR", &O::LastFontColor, Written::AlsoFirst, Any, {}, true},
    {"LAST_FONTUNDERLINE", &O::LastFontUnderline},
    {"LAST_FONTITALIC", &O::LastFontItalic},
    {"LAST_TEXTBOX_FONTNAME", &O::LastTextBoxFontName, Written::OnlyFirst},
    {"LAST_TEXTBOX_FONTSIZE", &O::LastTextBoxFontSize, Written::OnlyFirst, FontSize},
    {"LAST_TEXTBOX_FONTCOLOR", &O::LastTextBoxFontColor, Written::OnlyFirst, Any, {}, true},
    {"LAST_TEXTBOX_BACKCOLOR", &O::LastTextBoxBackColor, Written::OnlyFirst, Any,
     "LAST_TEXTBOX_BACKFONTCOLOR", true},
    {"LAST_TEXTBOX_FONTUNDERLINE", &O::LastTextBoxFontUnderline, Written::OnlyFirst},
    {"LAST_TEXTBOX_FONTCHARSET", &O::LastTextBoxFontCharSet, Written::OnlyFirst},
    {"LAST_TEXTBOX_FONTITALIC", &O::LastTextBoxFontItalic, Written::OnlyFirst},
    {"SHOWQUICKPROPS", &O::ShowQuickProps},
    {"QUICKPROPSX", &O::QuickPropsX, Written::OnlyLast},
    {"QUICKPROPSY", &O::QuickPropsY, Written::OnlyLast},
});

struct Reader {
  const OptionRow& row;
  const std::string& value;

  std::optional<std::int32_t> Number() const {
    const std::optional<double> number = NumberIn(value);
    if (!number || !row.accepts(ToInt32(*number))) return std::nullopt;
    return ToInt32(*number);
  }
  void operator()(std::int32_t& field) const { field = Number().value_or(field); }
  void operator()(std::optional<std::int32_t>& field) const { field = Number(); }
  void operator()(std::string& field) const {
    if (!value.empty() && (!row.colour || IsColour(value))) field = value;
  }
  void operator()(bool& field) const { field = value == "Y"; }
};

struct Printer {
  std::string operator()(std::int32_t field) const { return std::to_string(field); }
  std::string operator()(const std::optional<std::int32_t>& field) const {
    return field ? std::to_string(*field) : std::string();
  }
  std::string operator()(const std::string& field) const { return field; }
  std::string operator()(bool field) const { return field ? "Y" : "N"; }
};

std::string Lines(const DesignerOptions& options, Written leftOut) {
  std::string text;
  for (const OptionRow& row : kOptions) {
    if (row.written == leftOut) continue;
    text.append(row.key).append("=");
    text += std::visit([&](auto member) { return Printer{}(options.*member); }, row.member);
    text += "\r\n";
  }
  return text;
}

// The options of this run, with what it has not changed as another one has left it meanwhile.
DesignerOptions Merged(DesignerOptions mine, const DesignerOptions& asRead, std::string_view now) {
  const KeyFile keys(now);
  const DesignerOptions theirs = ReadOptions(now);
  const auto take = [&](auto member) {
    if (mine.*member == asRead.*member) mine.*member = theirs.*member;
  };
  for (const OptionRow& row : kOptions) {
    if (keys.Line(row.key) != 0) std::visit(take, row.member);
  }
  return mine;
}

// Nothing for what is neither.
std::optional<bool> YesOrNo(std::string_view value) {
  const std::string capitals = CodePage::Default().Upper(value);
  if (capitals == "Y" || capitals == "YES" || capitals == "1") return true;
  if (capitals == "N" || capitals == "NO" || capitals == "0") return false;
  return std::nullopt;
}

// One more than the highest number does not fit and counts as 0.
int SessionAfter(std::string_view bytes) {
  return std::max(1, ToInt32(NumericPrefix(KeyFile(bytes).Value("SESSID")) + 1));
}

std::int32_t MovedIn(std::int32_t place, std::int32_t size, std::int32_t from, std::int32_t room) {
  const std::int64_t last = std::int64_t{from} + room - size;
  return static_cast<std::int32_t>(std::max<std::int64_t>(from, std::min<std::int64_t>(place, last)));
}

}  // namespace

DesignerOptions ReadOptions(std::string_view bytes) {
  const KeyFile keys(bytes);
  DesignerOptions options;
  for (const OptionRow& row : kOptions) {
    const std::string value = keys.Value(row.readKey.empty() ? row.key : row.readKey);
    std::visit([&](auto member) { Reader{row, value}(options.*member); }, row.member);
  }
  return options;
}

std::string FirstOptionsText() {
  return Lines(DesignerOptions{}, Written::OnlyLast);
}

std::string OptionsText(const DesignerOptions& options) {
  return "# LAST RUN DESIGNER OPTIONS\r\n" + Lines(options, Written::OnlyFirst);
}

DesignerOptions LoadOptions(const std::string& path) {
  if (!FileExists(path) && WriteWholeFile(path, FirstOptionsText())) return {};
  const Result<std::string> bytes = ReadWholeFile(path);
  return bytes ? ReadOptions(*bytes) : DesignerOptions{};
}

std::optional<FileFailure> SaveOptions(const std::string& path, const DesignerOptions& options) {
  return WriteWholeFile(path, OptionsText(options));
}

std::optional<FileFailure> SaveChangedOptions(const std::string& path, const DesignerOptions& options,
                                              const DesignerOptions& asRead) {
  // A folder that can't be held is written to all the same: then the last run to end wins.
  const Descriptor hold = HoldFolder(FolderOf(path));
  const Result<std::string> now = ReadWholeFile(path);
  // What can't be read can't be kept either, and may be more than this run has ever seen of it.
  if (!now && FileExists(path)) return now.Error();
  return SaveOptions(path, now ? Merged(options, asRead, *now) : options);
}

LastUsed LastUsedIn(const DesignerOptions& options) {
  const DesignerOptions& o = options;
  return {
      {o.LastFontName, o.LastFontSize, false, o.LastFontItalic, o.LastFontUnderline, o.LastFontColor, "0"},
      {o.LastTextBoxFontName, o.LastTextBoxFontSize, false, o.LastTextBoxFontItalic,
       o.LastTextBoxFontUnderline, o.LastTextBoxFontColor, o.LastTextBoxFontCharSet}};
}

void KeepLastUsed(const LastUsed& last, DesignerOptions& options) {
  options.LastFontName = last.Label.FontName;
  options.LastFontSize = last.Label.FontSize;
  options.LastFontColor = last.Label.Color;
  options.LastFontUnderline = last.Label.Underline;
  options.LastFontItalic = last.Label.Italic;
}

UserSettings LoadUserSettings(const std::string& path) {
  const Result<std::string> bytes = ReadWholeFile(path);
  const KeyFile keys(bytes ? std::string_view(*bytes) : std::string_view());
  UserSettings settings;
  if (std::string editor = keys.Value("DEFAULT_EDITOR"); !editor.empty()) settings.DefaultEditor = editor;
  const std::string paper = keys.Value("DEFAULT_PAPERSIZE");
  const std::string page = keys.Value("CODEPAGE");
  // A paper that the table does not hold has no size to give to a page.
  if (LookupPaper(paper)) {
    settings.DefaultPaperSize = paper;
  } else if (!paper.empty()) {
    settings.Unknown.push_back({"DEFAULT_PAPERSIZE", paper});
  }
  if (const CodePage* known = CodePage::Find(page)) {
    settings.Page = known;
  } else if (!page.empty()) {
    settings.Unknown.push_back({"CODEPAGE", page});
  }
  const std::string remote = keys.Value("REMOTEPICTURES");
  if (const std::optional<bool> allowed = YesOrNo(remote)) {
    settings.RemotePictures = *allowed;
  } else if (!remote.empty()) {
    settings.Unknown.push_back({"REMOTEPICTURES", remote});
  }
  return settings;
}

int NextSession(const std::string& path) {
  const Result<std::string> last = ReadWholeFile(path);
  int session = last ? SessionAfter(*last) : 1;
  // A counter that can't be written only makes two runs share a number.
  static_cast<void>(RewriteLocked(path, [&session](std::string_view bytes) {
    session = SessionAfter(bytes);
    return "SESSID=" + std::to_string(session) + "\r\n";
  }));
  return session;
}

void MovePanelIn(PanelArea& panel, const PanelArea& screen) {
  panel.Left = MovedIn(panel.Left, panel.Width, screen.Left, screen.Width);
  panel.Top = MovedIn(panel.Top, panel.Height, screen.Top, screen.Height);
}

}  // namespace kev
