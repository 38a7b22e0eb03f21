// SPDX-License-Identifier: MIT
#include "template/reader.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>
#include <utility>

#include "base/files.h"
#include "base/holds_number.h"
#include "base/numbers.h"
#include "base/reasons.h"
#include "base/text.h"
#include "document/papers.h"
#include "document/position.h"
#include "document/setting_check.h"
#include "template/scanner.h"
#include "template/skeleton.h"

namespace kev {

// A file can hold any number of oddities; a list that nobody can read to its end helps nobody.
constexpr std::size_t kMostFindings = 1000;

// Objects take over texts from the state and from text that is flushed again, so that a small file can ask
// for far more memory than it has bytes. No template that prints comes near these bounds.
constexpr std::size_t kMostTextBytes = 64UL * 1024 * 1024;
constexpr std::size_t kMostAppliedBytes = 256UL * 1024 * 1024;

static std::size_t TextBytes(const ObjectRecord& record) {
  const auto optionalBytes = [](const RareOptional<std::string>& text) { return text ? text->size() : 0; };
  std::size_t bytes = record.Content.size() + record.FontName.size() + record.CharSet.size() +
                      record.Link.size() + record.Format.size() + record.XValue.size() +
                      record.X2Value.size() + record.PicturePath.size() + record.PictureFile.size() +
                      record.OwnerName.size() + record.SectionName.size() + record.SectionTitle.size() +
                      optionalBytes(record.CommandPayload) + optionalBytes(record.TextBoxFrameValue) +
                      optionalBytes(record.Stretch);
  for (const std::string& value : record.ChartValues)
    bytes += value.size();
  return bytes;
}

void ReaderState::Note(FindingKind kind, std::string_view text) {
  if (findings.size() < kMostFindings)
    findings.push_back({line, column, kind, std::string(text.substr(0, 200)), cursor.OpenSubsection});
}

int ReaderState::Add(const NewObject& object) {
  CreationContext context{document, attributes, cursor, services.Measurer, services.Pictures, 1.0, {}};
  if (services.Progress != nullptr) {
    context.onCreate = [this](int row, ObjectKind kind) { services.Progress->Object(row, kind); };
  }
  // The end of a subsection asks whether a page break stands directly before it, and forgets it by itself.
  if (!IsBand(object.kind)) cursor.LastCommand.clear();
  const int row = AddObject(context, object);
  if (places.size() <= static_cast<std::size_t>(row)) places.resize(static_cast<std::size_t>(row) + 1);
  places[static_cast<std::size_t>(row)] = {static_cast<std::uint32_t>(line),
                                           static_cast<std::uint32_t>(column), cursor.OpenSubsection};
  NotePositions(std::as_const(document).Objects[row], row);
  textBytes += TextBytes(document.Objects[row]);
  if (textBytes > kMostTextBytes) throw std::out_of_range(kReasonTextsTooLarge);
  return row;
}

// Positions that count as 0, though they were meant to be something else.
void ReaderState::NotePositions(const ObjectRecord& record, int row) {
  for (const std::string_view position :
       {std::string_view(record.XValue), std::string_view(record.X2Value)}) {
    if (HoldsNumber(position)) continue;
    const std::string_view name = NthToken(position, 1, kBlank);
    if (name.empty()) continue;
    const bool isColumn = name.starts_with('$');
    const bool isUnknown = isColumn && document.Columns.Find(name, *document.Page) == 0;
    if (isColumn && !isUnknown && EvaluatePosition(position, document.Columns, *document.Page)) continue;
    const std::size_t before = findings.size();
    if (isUnknown)
      Note(FindingKind::DanglingColumn, name);
    else
      Note(FindingKind::ValueOutOfRange, position);
    if (findings.size() > before) findings.back().Row = row;
  }
}

static bool IsBefore(const SourcePlace& place, const Finding& finding) {
  return place.Line != finding.Line ? place.Line < finding.Line : place.Column < finding.Column;
}

static int RowOfFinding(const Finding& finding, const std::vector<SourcePlace>& places) {
  const int bar = finding.Row;
  int row = bar;
  const auto placeOf = [&](int at) { return places[static_cast<std::size_t>(at)]; };
  const auto isObject = [&](int at) {
    return at < static_cast<int>(places.size()) && placeOf(at).Bar == bar;
  };
  while (isObject(row + 1) && IsBefore(placeOf(row + 1), finding))
    ++row;
  const bool atNext =
      isObject(row + 1) && placeOf(row + 1).Line == finding.Line && placeOf(row + 1).Column == finding.Column;
  if (finding.Kind == FindingKind::DisarmedBlock && !atNext) return row;
  return isObject(row + 1) ? row + 1 : bar;
}

void AttachRows(std::vector<Finding>& findings, const std::vector<SourcePlace>& places) {
  for (Finding& finding : findings) {
    const bool atBar = finding.Row > 0 && places[static_cast<std::size_t>(finding.Row)].Bar == finding.Row;
    if (atBar && finding.Kind != FindingKind::LostText) finding.Row = RowOfFinding(finding, places);
  }
}

namespace {

constexpr std::string_view kHeader = "[HEADER]";

std::string_view WithoutLeadingTabs(std::string_view line) {
  while (line.starts_with('\t'))
    line.remove_prefix(1);
  return line;
}

// Asked for many lines that hold something else: the lengths rule most of them out.
const SettingRow* FindHeadKey(std::string_view name, const CodePage& page) {
  for (const SettingRow& row : SettingRows())
    if (row.key.size() == name.size() && page.EqualsIgnoringCase(row.key, name)) return &row;
  return nullptr;
}

class TemplateReader {
 public:
  TemplateReader(std::string_view bytes, const ReadServices& services)
      : bytes_(bytes), rest_(bytes), services_(services), page_(*services.Page), state_{document_, services,
                                                                                        {},        {},
                                                                                        {},        {}} {}

