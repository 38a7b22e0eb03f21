// SPDX-License-Identifier: MIT
#include "data/sample_survey.h"

#include "base/text.h"
#include "template/sample_copy.h"

namespace kev {
namespace {

constexpr char kPageMark = '>';

void Count(std::string_view line, SampleKind kind, SampleSurvey& survey, RecordTypeTable& types) {
  if (kind == SampleKind::Ked) {
    ++survey.Variables;
  } else if (line.front() == kPageMark) {
    ++survey.Pages;
  } else {
    ++survey.Records;
    types.Add(line);
  }
}

SampleSurvey Refused(SampleCheck check) {
  SampleSurvey survey;
  survey.Check = std::move(check);
  return survey;
}

SampleCheck EndOf(const LineReader& lines, SampleLineCheck& check) {
  if (lines.Failure()) return {SampleFault::NotReadable, 0, lines.Failure()->reason};
  if (lines.Stopped()) return {SampleFault::Stopped, lines.Number()};
  check.End();
  return check.Result();
}

}  // namespace

SampleSurvey SurveySampleFile(const std::string& path, const CodePage& page, LineReader::Watch watch) {
  const SampleKind kind = SampleKindOf(path);
  if (kind == SampleKind::Other) return Refused({SampleFault::WrongName});
  Result<LineReader> lines = LineReader::Open(path, std::move(watch));
  if (!lines) return Refused({SampleFault::NotReadable, 0, lines.Error().reason});
  SampleSurvey survey;
  SampleLineCheck check(kind);
  RecordTypeTable types(page);
  bool good = true;
  while (good && lines->Next()) {
    const std::string_view line = Trim(lines->Line());
    good = check.Add(line, lines->Cut());
    if (check.HasContent()) Count(line, kind, survey, types);
  }
  survey.Check = good ? EndOf(*lines, check) : check.Result();
  survey.Lines = lines->Number();
  survey.Types = types.Take();
  return survey;
}

SampleVariables ReadSampleVariables(const std::string& path, std::size_t most) {
  Result<LineReader> lines = LineReader::Open(path);
  if (!lines) return {{}, lines.Error()};
  SampleVariables variables;
  while (lines->Next()) {
    const std::string_view line = Trim(lines->Line());
    if (line.empty() || NamesTemplate(line)) continue;
    variables.TooMany = variables.Names.size() == most;
    if (variables.TooMany) break;
    variables.Names.emplace_back(Trim(NthToken(line, 1, '=')));
  }
  variables.Failure = lines->Failure();
  return variables;
}

}  // namespace kev
