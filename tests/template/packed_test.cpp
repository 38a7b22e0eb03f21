// SPDX-License-Identifier: MIT
#include "template/packed.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <set>

#include "base/files.h"
#include "base/reasons.h"
#include "support/run_tool.h"

namespace kev {
namespace {

const std::string kPlain = "KEXVER=4\r\n[HEADER]\r\n{100;}A{\\n}\r\n[DATA]\r\n[FOOTER]\r\n";

std::string Packed(const std::string& plain, const std::string& name = "a.kev") {
  const Result<std::string> packed = PackedBytes(plain, name);
  EXPECT_TRUE(packed);
  return packed ? *packed : std::string();
}

std::string ReasonOf(const std::string& packed) {
  const Result<std::string> plain = UnpackedBytes(packed);
  return plain ? "none" : plain.Error().reason;
}

class PackedFiles : public testing::Test {
 protected:
  PackedFiles() {
    std::filesystem::create_directories(folder_ / "temp/Temp");
    std::filesystem::create_directories(folder_ / "work");
  }
  std::string Made(const std::string& name, const std::string& bytes) const {
    test::WriteBytes(folder_ / ("work/" + name), bytes);
    return folder_ / ("work/" + name);
  }
  std::string Temp() const { return folder_ / "temp"; }
  // Every file below the folder, by its path in it.
  std::set<std::string> Names(const std::string& below = "") const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_ / below))
      if (entry.is_regular_file())
        names.insert(std::filesystem::relative(entry.path(), folder_ / below).string());
    return names;
  }
  Result<WorkFile> Unpack(std::string& path) const { return UnpackTemplate(path, Temp()); }

  test::TemporaryFolder folder_;
};

// --- What is packed
// -----------------------------------------------------------------------------------------

TEST(IsPacked, KnowsThreeSignaturesBehindTenBytes) {
  EXPECT_EQ(IsPackedBytes(std::string("60\x03\x04"
                                      "123456")),
            1);
  EXPECT_EQ(IsPackedBytes("PP4 123456"), 1);
  EXPECT_EQ(IsPackedBytes("TH4 123456"), 1);
  EXPECT_EQ(IsPackedBytes("PP4 12345"), -1);
  EXPECT_EQ(IsPackedBytes(""), -1);
  EXPECT_EQ(IsPackedBytes("PK\x03\x04"
                          "123456"),
            0);
  EXPECT_EQ(IsPackedBytes("60 dozen eggs"), 0);
  EXPECT_EQ(IsPackedBytes(kPlain), 0);
}

TEST_F(PackedFiles, AFileThatCannotBeReadIsNotPacked) {
  EXPECT_EQ(IsPackedFile(folder_ / "none.kev"), -1);
  EXPECT_EQ(IsPackedFile(folder_ / "work"), -1);
  EXPECT_EQ(IsPackedFile(Made("short.kev", "123456789")), -1);
  EXPECT_EQ(IsPackedFile(Made("plain.kev", kPlain)), 0);
  EXPECT_EQ(IsPackedFile(Made("packed.kev", Packed(kPlain))), 1);
}

// --- Packing
// ------------------------------------------------------------------------------------------------

TEST_F(PackedFiles, APackedFileBeginsWithSixtyAndIsAnArchiveBehindIt) {
  const std::string plain = Made("plain.kev", kPlain);
  const std::string target = folder_ / "work/target.kev";
  ASSERT_EQ(PackTemplate(plain, target), std::nullopt);
  std::string bytes = test::ReadBytes(target);
  EXPECT_TRUE(bytes.starts_with(std::string("60\x03\x04")));
  EXPECT_TRUE(bytes.ends_with(kPackedComment));
  bytes.replace(0, 2, "PK");
  Made("target.zip", bytes);
  const std::string listed = folder_ / "listed";
  const std::string command = "cd " + test::ShellQuoted(folder_ / "work") +
                              " && python3 -c 'import zipfile; z = zipfile.ZipFile(\"target.zip\"); "
                              "print(z.namelist(), z.comment.decode(), z.testzip()); "
                              "open(\"member\", \"wb\").write(z.read(\"target.kev\"))' >" +
                              test::ShellQuoted(listed);
  ASSERT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(test::ReadBytes(listed), "['target.kev'] Kev Encoded Template None\n");
  EXPECT_EQ(test::ReadBytes(folder_ / "work/member"), kPlain);
}

