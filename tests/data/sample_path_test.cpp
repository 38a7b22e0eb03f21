// SPDX-License-Identifier: MIT
#include "data/sample_path.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

void ExpectParts(std::string_view path, std::string_view folder, std::string_view name) {
  EXPECT_EQ(FilePath(path), folder) << path;
  EXPECT_EQ(FileBaseName(path), name) << path;
}

TEST(SamplePath, IsPartedBehindTheLastSeparator) {
  ExpectParts("C:\\data\\stock.kex", "C:\\data\\", "stock.kex");
  ExpectParts("/home/u/stock.kex", "/home/u/", "stock.kex");
  ExpectParts("/home/u/", "/home/u/", "");
}

TEST(SamplePath, TheBackwardSeparatorGoesFirst) {
  ExpectParts("a/b\\c/d.kex", "a/b\\", "c/d.kex");
  ExpectParts("\\a/b.kex", "\\", "a/b.kex");
}

TEST(SamplePath, ANameAloneHasNoFolder) {
  ExpectParts("stock.kex", "", "stock.kex");
  ExpectParts("", "", "");
}

}  // namespace
}  // namespace kev
