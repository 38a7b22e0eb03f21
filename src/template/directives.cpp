// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <utility>

#include "base/holds_number.h"
#include "base/numbers.h"
#include "base/take_token.h"
#include "base/text.h"
#include "template/directive_table.h"
#include "template/scanner.h"

namespace kev {
namespace {

// The rows of the directives by their keys: a template holds thousands. Rows of the same slot follow one
// another.
class DirectiveIndex {
 public:
  constexpr DirectiveIndex() {
    for (std::size_t row = 0; row < kDirectives.size(); ++row) {
      std::size_t slot = SlotOf(kDirectives[row].key);
      while (rows_[slot] != 0)
        slot = (slot + 1) % kSlots;
      rows_[slot] = static_cast<std::uint8_t>(row + 1);
    }
  }

  const DirectiveRow* Find(std::string_view key) const {
    if (key.empty()) return nullptr;
    for (std::size_t slot = SlotOf(key); rows_[slot] != 0; slot = (slot + 1) % kSlots)
      if (kDirectives[rows_[slot] - std::size_t{1}].key == key)
        return &kDirectives[rows_[slot] - std::size_t{1}];
    return nullptr;
  }

 private:
  static constexpr std::size_t kSlots = 256;
  static_assert(kDirectives.size() < kSlots / 2);

  static constexpr std::size_t SlotOf(std::string_view key) {
    return (key.size() * 37 + static_cast<unsigned char>(key.front()) * std::size_t{5} +
            static_cast<unsigned char>(key.back())) %
           kSlots;
  }

  std::array<std::uint8_t, kSlots> rows_{};  // counted from 1; 0 is an empty slot
};

constexpr DirectiveIndex kDirectiveIndex;

const DirectiveRow* FindDirective(std::string_view key) {
  return kDirectiveIndex.Find(key);
}

constexpr double kLargest32 = std::numeric_limits<std::int32_t>::max();
constexpr double kLargest16 = std::numeric_limits<std::int16_t>::max();
constexpr double kBrightest = 255, kLastBasicColour = 15;

// One item of a block: its key, and the value behind the first "=".
class Item {
 public:
  Item(ReaderState& state, std::string_view text, bool mayHoldDisarmed) : state_(state) {
    const std::size_t equals = text.find('=');
    name_ = Trim(text.substr(0, equals));
    // A longer name is none of the keys.
    if (name_.size() <= capitals_.size()) {
      const CodePage& page = *state.document.Page;
      std::transform(name_.begin(), name_.end(), capitals_.begin(), [&](char c) { return page.Upper(c); });
      key_ = {capitals_.data(), name_.size()};
    }
    if (equals != std::string_view::npos) value_ = text.substr(equals + 1);
    if (mayHoldDisarmed) RestoreDelimiters();
  }
  // The value may lie in the item itself.
  Item(const Item&) = delete;
  Item& operator=(const Item&) = delete;

  void Apply();

 private:
  // Braces of a block that was none stand in values as the characters 1 and 2.
  void RestoreDelimiters() {
    restored_ = value_;
    ReplaceAll(restored_, '\1', state_.document.Settings.OpenCharacter());
    ReplaceAll(restored_, '\2', state_.document.Settings.CloseCharacter());
    value_ = restored_;
  }
  void ApplyAttribute(const DirectiveRow& row);
  void ApplyState(const DirectiveRow& row);
  void StoreNumber(double& number, double largest);  // `largest`: of the field that it fills
  void StoreYes(Flag& flag);
  void SetSymbology(int symbology);
  void NoteIfAbove(double largest, std::string_view number);
  void NoteOutside(double smallest, double largest, std::string_view number);
  void NoteUnlessNumber(std::string_view text);
  void NoteUnlessIn(std::initializer_list<std::string_view> words);
  void ApplyMovement(const DirectiveRow& row);
  void ApplyCreation(const DirectiveRow& row);
  void ApplyUnknown();
  void MoveToTop(std::string start);
  void NewLine();
  void StepBack();
  void SetColour();
  void SetAlign();
  void SetQr();
  void NoteNumbers(const NewObject& object);
  void Create(const NewObject& object);
  void Begin(NewObject& object, ObjectKind kind);

  // The n-th value between commas.
  std::string_view Part(std::size_t n) {
    if (!parts_) TakeParts();
    return (*parts_)[n - 1];
  }
  void TakeParts() {
    CheckTokenCount(value_, ',');
    parts_.emplace();
    std::optional<std::string_view> rest = value_;
    for (std::size_t n = 0; n < parts_->size() && rest; ++n)
      (*parts_)[n] = TakeToken(rest, ',');
  }
  AttributeState& attributes() { return state_.attributes; }
  LayoutCursor& cursor() { return state_.cursor; }