TEST_F(PackedFiles, TheSameTemplateGivesTheSameFile) {
  EXPECT_EQ(Packed(kPlain), Packed(kPlain));
  EXPECT_NE(Packed(kPlain), Packed(kPlain + "x"));
}

TEST_F(PackedFiles, APackThatFailsLeavesTheOldFile) {
  const std::string target = Made("old.kev", "old");
  EXPECT_TRUE(PackTemplate(folder_ / "none.kev", target));
  EXPECT_EQ(test::ReadBytes(target), "old");
  const std::string plain = Made("plain.kev", kPlain);
  EXPECT_TRUE(PackTemplate(plain, folder_ / "nowhere/a.kev"));
  EXPECT_EQ(Names("work"), (std::set<std::string>{"old.kev", "plain.kev"}));
}

TEST(Packing, AnyBytesComeBack) {
  for (const std::string& plain :
       {std::string(), std::string("x"), kPlain, std::string("\0\r\n\xFF PK", 7), std::string(300000, 'a')})
    EXPECT_EQ(*UnpackedBytes(Packed(plain)), plain);
}

// --- Unpacking
// ----------------------------------------------------------------------------------------------

TEST_F(PackedFiles, UnpackingTurnsThePathToAPlainFileThatGoesAgain) {
  const std::string packed = Made("my report.kev", Packed(kPlain));
  std::string path = packed;
  {
    const Result<WorkFile> unpacked = Unpack(path);
    ASSERT_TRUE(unpacked);
    EXPECT_EQ(path, folder_ / "temp/ppp.kev");
    EXPECT_EQ(unpacked->Path(), path);
    EXPECT_EQ(test::ReadBytes(path), kPlain);
    // The copy that was unpacked is gone already.
    EXPECT_EQ(Names("temp"), std::set<std::string>{"ppp.kev"});
  }
  EXPECT_EQ(Names("temp"), std::set<std::string>());
  EXPECT_EQ(test::ReadBytes(packed), Packed(kPlain));
}

TEST_F(PackedFiles, TheNameOfTheMemberIsNeverAPath) {
  for (const char* name : {"../../evil.kev", "/tmp/kev-evil.kev", "Temp/evil.kev", "..", "folder/"}) {
    std::string path = Made("a.kev", Packed(kPlain, name));
    const Result<WorkFile> unpacked = Unpack(path);
    ASSERT_TRUE(unpacked) << name;
    EXPECT_EQ(test::ReadBytes(path), kPlain) << name;
    EXPECT_EQ(Names(), (std::set<std::string>{"temp/ppp.kev", "work/a.kev"})) << name;
    EXPECT_FALSE(std::filesystem::exists("/tmp/kev-evil.kev"));
  }
}

TEST_F(PackedFiles, AFailureLeavesThePathAndNothingElse) {
  const std::string packed = Packed(kPlain);
  for (const std::string& bytes :
       {packed.substr(0, packed.size() / 2), std::string("PP4 1234567890"), std::string("60")}) {
    const std::string file = Made("a.kev", bytes);
    std::string path = file;
    const Result<WorkFile> unpacked = Unpack(path);
    ASSERT_FALSE(unpacked);
    EXPECT_EQ(unpacked.Error().reason, kReasonPackedDamaged);
    EXPECT_EQ(unpacked.Error().path, file);
    EXPECT_EQ(path, file);
    EXPECT_EQ(Names("temp"), std::set<std::string>());
    EXPECT_EQ(test::ReadBytes(file), bytes);
  }
}

TEST_F(PackedFiles, AMissingFolderIsNamed) {
  std::filesystem::remove(folder_ / "temp/Temp");
  const std::string file = Made("a.kev", Packed(kPlain));
  std::string path = file;
  const Result<WorkFile> unpacked = Unpack(path);
  ASSERT_FALSE(unpacked);
  EXPECT_EQ(unpacked.Error().path, Temp() + "/Temp");
  EXPECT_EQ(unpacked.Error().reason, "No such file or directory");
  EXPECT_EQ(path, file);
}

TEST_F(PackedFiles, TwoRunsUnpackBesideEachOther) {
  std::string first = Made("a.kev", Packed("first"));
  std::string second = Made("b.kev", Packed("second"));
  const Result<WorkFile> one = Unpack(first);
  const Result<WorkFile> two = Unpack(second);
  ASSERT_TRUE(one && two);
  EXPECT_EQ(test::ReadBytes(first), "first");
  EXPECT_EQ(test::ReadBytes(second), "second");
  EXPECT_EQ(second, folder_ / "temp/2_ppp.kev");
}

