// SPDX-License-Identifier: MIT
#include "app/documentation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kev {
namespace {

TEST(Documentation, OnlySpanishHasItsOwnPages) {
  EXPECT_EQ(DocumentationAddress("docs.example", 'S'), "https://docs.example/kvedocs?esp");
  for (const char language : {'E', 'I', 'P'}) {
    EXPECT_EQ(DocumentationAddress("docs.example", language), "https://docs.example/kvedocs?eng");
  }
}

TEST(Documentation, InstalledPagesAreFoundBesideTheProgram) {
  const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "kev_documentation";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder / "bin");
  EXPECT_EQ(InstalledDocumentation((folder / "bin").string()), std::nullopt);

  std::filesystem::create_directories(folder / "share/doc/kev");
  std::ofstream(folder / "share/doc/kev/README.md") << "text";
  EXPECT_EQ(InstalledDocumentation((folder / "bin").string()), (folder / "share/doc/kev/README.md").string());

  std::filesystem::create_directories(folder / "bin/docs");
  std::ofstream(folder / "bin/docs/index.html") << "text";
  EXPECT_EQ(InstalledDocumentation((folder / "bin").string()), (folder / "bin/docs/index.html").string());
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace kev
