// SPDX-License-Identifier: MIT
// Any bytes as sample data that the quick panel lists values of. The first line is the record or variable
// that is asked for, the first byte of the second one the field.
#include <algorithm>

#include "base/text.h"
#include "data/sample_check.h"
#include "data/sample_values.h"
#include "fuzz_support.h"
#include "template/sample_copy.h"

namespace {

using namespace kev;
using fuzz::Require;
using fuzz::Scratch;

void CheckValues(const SampleValues& values) {
  Require(!values.FileMissing && values.Items.size() <= kMostValuesShown + 1);
  if (values.Items.size() > kMostValuesShown) Require(values.Items.back() == kMoreValues);
}

void CheckCopy(const std::string& file) {
  SampleCopy copy;
  Require(!copy.Renew(Scratch().Path(), {1, 2, 3}, file, "/a/b.kev"));
  const std::string made = copy.SampleCopyBase() + file.substr(file.rfind('.'));
  Require(FileExists(made));
  copy.Delete();
  Require(!FileExists(made));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::TextOf(data, size);
  if (rest.empty()) return 0;
  const std::string name(TakeLine(rest));
  const std::size_t field = rest.empty() ? 0 : static_cast<unsigned char>(rest.front()) % 8;

  const std::string records = Scratch().Made("values.kex", rest);
  CheckValues(FieldValues(records, name, field, CodePage::Default()));
  CheckCopy(records);

  const std::string variables = Scratch().Made("values.ked", rest);
  CheckValues(VariableValues(variables, name));
  std::vector<std::string> names = VariableNames(variables);
  std::sort(names.begin(), names.end());
  Require(std::adjacent_find(names.begin(), names.end()) == names.end());
  return 0;
}