TEST_F(PackedFiles, WhatAnEarlierRunLeftIsReplaced) {
  test::WriteBytes(folder_ / "temp/ppp.kev", "left behind");
  test::WriteBytes(folder_ / "temp/Temp/a.kev", "left behind");
  std::string path = Made("a.kev", Packed(kPlain));
  {
    const Result<WorkFile> unpacked = Unpack(path);
    ASSERT_TRUE(unpacked);
    EXPECT_EQ(path, folder_ / "temp/ppp.kev");
    EXPECT_EQ(test::ReadBytes(path), kPlain);
  }
  EXPECT_EQ(Names("temp"), std::set<std::string>());
}

TEST(Unpacking, TheCommentIsNotLookedAt) {
  std::string packed = Packed(kPlain);
  packed.replace(packed.size() - kPackedComment.size(), 3, "???");
  EXPECT_EQ(*UnpackedBytes(packed), kPlain);
}

TEST(Unpacking, OnlyTheOutermostArchiveIsOpened) {
  EXPECT_EQ(*UnpackedBytes(Packed(Packed(kPlain))), Packed(kPlain));
}

TEST(Unpacking, AnArchiveWithoutMembersIsDamaged) {
  EXPECT_EQ(ReasonOf(std::string("60\x05\x06", 4) + std::string(18, '\0')), kReasonPackedDamaged);
  EXPECT_EQ(ReasonOf(""), kReasonPackedDamaged);
}

TEST(Unpacking, AMemberIsNoLargerThanAnyFileThatIsRead) {
  EXPECT_EQ(ReasonOf(Packed(std::string(kLargestFile + 1, ' '))), kReasonPackedTooLarge);
  EXPECT_EQ(ReasonOf(Packed(std::string(kLargestFile, ' '))), "none");
}

TEST(Unpacking, AMemberThatHidesItsSizeIsNoLargerEither) {
  std::string packed = Packed(std::string(kLargestFile + 1, ' '));
  // The size that the directory at the end gives, and the one in front of the member.
  const std::size_t directory = packed.rfind("PK\x01\x02");
  ASSERT_NE(directory, std::string::npos);
  for (const std::size_t at : {directory + 24, std::size_t{22}})
    packed.replace(at, 4, std::string("\x10\0\0\0", 4));
  EXPECT_NE(ReasonOf(packed), "none");
}

TEST(Unpacking, AnArchiveCutAnywhereGivesTheTemplateOrNothing) {
  const std::string packed = Packed(kPlain);
  for (std::size_t size = 0; size < packed.size(); ++size) {
    const Result<std::string> plain = UnpackedBytes(packed.substr(0, size));
    if (plain) {
      EXPECT_EQ(*plain, kPlain) << size;
    } else {
      EXPECT_EQ(plain.Error().reason, kReasonPackedDamaged) << size;
    }
  }
}

TEST(Unpacking, ADamagedMemberIsNoticed) {
  const std::string packed = Packed(kPlain);
  const std::size_t content = 30 + 5;
  int refused = 0;
  for (std::size_t at = content; at < content + 20; ++at) {
    std::string damaged = packed;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    const Result<std::string> plain = UnpackedBytes(damaged);
    EXPECT_FALSE(plain) << at;
    refused += plain ? 0 : 1;
  }
  EXPECT_EQ(refused, 20);
}

// --- Reading either form
// ------------------------------------------------------------------------------------

TEST_F(PackedFiles, BothFormsReadAlike) {
  const std::string plain = Made("plain.kev", kPlain);
  const std::string packed = Made("packed.kev", Packed(kPlain));
  for (const std::string& path : {plain, packed}) {
    EXPECT_EQ(*ReadPlainTemplate(path), kPlain);
    EXPECT_EQ(*ReadPlainTemplate(path, Temp()), kPlain);
  }
  EXPECT_EQ(Names("temp"), std::set<std::string>());
  const std::string damaged = Made("damaged.kev", Packed(kPlain).substr(0, 60));
  EXPECT_EQ(ReadPlainTemplate(damaged).Error().path, damaged);
  EXPECT_EQ(ReadPlainTemplate(damaged).Error().reason, kReasonPackedDamaged);
  EXPECT_FALSE(ReadPlainTemplate(folder_ / "none.kev"));
}

}  // namespace
}  // namespace kev