  ReadOutcome Read();

 private:
  void ReadHead();
  void CheckHead(const KeyFile& keys);
  void CheckHeadLine(std::string_view line, const KeyFile& keys, bool inHead);
  void CheckHeadValue(const SettingRow& row, std::string_view value);
  void CheckColumn(std::string_view line);
  void CheckDelimiters(const KeyFile& keys);
  bool ReadPreamble();
  void AddColumn(std::string_view line);
  void AddPreambleBlock(std::string_view line);
  void ReadLayout();
  void ReadLayoutLine(std::string_view line);
  void OpenSection(std::string_view line);
  void CloseSubsection();
  void ScanContent(std::string_view line, std::size_t removed);
  void ApplyBlock();
  void Flush();
  void KeepText(std::string_view text, std::size_t column);
  template <typename Work>
  void AtText(const Work& work);
  void NoteLostText();
  void NoteDisarmedBlocks(std::string_view line, std::string_view prepared);
  std::string_view NextLine();

  std::string_view bytes_;
  std::string_view rest_;  // what has not been read yet
  const ReadServices& services_;
  const CodePage& page_;
  Document document_;
  ReaderState state_;
  std::string currentSection_{kHeader};
  std::string changed_;  // the line as it is scanned, where that is not as it stands
  std::string textBuffer_;
  NewObject flushed_;  // used again for each text
  std::string commandBuffer_;
  std::unordered_set<std::string> columns_;  // the names so far, in capitals
  bool inBlock_ = false;
  bool textIsFlushed_ = false;
  bool hasText_ = false;  // the buffer holds more than blanks
  std::size_t textLine_ = 0;
  std::size_t textColumn_ = 0;
  std::size_t appliedBytes_ = 0;
};

ReadOutcome TemplateReader::Read() {
  if (services_.Progress != nullptr) services_.Progress->Begin(static_cast<int>(CountLines(bytes_)));
  document_.Page = services_.Page;
  ReadHead();
  const bool hasLayout = ReadPreamble();
  state_.cursor.CursorY = state_.cursor.SubsectionMaxY = state_.cursor.SurfaceY = 0;
  if (hasLayout) OpenSection(kHeader);
  state_.attributes.SpacingNow = document_.Settings.SpacingTwips();
  ReadLayout();
  NoteLostText();
  CloseSubsection();
  if (services_.Progress != nullptr) services_.Progress->End();
  AttachRows(state_.findings, state_.places);
  return {std::move(document_), std::move(state_.attributes), std::move(state_.findings),
          std::move(state_.places)};
}

void TemplateReader::ReadHead() {
  const KeyFile keys(bytes_, page_);
  document_.Settings = ReadSettings(keys, services_.DefaultPaper, page_);
  CheckHead(keys);
  CheckDelimiters(keys);
}

// Characters that have another meaning in a template, or the same one twice, make a file that can be read but
// not written again.
void TemplateReader::CheckDelimiters(const KeyFile& keys) {
  const char open = document_.Settings.OpenCharacter();
  const char close = document_.Settings.CloseCharacter();
  for (const Setting id : {Setting::Open, Setting::Close}) {
    const char c = document_.Settings[id].front();
    const bool isLetter = page_.Upper(c) != c || page_.Lower(std::string(1, c)) != std::string(1, c);
    const bool isTaken = std::string_view(" 0123456789[];,=$@+-\\#").find(c) != std::string_view::npos;
    if (!isLetter && !isTaken && open != close) continue;
    state_.line = keys.Line(RowOf(id).key);
    state_.Note(FindingKind::WillNotComeBack, std::string(RowOf(id).key) + "=" + c);
  }
}

// What of the head is not seen: keys that stand a second time or too far down, and lines that are neither a
// key nor a column. Keys are looked for in the first lines of the file, wherever the head ends.
void TemplateReader::CheckHead(const KeyFile& keys) {
  bool inHead = true;
  std::string_view rest = bytes_;
  for (state_.line = 1; !rest.empty(); ++state_.line) {
    const std::string_view whole = TakeLine(rest);
    const std::string_view line = Trim(whole);
    state_.column = static_cast<std::size_t>(line.data() - whole.data()) + 1;
    if (page_.EqualsIgnoringCase(Trim(WithoutLeadingTabs(line)), kHeader)) inHead = false;
    if (!inHead && state_.line > KeyFile::kLinesLookedAt) break;
    CheckHeadLine(line, keys, inHead);
  }
}

void TemplateReader::CheckHeadLine(std::string_view line, const KeyFile& keys, bool inHead) {
  const std::string_view visible = Trim(WithoutLeadingTabs(line));
  if (visible.empty() || visible.starts_with('[')) return;
  if (inHead && visible.starts_with('$')) return CheckColumn(visible);
  const std::size_t equals = line.starts_with('#') ? std::string_view::npos : line.find('=');
  if (equals == std::string_view::npos) {
    if (inHead && visible != kGeneratedLine) state_.Note(FindingKind::LostText, visible);
    return;
  }
  const std::string_view key = line.substr(0, equals);
  const SettingRow* row = FindHeadKey(key, page_);
  if (row == nullptr) {
    if (inHead) state_.Note(FindingKind::UnknownKey, Trim(key));
  } else if (state_.line > KeyFile::kLinesLookedAt) {
    state_.Note(FindingKind::LateKey, line);
  } else if (keys.Line(key) != state_.line) {
    state_.Note(FindingKind::RepeatedKey, page_.Upper(key));
  } else {
    CheckHeadValue(*row, Trim(line.substr(equals + 1)));
  }
}

void TemplateReader::CheckHeadValue(const SettingRow& row, std::string_view value) {
  bool means = SettingIsUnderstood(row.id, value, page_);
  // The name of a paper that nobody knows gives way to the usual paper, unless the size stands beside it.
  if (row.id == Setting::PAPERSIZE && !value.empty())
    means = page_.EqualsIgnoringCase(document_.Settings[row.id], value) || LookupPaper(value).has_value();
  if (!means) state_.Note(FindingKind::ValueOutOfRange, std::string(row.key).append("=").append(value));
}

// Positions take the first column of a name.
void TemplateReader::CheckColumn(std::string_view line) {
  const std::string_view name = Trim(NthToken(line, 1, '='));
  if (!columns_.insert(page_.Upper(name)).second) state_.Note(FindingKind::RepeatedKey, name);
  if (!HoldsNumber(NthToken(line, 2, '='))) state_.Note(FindingKind::ValueOutOfRange, line);
}

std::string_view TemplateReader::NextLine() {
  ++state_.line;
  state_.column = 1;
  if (services_.Progress != nullptr) services_.Progress->Line(static_cast<int>(state_.line));
  return TakeLine(rest_);
}

// True when the preamble ended at the line [HEADER] and not at the end of the file.
bool TemplateReader::ReadPreamble() {
  state_.line = 0;
  while (!rest_.empty()) {
    const std::string_view line = Trim(WithoutLeadingTabs(NextLine()));
    if (line.starts_with('$')) {
      AddColumn(line);
    } else if (line.starts_with('[')) {
      if (page_.EqualsIgnoringCase(line, kHeader)) return true;
      AddPreambleBlock(line);
    }
  }
  return false;
}

void TemplateReader::AddColumn(std::string_view line) {
  int slot = 1;
  while (slot <= ColumnTable::kLastSlot && !document_.Columns[slot].Name.empty())
    ++slot;
  Column& column = document_.Columns[slot];  // throws behind the last slot
  column.Name = Trim(NthToken(line, 1, '='));
  column.Position = NumericPrefix(NthToken(line, 2, '='));
}

void TemplateReader::AddPreambleBlock(std::string_view line) {
  NewObject bar;
  bar.kind = ObjectKind::Subsection;
  bar.sectionName = kConfigurationSection;
  bar.title = line;
  state_.Add(bar);
  CloseSubsection();
}

void TemplateReader::OpenSection(std::string_view line) {
  NewObject bar;
  bar.kind = ObjectKind::Subsection;
  bar.sectionName = currentSection_;
  bar.title = line;
  state_.Add(bar);
  state_.cursor.SubsectionStarted = false;
}

void TemplateReader::CloseSubsection() {
  NewObject end;
  end.kind = ObjectKind::EndOfSubsection;
  end.extra = std::to_string(state_.cursor.OpenSubsection);
  state_.Add(end);
}

void TemplateReader::ReadLayout() {
  while (!rest_.empty())
    ReadLayoutLine(NextLine());
}

void TemplateReader::ReadLayoutLine(std::string_view line) {
  const DocumentSettings& settings = document_.Settings;
  const std::string_view prepared =
      PreprocessLine(changed_, line, settings.OpenCharacter(), settings.CloseCharacter(), page_);
  if (prepared.data() != line.data() && prepared != line) NoteDisarmedBlocks(line, prepared);
  const std::string_view trimmed = Trim(WithoutLeadingTabs(prepared));
  if (!trimmed.starts_with('['))
    return ScanContent(trimmed, static_cast<std::size_t>(trimmed.data() - prepared.data()));
  if (state_.cursor.OpenSubsection != 0) CloseSubsection();
  const std::string capitals = page_.Upper(trimmed);
  if (capitals == "[DATA]" || capitals == "[FOOTER]") currentSection_ = capitals;
  OpenSection(trimmed);
}

// The order of the tests is the grammar: a close character ends a block wherever it stands, and an open
// character inside a block begins it anew.
void TemplateReader::ScanContent(std::string_view line, std::size_t removed) {
  const char open = document_.Settings.OpenCharacter();
  const char close = document_.Settings.CloseCharacter();
  inBlock_ = false;
  std::size_t blockColumn = 1;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::size_t begin = at;
    at = FindEither(line, at, open, close);
    const std::string_view run = line.substr(begin, at - begin);
    if (inBlock_)
      commandBuffer_ += run;
    else if (!run.empty())
      KeepText(run, removed + begin + 1);
    if (at == line.size()) return;
    if (line[at] == close) {
      state_.column = blockColumn;
      NoteLostText();
      inBlock_ = false;
      textBuffer_.clear();
      hasText_ = false;
      ApplyBlock();
    }
    if (line[at] == open) {
      state_.column = blockColumn = removed + at + 1;
      inBlock_ = true;
      commandBuffer_.clear();
      Flush();
    }
  }
}

// Each further close character applies the same block again, so that the work is not bounded by the file's
// size.
void TemplateReader::ApplyBlock() {
  appliedBytes_ += commandBuffer_.size();
  if (appliedBytes_ > kMostAppliedBytes) throw std::out_of_range(kReasonBlocksTooOften);
  ApplyCommands(state_, commandBuffer_);
}

void TemplateReader::KeepText(std::string_view text, std::size_t column) {
  textBuffer_ += text;
  textIsFlushed_ = false;
  if (hasText_) return;
  const std::size_t first = text.find_first_not_of(kBlank);
  if (first == std::string_view::npos) return;
  hasText_ = true;
  textLine_ = state_.line;
  textColumn_ = column + first;
}

// Texts are told where they began, which may be lines above the place at which they end.
template <typename Work>
void TemplateReader::AtText(const Work& work) {
  const auto line = std::exchange(state_.line, textLine_);
  const auto column = std::exchange(state_.column, textColumn_);
  work();
  state_.line = line;
  state_.column = column;
}

void TemplateReader::NoteLostText() {
  if (!hasText_ || textIsFlushed_) return;
  AtText([this] { state_.Note(FindingKind::LostText, Trim(textBuffer_)); });
}

// Preparing a line puts braces around a block without a position; where the document has its own delimiters,
// those are no delimiters. And it turns a block with text behind it into text, which is meant for braces that
// are words of a label, and not for commands.
void TemplateReader::NoteDisarmedBlocks(std::string_view line, std::string_view prepared) {
  const bool own = document_.Settings.HasOwnDelimiters();
  std::size_t begin = line.size();
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == document_.Settings.CloseCharacter() && begin < at) {
      const std::string_view block = line.substr(begin + 1, at - begin - 1);
      const bool rearmed = own && prepared[begin] == '{' && prepared[at] == '}';
      if (rearmed || (prepared[begin] == '\1' && LooksLikeCommands(block, page_))) {
        state_.column = begin + 1;
        state_.Note(FindingKind::DisarmedBlock, block);
      }
      begin = line.size();
    } else if (line[at] == document_.Settings.OpenCharacter()) {
      begin = at;
    }
  }
}

