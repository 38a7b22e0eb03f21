// SPDX-License-Identifier: MIT
#include "base/folder.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/run_tool.h"

namespace kev {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(Folder, ListsNamesOfAllKinds) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "a.kev", "x");
  test::WriteBytes(folder / ".hidden", "");
  std::filesystem::create_directory(folder / "below");
  EXPECT_THAT(NamesIn(folder / ""), UnorderedElementsAre("a.kev", ".hidden", "below"));
}

TEST(Folder, WhatCannotBeReadHoldsNothing) {
  const test::TemporaryFolder folder;
  EXPECT_THAT(NamesIn(folder / "missing"), IsEmpty());
  test::WriteBytes(folder / "file", "x");
  EXPECT_THAT(NamesIn(folder / "file"), IsEmpty());
}

}  // namespace
}  // namespace kev
