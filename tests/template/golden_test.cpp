// SPDX-License-Identifier: MIT
// tests/template/golden/NAME.kev, opened and saved, is NAME.saved.kev, and NAME.comments.kev where that is
// there. A difference leaves NAME.saved.kev.out beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/run_tool.h"
#include "support/templates.h"

namespace kev {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;

const std::string& Folder() {
  static const std::string folder = std::string(KEV_TEST_DATA_DIR) + "/template/golden/";
  return folder;
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Folder())) {
    const std::string name = entry.path().filename().string();
    if (std::count(name.begin(), name.end(), '.') == 1) names.push_back(name.substr(0, name.find('.')));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void ExpectGolden(const std::string& name, const std::string& kind, bool comments) {
  const std::string golden = Folder() + name + "." + kind + ".kev";
  const std::string saved = test::Rewrite(ReadBytes(Folder() + name + ".kev"), {comments});
  if (saved == ReadBytes(golden)) return;
  test::WriteBytes(golden + ".out", saved);
  ADD_FAILURE() << golden << ".out: " << test::FirstDifference(saved, ReadBytes(golden));
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, IsSavedAsItStandsThere) {
  ExpectGolden(GetParam(), "saved", false);
  if (fs::exists(Folder() + GetParam() + ".comments.kev")) ExpectGolden(GetParam(), "comments", true);
}

std::string TestName(const testing::TestParamInfo<std::string>& name) {
  return name.param;
}

INSTANTIATE_TEST_SUITE_P(Templates, Golden, testing::ValuesIn(Names()), TestName);

}  // namespace
}  // namespace kev