// The buffer is not emptied here: only a close character does that.
void TemplateReader::Flush() {
  textIsFlushed_ = true;
  if (!hasText_) return;
  AttributeState& attributes = state_.attributes;
  NewObject& object = flushed_;
  object.text = textBuffer_;
  if (object.text.find('\1') != std::string::npos) {
    ReplaceAll(object.text, '\1', document_.Settings.OpenCharacter());
    ReplaceAll(object.text, '\2', document_.Settings.CloseCharacter());
  }
  object.kind = attributes.AttrSymbology == kNoSymbology   ? ObjectKind::Label
                : attributes.AttrSymbology == kQrSymbology ? ObjectKind::Qr
                                                           : ObjectKind::Barcode;
  object.xValue = attributes.AttrX;
  object.link = attributes.AttrLink;
  object.format = attributes.AttrFormat;
  AtText([&] { state_.Add(object); });
  attributes.AttrValueType = "General";
  attributes.AttrLink.clear();
  state_.cursor.SubsectionStarted = true;
}

}  // namespace

Result<ReadOutcome> ReadTemplateBytes(std::string_view bytes, const ReadServices& services) {
  try {
    return TemplateReader(bytes, services).Read();
  } catch (const std::out_of_range& limit) {
    if (services.Progress != nullptr) services.Progress->End();
    return FileFailure{{}, limit.what()};
  }
}

Result<ReadOutcome> ReadTemplate(const std::string& path, const ReadServices& services) {
  const Result<std::string> bytes = ReadWholeFile(path);
  if (!bytes) return bytes.Error();
  Result<ReadOutcome> outcome = ReadTemplateBytes(*bytes, services);
  if (!outcome) return FileFailure{path, outcome.Error().reason};
  return outcome;
}

}  // namespace kev
