// SPDX-License-Identifier: MIT
// The commands of the report menu.
#include "app/designer.h"
#include "base/text_numbers.h"

namespace kev {

// What can't be written is told, and the work goes on: the viewer finds what is there.
std::string Designer::WriteForTest(const std::string& path) {
  WriteReport report;
  Guarded({kTextWriteFailed, path}, [&] { report = WriteDocument(path); });
  if (report.Failure) {
    TellWriteFailure(*report.Failure);
  } else if (report.SampleFailure && FileCanBeOpened(SampleDataPath())) {
    TellWriteFailure(*report.SampleFailure);
  }
  TellUnnamedSymbologies(report);
  return samples_.SampleCopyBase();
}

TestRunWork Designer::TestWork() {
  return {host_,
          surface_,
          folders_.TempFolder,
          SampleDataPath(),
          command_.SkipsChecks(),
          settings_.DefaultEditor,
          [this](const std::string& path) { return WriteForTest(path); }};
}

void Designer::RunTest() {
  surface_.CommitOpenEdits();
  kev::RunTest(TestWork());
  sheets_.Refresh();
}

void Designer::ShowTemplateCode() {
  surface_.CommitOpenEdits();
  kev::ShowTemplateCode(TestWork());
}

void Designer::ShowDataFile() {
  surface_.CommitOpenEdits();
  kev::ShowDataFile(TestWork());
}

}  // namespace kev
