// SPDX-License-Identifier: MIT
#include "testrun/test_run.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/files.h"
#include "support/page_fixture.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"

namespace kev::test {
namespace {

using Texts = std::vector<std::string>;

class TestRuns : public testing::Test {
 protected:
  std::string Data(const std::string& name) const {
    WriteBytes(folder_ / name, "TEMPLATE=a.kev\r\n");
    return folder_ / name;
  }
  TestRunWork Work(std::string dataFile = {}) {
    return {
        host_, services_, "/t/Kev", std::move(dataFile), false, "notepad", [this](const std::string& path) {
          written_.push_back(path);
          return std::string("/t/Kev/Sampledata9530");
        }};
  }
  // The texts of the boxes that were shown.
  std::string Boxes() { return services_.TakeCalls(); }

  TemporaryFolder folder_;
  ScriptedHost host_;
  ScriptedPage services_;
  Texts written_;
};

TEST_F(TestRuns, WithoutDataTheTemplateIsHandedOver) {
  RunTest(Work());
  EXPECT_EQ(written_, Texts{"/t/Kev/testreport.kev"});
  EXPECT_EQ(host_.Addresses, Texts{"ViewKevReport:/t/Kev/testreport.kev?/&&!H!~!"});
  RunTest(Work("   "));
  EXPECT_EQ(host_.Addresses.size(), 2U);
  EXPECT_EQ(host_.Addresses.back(), host_.Addresses.front());
  EXPECT_EQ(Boxes(), "");
  EXPECT_TRUE(host_.Waits.empty());
}

TEST_F(TestRuns, AMissingFileIsToldAndTheTemplateHandedOver) {
  for (const char* name : {"gone.kex", "gone.ked", "gone.txt"}) {
    host_.Addresses.clear();
    RunTest(Work(folder_ / name));
    EXPECT_EQ(Boxes(), "box 769") << name;
    EXPECT_EQ(services_.LastIcon, BoxIcon::Warning) << name;
    EXPECT_EQ(host_.Addresses, Texts{"ViewKevReport:/t/Kev/testreport.kev?/&&!H!~!"}) << name;
  }
}

TEST_F(TestRuns, AFolderIsNoDataFile) {
  std::filesystem::create_directory(folder_ / "folder.kex");
  RunTest(Work(folder_ / "folder.kex"));
  EXPECT_EQ(Boxes(), "box 769");
  EXPECT_EQ(host_.Addresses, Texts{"ViewKevReport:/t/Kev/testreport.kev?/&&!H!~!"});
}

TEST_F(TestRuns, TheCopyOfTheDataIsHandedOver) {
  for (const char* name : {"a.kex", "a.KEX", "b.KeX"}) {
    host_.Addresses.clear();
    RunTest(Work(Data(name)));
    EXPECT_EQ(host_.Addresses, Texts{"ViewKevReport:/t/Kev/Sampledata9530.kex?/&&!H!~!"}) << name;
  }
  for (const char* name : {"a.ked", "a.KED"}) {
    host_.Addresses.clear();
    RunTest(Work(Data(name)));
    EXPECT_EQ(host_.Addresses, Texts{"ViewKevReport:/t/Kev/Sampledata9530.ked?/&&!H!~!"}) << name;
  }
  EXPECT_EQ(Boxes(), "");
}

TEST_F(TestRuns, DataOfAnotherKindMakesNoCall) {
  RunTest(Work(Data("a.csv")));
  EXPECT_EQ(written_.size(), 1U);
  EXPECT_TRUE(host_.Addresses.empty());
  EXPECT_EQ(Boxes(), "box 1228");
  EXPECT_EQ(services_.LastIcon, BoxIcon::Warning);
}

TEST_F(TestRuns, ADocumentOpenedWithoutChecksIsToldBeforeItIsWritten) {
  TestRunWork work = Work();
  work.WithoutChecks = true;
  bool toldBefore = false;
  work.Write = [&](const std::string&) {
    toldBefore = Boxes() == "box 1000";
    return std::string();
  };
  RunTest(work);
  EXPECT_TRUE(toldBefore);
  EXPECT_EQ(services_.LastIcon, BoxIcon::Information);
  EXPECT_EQ(host_.Addresses.size(), 1U);
}

TEST_F(TestRuns, TheTemplateIsWrittenBeforeItsDataIsLookedFor) {
  TestRunWork work = Work(folder_ / "made.kex");
  std::string toldBefore;
  work.Write = [&](const std::string&) {
    toldBefore = Boxes();
    // Comes with the template, as from a program that waits for it.
    Data("made.kex");
    return std::string("/t/Kev/Sampledata9530");
  };
  RunTest(work);
  EXPECT_EQ(toldBefore, "");
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(host_.Addresses, Texts{"ViewKevReport:/t/Kev/Sampledata9530.kex?/&&!H!~!"});
}

TEST_F(TestRuns, NobodyLooksAtTheResultOfTheCall) {
  host_.AddressKnown = false;
  RunTest(Work());
  EXPECT_EQ(host_.Addresses.size(), 1U);
  EXPECT_TRUE(host_.Messages.empty());
  EXPECT_EQ(Boxes(), "");
}

TEST_F(TestRuns, TheCodeIsWrittenAndOpenedInTheEditor) {
  ShowTemplateCode(Work());
  EXPECT_EQ(written_, Texts{"/t/Kev/testreport.kev"});
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Program, "notepad");
  EXPECT_EQ(host_.Programs[0].Start.Arguments, Texts{"/t/Kev/testreport.kev"});
  EXPECT_TRUE(host_.Addresses.empty());
}

TEST_F(TestRuns, TheDataFileIsOpenedInTheEditor) {
  const std::string data = Data("my data.csv");
  ShowDataFile(Work(data));
  ASSERT_EQ(host_.Programs.size(), 1U);
  EXPECT_EQ(host_.Programs[0].Start.Arguments, Texts{data});
  EXPECT_TRUE(written_.empty());
}

TEST_F(TestRuns, ADataFileThatIsNotThereIsTold) {
  ShowDataFile(Work());
  EXPECT_EQ(Boxes(), "box 961");
  ShowDataFile(Work(" "));
  EXPECT_EQ(Boxes(), "box 961");
  EXPECT_EQ(services_.LastIcon, BoxIcon::Warning);
  ShowDataFile(Work(folder_ / "gone.kex"));
  EXPECT_EQ(Boxes(), "box 962");
  ShowDataFile(Work(folder_ / ""));
  EXPECT_EQ(Boxes(), "box 962");
  EXPECT_EQ(services_.LastIcon, BoxIcon::Critical);
  EXPECT_TRUE(host_.Programs.empty());
}

TEST(OpenableFiles, AreThoseThatCanBeRead) {
  const TemporaryFolder folder;
  WriteBytes(folder / "a", "");
  EXPECT_TRUE(FileCanBeOpened(folder / "a"));
  EXPECT_FALSE(FileCanBeOpened(folder / "gone"));
  EXPECT_FALSE(FileCanBeOpened(folder / ""));
  EXPECT_FALSE(FileCanBeOpened(""));
  // Does not wait for the other end.
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_TRUE(FileCanBeOpened(folder / "pipe"));
}

}  // namespace
}  // namespace kev::test
