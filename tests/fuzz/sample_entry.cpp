// SPDX-License-Identifier: MIT
// Any bytes as sample data: the first one chooses records or variables. The text and the file are judged
// alike, and what is made of a good one is a template that reads back.
#include "data/new_template.h"
#include "document/text_measurer.h"
#include "fuzz_support.h"
#include "template/reader.h"

namespace {

using namespace kev;
using fuzz::Require;

void CheckMade(const std::string& text) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  // A record may be named like anything that stands in a template; it must be read, whatever it then means.
  static_cast<void>(ReadTemplateBytes(text, {measurer, pictures}));
}

void CheckCode(const SampleCheck& check) {
  const std::string code = SampleCode(check);
  Require(code.empty() == (check.Fault == SampleFault::None));
  const bool named = check.Fault == SampleFault::BadLine || check.Fault == SampleFault::TooLong;
  Require(named == (code == "3:" + std::to_string(check.Line)));
}

// The fields that a head line names come back from one that is made of them.
void CheckFields(std::string_view head) {
  const std::vector<std::string> fields = FieldsOfHead(head);
  std::string made = "[X:";
  for (const std::string& field : fields)
    made.append(field).append(",");
  if (fields.empty() || !fields.back().ends_with(']')) Require(FieldsOfHead(made + ']') == fields);
}

void CheckOtherNames(std::string_view bytes) {
  const std::string other = fuzz::Scratch().Made("data.txt", bytes);
  Require(CheckSampleFile(other).Fault == SampleFault::WrongName);
  Require(SurveySampleFile(other, CodePage::Default()).Check.Fault == SampleFault::WrongName);
  Require(ReadRecordTypes(other, CodePage::Default()).empty());
  const std::string missing = fuzz::Scratch().Path("nothing.kex");
  Require(CheckSampleFile(missing).Fault == SampleFault::None);
  Require(SurveySampleFile(missing, CodePage::Default()).Check.Fault == SampleFault::NotReadable);
  Require(ReadRecordTypes(missing, CodePage::Default()).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const bool isVariables = data[0] == 'v';
  const std::string file = fuzz::Scratch().Made(isVariables ? "data.ked" : "data.kex", bytes);

  const SampleCheck ofText = CheckSampleText(bytes, isVariables ? SampleKind::Ked : SampleKind::Kex);
  const SampleCheck ofFile = CheckSampleFile(file);
  const SampleSurvey survey = SurveySampleFile(file, CodePage::Default());
  Require(ofText.Fault == ofFile.Fault && ofText.Line == ofFile.Line);
  Require(ofText.Fault == survey.Check.Fault && ofText.Line == survey.Check.Line);
  Require(survey.Records + survey.Pages + survey.Variables <= survey.Lines);
  CheckCode(ofText);
  CheckFields(bytes);
  if (fuzz::IsOneOfEight(bytes)) CheckOtherNames(bytes);
  if (ofText.Fault != SampleFault::None) return 0;

  if (isVariables) {
    const SampleVariables variables = ReadSampleVariables(file, kMostVariables);
    Require(variables.TooMany || variables.Names.size() == survey.Variables);
    CheckMade(VariablesTemplateText({"200", file}, variables.Names));
  } else {
    std::size_t records = 0;
    for (SampleRecordReader reader(bytes); reader.Next();)
      ++records;
    Require(records == survey.Records);
    Require(survey.Types == RecordTypesOf(bytes, CodePage::Default()));
    Require(survey.Types == ReadRecordTypes(file, CodePage::Default()));
    CheckMade(RecordsTemplateText({"200", file}, survey.Types, "Field"));
  }
  return 0;
}
