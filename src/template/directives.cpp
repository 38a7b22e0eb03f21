// SPDX-License-Identifier: MIT
#include <array>
#include <optional>
#include <unordered_map>

#include "base/numbers.h"
#include "base/text.h"
#include "template/scanner.h"

namespace kev {
namespace {

enum class Action : std::uint8_t {
  Nothing,
  NotRead,  // written by the designer for the viewer alone
  Def,
  Stretch,
  LineWidth,
  ValueType,
  Print,
  ModifiableByEndUser,
  AlignToGrid,
  Vertical,
  QrCode,
  Symbology,
  NoBar,
  SubsectionHeight,
  Top,
  StartAt,
  Colour,
  BarHeight,
  BarWidth,
  Format,
  Link,
  Spacing,
  Case,
  NewLine,
  StepBack,
  FontName,
  CharSet,
  Size,
  Italic,
  Underline,
  Bold,
  Align,
  Trim,
  TextBoxProps,
  PageBreak,
  TextBox,
  Box,
  Picture,
  Circle,
  Line,
  AnyLine,
  BuildGraph
};

struct DirectiveRow {
  std::string_view key;  // in capitals
  Action action;
  int number = 0;  // what the action stores, for actions that several keys share
};

constexpr auto kDirectives = std::to_array<DirectiveRow>({
    {"DEF", Action::Def},
    {"STRETCH", Action::Stretch},
    {"W", Action::LineWidth},
    {"NUM", Action::ValueType, 'N'},
    {"TEXT", Action::ValueType, 'T'},
    {"PRINT", Action::Print, kTrue},
    {"NOPRINT", Action::Print, kFalse},
    {"MBEU", Action::ModifiableByEndUser, 1},
    {"NMBEU", Action::ModifiableByEndUser, 0},
    {"ATG", Action::AlignToGrid, 1},
    {"NATG", Action::AlignToGrid, 0},
    {"VERT", Action::Vertical},
    {"VERTBAR", Action::Vertical},
    {"QR", Action::QrCode},
    {"QRCODE", Action::QrCode},
    {"BAR", Action::Symbology, 1},
    {"B39", Action::Symbology, 1},
    {"B32", Action::Symbology, 32},
    {"B128B", Action::Symbology, 1282},
    {"BEAN128", Action::Symbology, 12821},
    {"B128C", Action::Symbology, 1283},
    {"EAN13", Action::Symbology, 13},
    {"BEAN13", Action::Symbology, 13},
    {"EAN8", Action::Symbology, 8},
    {"BEAN8", Action::Symbology, 8},
    {"B2OF5BAR", Action::Symbology, 250},
    {"B2OF5INT", Action::Symbology, 251},
    {"B2OF5IND", Action::Symbology, 252},
    {"NOBAR", Action::NoBar},
    {"SUBSECTIONHEIGHT", Action::SubsectionHeight},
    {"TOP", Action::Top},
    {"TOPOFPAGE", Action::Top},
    {"XY", Action::StartAt},
    {"C", Action::Colour},
    {"BARHEIGHT", Action::BarHeight},
    {"BARWIDTH", Action::BarWidth},
    {"FORMAT", Action::Format},
    {"LINK", Action::Link},
    {"SPACING", Action::Spacing},
    {"FIRSTUP", Action::Case, 'F'},
    {"UPPER", Action::Case, 'U'},
    {"LOWER", Action::Case, 'L'},
    {"\\N", Action::NewLine},
    {"\\P", Action::StepBack},
    {"F", Action::FontName},
    {"CS", Action::CharSet},
    {"CHARSET", Action::CharSet},
    {"S", Action::Size},
    {"I", Action::Italic},
    {"U", Action::Underline},
    {"B", Action::Bold},
    {"A", Action::Align},
    {"TRIM", Action::Trim},
    {"TBPROPS", Action::TextBoxProps},
    {"TB", Action::TextBoxProps},
    {"\\NP", Action::PageBreak},
    {"@@PAGEBREAK", Action::PageBreak},
    {"TEXTBOX", Action::TextBox},
    {"BOX", Action::Box, 0},
    {"BOXF", Action::Box, 1},
    {"PIC", Action::Picture},
    {"CIRC", Action::Circle},
    {"LINE", Action::Line},
    {"ANYLINE", Action::AnyLine},
    {"BUILDGRAPH", Action::BuildGraph},
    {"REM", Action::Nothing},
    {"EXECUTE", Action::NotRead},
    {"POSTSHOW", Action::NotRead},
    {"PAGE", Action::NotRead},
    {"ST", Action::NotRead},
});

const DirectiveRow* FindDirective(std::string_view key) {
  static const auto index = [] {
    std::unordered_map<std::string_view, const DirectiveRow*> map;
    for (const DirectiveRow& row : kDirectives)
      map.emplace(row.key, &row);
    return map;
  }();
  const auto found = index.find(key);
  return found == index.end() ? nullptr : found->second;
}

bool IsYes(std::string_view value) {
  return value == "Y" || value == "y" || value == "1";
}

// One item of a block: its key, and the value behind the first "=".
class Item {
 public:
  Item(ReaderState& state, std::string_view text) : state_(state) {
    const std::size_t equals = text.find('=');
    name_ = Trim(text.substr(0, equals));
    key_ = state.document.Page->Upper(name_);
    if (equals != std::string_view::npos) value_ = text.substr(equals + 1);
    // Braces of a block that was none stand in values as the characters 1 and 2.
    ReplaceAll(value_, '\1', state.document.Settings.OpenCharacter());
    ReplaceAll(value_, '\2', state.document.Settings.CloseCharacter());
  }

