// SPDX-License-Identifier: MIT
#include <iostream>
#include <nlohmann/json.hpp>

#include "base/files.h"
#include "base/finding.h"
#include "commands.h"
#include "data/new_template.h"
#include "data/sample_survey.h"

namespace kev::tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kFieldWord = "Field";
constexpr const char* kUsualSpacing = "200";

std::string ReasonOf(const SampleCheck& check) {
  switch (check.Fault) {
    case SampleFault::WrongName:
      return "the name ends neither in .kex nor in .ked";
    case SampleFault::NoHead:
      return check.UnicodeMark ? "a Unicode mark stands in front of TEMPLATE="
                               : "the first line does not begin with TEMPLATE=";
    case SampleFault::BadLine:
      return "a record begins and ends with the same character, and TEMPLATE= stands but once";
    case SampleFault::TooLong:
      return "a record has more than 197 values";
    case SampleFault::BadVariable:
      return "a line has not the form @name=value";
    case SampleFault::NotReadable:
      return check.Reason;
    case SampleFault::None:
    case SampleFault::Stopped:
      break;
  }
  return {};
}

// "data.kex:3: 3:3: a record ..."; the code is what the designer's check gives.
bool TellFault(const std::string& file, const SampleCheck& check) {
  if (check.Fault == SampleFault::None) return false;
  std::cerr << file;
  if (check.Line != 0) std::cerr << ':' << check.Line;
  const std::string code = SampleCode(check);
  std::cerr << ": " << code << (code.empty() ? "" : ": ") << ReasonOf(check) << '\n';
  return true;
}

void PrintText(const std::string& file, const SampleSurvey& survey, const CodePage& page) {
  std::cout << file << ": good\nlines: " << survey.Lines << '\n';
  if (SampleKindOf(file) == SampleKind::Ked) {
    std::cout << "variables: " << survey.Variables << '\n';
    return;
  }
  std::cout << "pages: " << survey.Pages << "\nrecords: " << survey.Records
            << "\nrecord types: " << survey.Types.size() << '\n';
  for (const RecordType& type : survey.Types) {
    std::cout << page.ToUtf8(type.Name) << ": " << type.Records << " records, " << type.Values << " values:";
    for (const std::string& field : FieldNames(type.Values, kFieldWord))
      std::cout << ' ' << field;
    std::cout << '\n';
  }
}

Json TypesOf(const SampleSurvey& survey, const CodePage& page) {
  Json types = Json::array();
  for (const RecordType& type : survey.Types) {
    types.push_back({{"name", page.ToUtf8(type.Name)},
                     {"records", type.Records},
                     {"fields", FieldNames(type.Values, kFieldWord)}});
  }
  return types;
}

void PrintJson(const std::string& file, const SampleSurvey& survey, const CodePage& page) {
  Json sample = {{"check", SampleCode(survey.Check)}, {"lines", survey.Lines}};
  if (SampleKindOf(file) == SampleKind::Ked) {
    sample["variables"] = survey.Variables;
  } else {
    sample["pages"] = survey.Pages;
    sample["records"] = survey.Records;
    sample["types"] = TypesOf(survey, page);
  }
  std::cout << sample.dump(2) << '\n';
}

int Refuse(const std::string& path, std::string_view reason) {
  std::cerr << path << ": " << reason << '\n';
  return kRefused;
}

void TellNamesWithColon(const std::string& out, const SampleSurvey& survey, const CodePage& page) {
  for (const RecordType& type : survey.Types) {
    if (type.Name.find(':') == std::string::npos) continue;
    std::cerr << out << ": " << FindingText(FindingKind::NameWithColon) << ": " << page.ToUtf8(type.Name)
              << '\n';
  }
}

}  // namespace

int Sample(const std::string& file, bool json) {
  const CodePage& page = CodePage::Default();
  const SampleSurvey survey = SurveySampleFile(file, page);
  if (TellFault(file, survey.Check)) return kRefused;
  if (json) {
    PrintJson(file, survey, page);
  } else {
    PrintText(file, survey, page);
  }
  return kGood;
}

int New(const std::string& dataFile, const std::string& out) {
  const CodePage& page = CodePage::Default();
  const SampleSurvey survey = SurveySampleFile(dataFile, page);
  if (TellFault(dataFile, survey.Check)) return kRefused;
  const std::optional<std::string> path = page.FromUtf8(AbsolutePath(dataFile));
  if (!path || path->find_first_of("\r\n") != std::string::npos)
    return Refuse(dataFile, "a template cannot hold this path");
  std::string text;
  if (SampleKindOf(dataFile) == SampleKind::Ked) {
    const SampleVariables variables = ReadSampleVariables(dataFile, kMostVariables);
    if (variables.Failure) return Refuse(dataFile, variables.Failure->reason);
    if (variables.TooMany) return Refuse(dataFile, "a template cannot hold more than 2000 variables");
    text = VariablesTemplateText({kUsualSpacing, *path}, variables.Names);
  } else {
    text = RecordsTemplateText({kUsualSpacing, *path}, survey.Types, kFieldWord);
  }
  if (const std::optional<FileFailure> failure = WriteWholeFile(out, text))
    return Refuse(failure->path, failure->reason);
  TellNamesWithColon(out, survey, page);
  return kGood;
}

}  // namespace kev::tool