  ReaderState& state_;
  std::string_view name_;
  std::array<char, 32> capitals_{};  // of the name
  std::string_view key_;             // in there
  std::string_view value_;
  std::optional<std::array<std::string_view, 6>> parts_;  // no directive has more
  std::string restored_;
};

void Item::Apply() {
  if (name_.empty()) return;
  if (const DirectiveRow* row = FindDirective(key_)) {
    if (row->action >= Action::PageBreak) return ApplyCreation(*row);
    return ApplyAttribute(*row);
  }
  if (!state_.chart.ReadChartKey(key_, value_)) return ApplyUnknown();
  // The format of a series is read for the viewer's sake and never written.
  if (key_.ends_with("_FORMAT") && !value_.empty()) state_.Note(FindingKind::WillNotComeBack, name_);
}

void Item::StoreNumber(double& number, double largest) {
  NoteIfAbove(largest, value_);
  NoteUnlessNumber(value_);
  number = NumericPrefix(value_);
}

void Item::StoreYes(Flag& flag) {
  flag = ToFlag(IsYes(value_));
  NoteUnlessIn({"Y", "YES", "1", "N", "NO", "0"});
}

// Values that are stored as they stand.
void Item::ApplyAttribute(const DirectiveRow& row) {
  AttributeState& state = attributes();
  switch (row.action) {
    case Action::Format:
      state.AttrFormat = value_;
      return;
    case Action::Link:
      state.AttrLink = value_;
      return;
    case Action::FontName:
      state.AttrFontName = value_;
      return;
    case Action::CharSet:
      state.AttrCharSet = value_;
      return;
    case Action::TextBoxProps:
      state.TextBoxProps = value_;
      return;
    case Action::LineWidth:
      return StoreNumber(state.AttrLineWidth, kLargest16);
    case Action::BarHeight:
      return StoreNumber(state.AttrBarHeight, kLargest32);
    case Action::BarWidth:
      return StoreNumber(state.AttrBarWidth, kLargest16);
    case Action::Size:
      return StoreNumber(state.AttrSize, kLargest32);
    case Action::Italic:
      return StoreYes(state.AttrItalic);
    case Action::Underline:
      return StoreYes(state.AttrUnderline);
    case Action::Bold:
      return StoreYes(state.AttrBold);
    case Action::Trim:
      StoreYes(state.AttrTrim);
      // The writer never switches trimming off, so blanks around a text are gone after a save.
      if (!IsYes(value_)) state_.Note(FindingKind::WillNotComeBack, name_);
      return;
    default:
      return ApplyState(row);
  }
}

void Item::ApplyState(const DirectiveRow& row) {
  AttributeState& state = attributes();
  switch (row.action) {
    case Action::Def:
      return state.ResetToDefaults();
    case Action::Stretch:
      state.AttrStretch = value_.empty() ? std::nullopt : std::optional(std::string(value_));
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
      return SetSymbology(row.number);
    case Action::NoBar:
      state.AttrSymbology = kNoSymbology;
      state.AttrRotation = 0;
      state.AttrBarWidth = 1;
      return;
    case Action::Colour:
      return SetColour();
    case Action::Case:
      state.AttrCase = Trim(value_) == "N" ? 'N' : static_cast<char>(row.number);
      return;
    case Action::Align:
      return SetAlign();
    case Action::NotRead:
      return state_.Note(FindingKind::WillNotComeBack, name_);
    case Action::Nothing:
      return;
    default:
      return ApplyMovement(row);
  }
}

void Item::SetSymbology(int symbology) {
  attributes().AttrSymbology = symbology;
  // These two have no word in a saved template.
  if (symbology == 32 || symbology == 12821) state_.Note(FindingKind::WillNotComeBack, name_);
}

void Item::NoteIfAbove(double largest, std::string_view number) {
  if (number.empty()) return;
  if (std::abs(NumericPrefix(number)) > largest) state_.Note(FindingKind::ValueOutOfRange, number);
}

void Item::NoteOutside(double smallest, double largest, std::string_view number) {
  NoteUnlessNumber(number);
  const double value = NumericPrefix(number);
  if (value < smallest || value > largest) state_.Note(FindingKind::ValueOutOfRange, number);
}

// What is left out is no mistake.
void Item::NoteUnlessNumber(std::string_view text) {
  if (!Trim(text).empty() && !HoldsNumber(text))
    state_.Note(FindingKind::ValueOutOfRange, std::string(name_).append("=").append(value_));
}

void Item::NoteUnlessIn(std::initializer_list<std::string_view> words) {
  const std::string capitals = state_.document.Page->Upper(Trim(value_));
  if (!capitals.empty() && std::find(words.begin(), words.end(), capitals) == words.end())
    state_.Note(FindingKind::ValueOutOfRange, std::string(name_).append("=").append(value_));
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
      NoteIfAbove(kLargest32, value_);
      NoteUnlessNumber(value_);
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
      Begin(object, ObjectKind::TextBox);
      object.widthOrEndX = Part(3);
      object.payload = Part(4);
      object.text = Part(5);
      break;
    case Action::Box:
      Begin(object, ObjectKind::Box);
      object.y = Part(2);
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
      Begin(object, ObjectKind::Circle);
      object.widthOrEndX = Part(3);
      break;
    case Action::Line:
      object.kind = ObjectKind::Line;
      object.xValue = Part(1);
      object.widthOrEndX = Part(2);
      object.extra = Trim(Part(3));
      break;
    case Action::AnyLine:
      Begin(object, ObjectKind::AnyLine);
      object.widthOrEndX = Part(3);
      object.height = Part(4);
      object.extra = Trim(Part(5));
      break;
    default:
      Begin(object, ObjectKind::Chart);
      object.y = Part(2);
      object.widthOrEndX = state_.chart.Width;
      object.height = state_.chart.Height;
      object.chartValues = state_.chart.Values;
      break;
  }
  Create(object);
}

// The first value of most directives is X. The second is Y for a few of them; the others stand at the cursor.
void Item::Begin(NewObject& object, ObjectKind kind) {
  object.kind = kind;
  object.xValue = Part(1);
}

void Item::NoteNumbers(const NewObject& object) {
  for (const std::string_view number : {std::string_view(object.y), std::string_view(object.height)}) {
    NoteIfAbove(kLargest32, number);
    NoteUnlessNumber(number);
  }
  if (object.kind != ObjectKind::Line) NoteIfAbove(kLargest32, object.widthOrEndX);
}

void Item::Create(const NewObject& object) {
  NoteNumbers(object);
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
    ObjectRecord& bar = state_.document.Objects[cursor().OpenSubsection];
    bar.StartY = std::move(start);
    bar.Content = ContentOfBar(bar);
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
  const bool isIndex = value_.find(',') == std::string::npos;
  if (isIndex) NoteOutside(0, kLastBasicColour, value_);
  // A green or blue of -1 makes the red the number of a basic colour.
  for (std::size_t n = 1; n <= 3 && !isIndex; ++n)
    NoteOutside(n == 1 ? 0 : -1, kBrightest, Part(n));
  colour = isIndex ? Colour{Int16Of(value_), -1, -1}
                   : Colour{Int16Of(Part(1)), Int16Of(Part(2)), Int16Of(Part(3))};
}

void Item::SetAlign() {
  const std::string align = state_.document.Page->Upper(value_);
  NoteUnlessIn({"L", "R", "C"});
  attributes().AttrAlign = align == "R" || align == "C" ? align : "L";
}

void Item::SetQr() {
  attributes().AttrSymbology = kQrSymbology;
  attributes().AttrQrX = Part(1);
  attributes().AttrQrSecond = Part(2);
  attributes().AttrQrSize = Part(3);
  NoteIfAbove(kLargest32, Part(3));
}

// A word alone may be meant as a word, also where it is one of the keys.
bool IsCommandBeyondDoubt(std::string_view item, std::string_view key) {
  return item.find('=') != std::string_view::npos || key.starts_with('\\') || key.starts_with("@@") ||
         key == "DEF";
}

}  // namespace

bool LooksLikeCommands(std::string_view block, const CodePage& page) {
  bool beyondDoubt = false;
  const Tokens items = SplitTokens(block, ';');
  for (std::size_t n = 1; n <= items.Count(); ++n) {
    const std::string key = page.Upper(Trim(NthToken(items[n], 1, '=')));
    if (key.empty()) continue;
    if (FindDirective(key) == nullptr && !ChartKeyIndex(key)) return false;
    beyondDoubt = beyondDoubt || IsCommandBeyondDoubt(items[n], key);
  }
  return beyondDoubt;
}

void ApplyCommands(ReaderState& state, std::string_view block) {
  CheckTokenCount(block, ';');
  const bool mayHoldDisarmed =
      block.find('\1') != std::string_view::npos || block.find('\2') != std::string_view::npos;
  std::optional<std::string_view> rest = block;
  while (rest)
    Item(state, TakeToken(rest, ';'), mayHoldDisarmed).Apply();
}

}  // namespace kev