  void Apply();

 private:
  void ApplyAttribute(const DirectiveRow& row);
  void ApplyMovement(const DirectiveRow& row);
  void ApplyCreation(const DirectiveRow& row);
  void ApplyUnknown();
  void MoveToTop(std::string start);
  void NewLine();
  void StepBack();
  void SetColour();
  void SetAlign();
  void SetQr();
  void Create(NewObject object);
  NewObject Shape(ObjectKind kind);

  // The n-th value between commas.
  std::string Part(std::size_t n) {
    if (!parts_) parts_.emplace(value_, ',');
    return std::string((*parts_)[n]);
  }
  AttributeState& attributes() { return state_.attributes; }
  LayoutCursor& cursor() { return state_.cursor; }

  ReaderState& state_;
  std::string_view name_;
  std::string key_;
  std::string value_;
  std::optional<Tokens> parts_;
};

void Item::Apply() {
  if (key_.empty()) return;
  if (const DirectiveRow* row = FindDirective(key_)) {
    if (row->action >= Action::PageBreak) return ApplyCreation(*row);
    return ApplyAttribute(*row);
  }
  if (!state_.chart.ReadChartKey(key_, value_)) ApplyUnknown();
}

void Item::ApplyAttribute(const DirectiveRow& row) {
  AttributeState& state = attributes();
  switch (row.action) {
    case Action::Def:
      return state.ResetToDefaults();
    case Action::Stretch:
      state.AttrStretch = value_.empty() ? std::nullopt : std::optional(value_);
      return;
    case Action::LineWidth:
      state.AttrLineWidth = NumericPrefix(value_);
      return;
    case Action::ValueType:
      state.AttrValueType = row.number == 'N' ? "Number" : "Text";
      return;
    case Action::Print:
      state.AttrPrint = static_cast<Flag>(row.number);
      return;
    case Action::ModifiableByEndUser:
      state.AttrMBeu = static_cast<std::int16_t>(row.number);
      return;
    case Action::AlignToGrid:
      state.AttrAtg = static_cast<std::int16_t>(row.number);
      return;
    case Action::Vertical:
      state.AttrRotation = 90;
      return;
    case Action::QrCode:
      return SetQr();
    case Action::Symbology:
      state.AttrSymbology = row.number;
      return;
    case Action::NoBar:
      state.AttrSymbology = kNoSymbology;
      state.AttrRotation = 0;
      state.AttrBarWidth = 1;
      return;
    case Action::Colour:
      return SetColour();
    case Action::BarHeight:
      state.AttrBarHeight = NumericPrefix(value_);
      return;
    case Action::BarWidth:
      state.AttrBarWidth = NumericPrefix(value_);
      return;
    case Action::Format:
      state.AttrFormat = value_;
      return;
    case Action::Link:
      state.AttrLink = value_;
      return;
    case Action::Case:
      state.AttrCase = Trim(value_) == "N" ? 'N' : static_cast<char>(row.number);
      return;
    case Action::FontName:
      state.AttrFontName = value_;
      return;
    case Action::CharSet:
      state.AttrCharSet = value_;
      return;
    case Action::Size:
      state.AttrSize = NumericPrefix(value_);
      return;
    case Action::Italic:
      state.AttrItalic = ToFlag(IsYes(value_));
      return;
    case Action::Underline:
      state.AttrUnderline = ToFlag(IsYes(value_));
      return;
    case Action::Bold:
      state.AttrBold = ToFlag(IsYes(value_));
      return;
    case Action::Align:
      return SetAlign();
    case Action::Trim:
      state.AttrTrim = ToFlag(IsYes(value_));
      return;
    case Action::TextBoxProps:
      state.TextBoxProps = value_;
      return;
    case Action::NotRead:
      return state_.Note(FindingKind::WillNotComeBack, name_);
    case Action::Nothing:
      return;
    default:
      return ApplyMovement(row);
  }
}

void Item::ApplyMovement(const DirectiveRow& row) {
  switch (row.action) {
    case Action::SubsectionHeight:
      // The number is not read: the height comes back from how far the content reaches.
      if (cursor().OpenSubsection != 0) state_.document.Objects[cursor().OpenSubsection].HeightGiven = kTrue;
      return;
    case Action::Top:
      return MoveToTop("0");
    case Action::StartAt:
      return MoveToTop(FormatNumber(NumericPrefix(Part(2))));
    case Action::Spacing:
      attributes().SpacingNow = Int32Of(value_);
      return;
    case Action::NewLine:
      return NewLine();
    case Action::StepBack:
      return StepBack();
    default:
      return;
  }
}

void Item::ApplyCreation(const DirectiveRow& row) {
  NewObject object;
  switch (row.action) {
    case Action::PageBreak:
      object.kind = ObjectKind::Command;
      object.text = kPageBreak;
      break;
    case Action::TextBox:
      object = Shape(ObjectKind::TextBox);
      object.widthOrEndX = Part(3);
      object.payload = Part(4);
      object.text = Part(5);
      break;
    case Action::Box:
      object = Shape(ObjectKind::Box);
      object.filled = row.number == 1;
      object.widthOrEndX = Part(3);
      object.height = Part(4);
      break;
    case Action::Picture:
      object.kind = ObjectKind::Picture;
      object.path = Part(1);
      object.xValue = Part(2);
      object.y = Part(3);
      object.widthOrEndX = Part(4);
      object.height = Part(5);
      object.link = Part(6);
      break;
    case Action::Circle:
      object = Shape(ObjectKind::Circle);
      object.widthOrEndX = Part(3);
      break;
    case Action::Line:
      object.kind = ObjectKind::Line;
      object.xValue = Part(1);
      object.widthOrEndX = Part(2);
      object.extra = Trim(Part(3));
      break;
    case Action::AnyLine:
      object = Shape(ObjectKind::AnyLine);
      object.widthOrEndX = Part(3);
      object.height = Part(4);
      object.extra = Trim(Part(5));
      break;
    default:
      object = Shape(ObjectKind::Chart);
      object.widthOrEndX = state_.chart.Width;
      object.height = state_.chart.Height;
      object.chartValues = state_.chart.Values;
      break;
  }
  Create(std::move(object));
}

// The two first values of most directives are the position.
NewObject Item::Shape(ObjectKind kind) {
  NewObject object;
  object.kind = kind;
  object.xValue = Part(1);
  object.y = Part(2);
  return object;
}

void Item::Create(NewObject object) {
  const ObjectKind kind = object.kind;
  const bool isPageBreak = kind == ObjectKind::Command;
  state_.Add(object);
  if (isPageBreak) cursor().LastCommand = kPageBreak;
  if (kind == ObjectKind::Chart) state_.chart.ResetChartDefaults();
  attributes().AttrValueType = "General";
}

// A number other than 0 or a column is the position of what follows. A 0 is not taken: the earlier position
// stays.
void Item::ApplyUnknown() {
  if (NumericPrefix(name_) != 0 || name_.starts_with('$')) {
    attributes().AttrX = name_;
  } else if (name_ != "0") {
    state_.Note(FindingKind::UnknownKey, name_);
  }
}

void Item::MoveToTop(std::string start) {
  if (!cursor().SubsectionStarted && cursor().OpenSubsection != 0) {
    start.resize(std::min(start.size(), kStartYLength));
    state_.document.Objects[cursor().OpenSubsection].StartY = start;
  }
  cursor().SubsectionStarted = true;
  cursor().SurfaceY = Fit32(std::int64_t{cursor().SurfaceY} - cursor().CursorY);
  cursor().CursorY = 0;
  cursor().LastCommand.clear();
}

void Item::NewLine() {
  LayoutCursor& at = cursor();
  const std::int64_t step = attributes().SpacingNow;
  at.CursorY = Fit32(at.CursorY + step);
  at.SurfaceY = Fit32(at.SurfaceY + step);
  at.SubsectionMaxY = std::max(at.SubsectionMaxY, at.CursorY);
  at.LastCommand.clear();
  attributes().SpacingNow = state_.document.Settings.SpacingTwips();
}

void Item::StepBack() {
  cursor().CursorY = Fit32(std::int64_t{cursor().CursorY} - attributes().SpacingNow);
  cursor().LastCommand.clear();
  attributes().SpacingNow = state_.document.Settings.SpacingTwips();
}

void Item::SetColour() {
  Colour& colour = attributes().AttrColor;
  if (value_.find(',') == std::string::npos) {
    colour = {Int16Of(value_), -1, -1};
  } else {
    colour = {Int16Of(Part(1)), Int16Of(Part(2)), Int16Of(Part(3))};
  }
}

void Item::SetAlign() {
  const std::string align = state_.document.Page->Upper(value_);
  attributes().AttrAlign = align == "R" || align == "C" ? align : "L";
}

void Item::SetQr() {
  attributes().AttrSymbology = kQrSymbology;
  attributes().AttrQrX = Part(1);
  attributes().AttrQrSecond = Part(2);
  attributes().AttrQrSize = Part(3);
}

}  // namespace

void ApplyCommands(ReaderState& state, std::string_view block) {
  const Tokens items = SplitTokens(block, ';');
  for (std::size_t n = 1; n <= items.Count(); ++n)
    Item(state, items[n]).Apply();
}

}  // namespace kev
