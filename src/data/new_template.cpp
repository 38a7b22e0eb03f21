// SPDX-License-Identifier: MIT
#include "data/new_template.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "template/skeleton.h"

namespace kev {
namespace {

constexpr std::string_view kUsualSpacing = "200";
// Twips: where the variables of a row begin, how far they are apart, and behind which place a row ends.
constexpr int kFirstPlace = 1500;
constexpr int kPlaceStep = 500;
constexpr int kRowEnd = 8000;

std::string SpacingLine(std::string_view spacing) {
  const std::string_view step = Trim(spacing);
  return "SPACING=" + std::string(NumericPrefix(step) == 0 ? kUsualSpacing : step) + "\r\n";
}

std::string SampleLine(const MadeTemplate& made) {
  return "SAMPLE_KEX_FILE=" + made.SamplePath + "\r\n";
}

std::string SubsectionText(const RecordType& type, const std::string& fieldWord) {
  std::string text = " [" + type.Name + ":";
  bool first = true;
  for (const std::string& field : FieldNames(type.Values, fieldWord)) {
    if (!first) text += ',';
    text += field;
    first = false;
  }
  return text + "]\r\n     {\\n}\r\n\r\n";
}

bool IsGood(const NewTemplateDialog& dialog) {
  return dialog.Survey && dialog.Survey->Check.Fault == SampleFault::None;
}

}  // namespace

SampleKind KindOfStart(TemplateStart start) {
  switch (start) {
    case TemplateStart::Nothing:
      break;
    case TemplateStart::Records:
      return SampleKind::Kex;
    case TemplateStart::Variables:
      return SampleKind::Ked;
  }
  return SampleKind::Other;
}

TemplateStart StartOfFile(TemplateStart chosen, const std::string& path) {
  switch (SampleKindOf(Trim(path))) {
    case SampleKind::Kex:
      return TemplateStart::Records;
    case SampleKind::Ked:
      return TemplateStart::Variables;
    case SampleKind::Other:
      break;
  }
  return chosen;
}

bool CanChooseFile(const NewTemplateDialog& dialog) {
  return dialog.Start != TemplateStart::Nothing && !dialog.Checking;
}

bool CanEdit(const NewTemplateDialog& dialog) {
  return CanReload(dialog);
}

bool CanReload(const NewTemplateDialog& dialog) {
  return CanChooseFile(dialog) && !dialog.Text1.empty();
}

bool CanCreate(const NewTemplateDialog& dialog) {
  return !dialog.Checking && (dialog.Start == TemplateStart::Nothing || IsGood(dialog));
}

std::vector<NumberedText> StatusLines(const NewTemplateDialog& dialog) {
  if (dialog.Start == TemplateStart::Nothing || !dialog.Survey) return {};
  const SampleSurvey& survey = *dialog.Survey;
  if (survey.Check.Fault == SampleFault::Stopped) return {{kTextCheckStopped}};
  if (!IsGood(dialog)) return {{kTextAssistantBad}};
  if (SampleKindOf(Trim(dialog.Text1)) == SampleKind::Ked)
    return {{kTextAssistantGood}, {kTextVariableCount, " " + std::to_string(survey.Variables)}};
  return {{kTextAssistantGood},
          {kTextAssistantCounts, " " + std::to_string(survey.Types.size()) + " - " +
                                     std::to_string(survey.Pages) + " - " + std::to_string(survey.Lines)}};
}

std::optional<SampleMessage> MessageOn(const SampleCheck& check, const std::string& path) {
  // A file without any line lacks its first one.
  const std::size_t line = std::max<std::size_t>(check.Line, 1);
  switch (check.Fault) {
    case SampleFault::None:
    case SampleFault::Stopped:
      return std::nullopt;
    case SampleFault::WrongName:
      return SampleMessage{.Text = kTextSampleFileExtension};
    case SampleFault::NoHead:
      return SampleMessage{.Text = kTextSampleFileHead,
                           .Behind = kTextLineWord,
                           .Line = line,
                           .Hint = check.UnicodeMark ? kTextUnicodeMark : 0};
    case SampleFault::BadLine:
      return SampleMessage{.Text = kTextKexLineBad, .Behind = kTextLineWord, .Line = line};
    case SampleFault::BadVariable:
      return SampleMessage{.Text = kTextKedLineBad, .Behind = kTextLineWord, .Line = line};
    case SampleFault::TooLong:
      return SampleMessage{.Text = kTextRecordTooLong, .Line = line};
    case SampleFault::NotReadable:
      return SampleMessage{.Text = kTextSampleFileNotOpened, .Path = path, .Reason = check.Reason};
  }
  return std::nullopt;
}

std::string RecordsTemplateText(const MadeTemplate& made, const std::vector<RecordType>& types,
                                const std::string& fieldWord) {
  std::string text = std::string(kGeneratedLine) + "\r\n";
  text += "KEXVER=4\r\n" + SpacingLine(made.Spacing) + SampleLine(made);
  text += "[HEADER]\r\n   {\\n;\\n}\r\n[FOOTER]\r\n   {\\n;\\n}\r\n[DATA]\r\n";
  for (const RecordType& type : types)
    text += SubsectionText(type, fieldWord);
  return text;
}

std::string VariablesTemplateText(const MadeTemplate& made, const std::vector<std::string>& variables) {
  std::string text = std::string(kGeneratedLine) + "\r\n";
  text += SpacingLine(made.Spacing) + SampleLine(made);
  text += "[HEADER]\r\n   {spacing=0;\\n}\r\n[DATA]\r\n\r\n";
  int place = kFirstPlace;
  for (const std::string& variable : variables) {
    text += "{" + std::to_string(place) + "} " + variable + "\r\n";
    if (place > kRowEnd) {
      text += "{\\n}\r\n";
      place = 0;
    }
    place += kPlaceStep;
  }
  return text + "   {spacing=8000;\\n}\r\n[FOOTER]\r\n   {spacing=0;\\n}\r\n";
}

}  // namespace kev
