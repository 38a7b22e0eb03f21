// SPDX-License-Identifier: MIT
#include "testrun/test_run.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/files.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "data/sample_check.h"
#include "testrun/editor.h"

namespace kev {
namespace {

constexpr std::string_view kScheme = "ViewKevReport:";
// The viewer asks for it; it says nothing.
constexpr std::string_view kTail = "?/&&!H!~!";

void CallViewer(const TestRunWork& work, const std::string& file) {
  // Nobody looks at the result: where no program is registered, nothing happens.
  static_cast<void>(work.host.OpenAddress(std::string(kScheme) + file + std::string(kTail)));
}

void CallWithData(const TestRunWork& work, const std::string& sampleBase) {
  switch (SampleKindOf(work.DataFile)) {
    case SampleKind::Kex:
      return CallViewer(work, sampleBase + ".kex");
    case SampleKind::Ked:
      return CallViewer(work, sampleBase + ".ked");
    case SampleKind::Other:
      work.services.ShowBox(kTextTestDataKindUnknown, BoxIcon::Warning);
  }
}

}  // namespace

std::string TestTemplatePath(const std::string& tempFolder) {
  return JoinPath(tempFolder, "\\testreport.kev");
}

bool FileCanBeOpened(const std::string& path) {
  // A pipe without a writer would keep the program waiting.
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  struct stat what = {};
  const bool opened = ::fstat(file, &what) == 0 && !S_ISDIR(what.st_mode);
  ::close(file);
  return opened;
}

void RunTest(const TestRunWork& work) {
  if (work.WithoutChecks) work.services.ShowBox(kTextOpenedWithoutChecks, BoxIcon::Information);
  const std::string file = TestTemplatePath(work.TempFolder);
  const std::string sampleBase = work.Write(file);
  const bool named = !Trim(work.DataFile).empty();
  const bool missing = named && !FileCanBeOpened(work.DataFile);
  if (missing) work.services.ShowBox(kTextTestDataMissing, BoxIcon::Warning);
  if (named && !missing) return CallWithData(work, sampleBase);
  CallViewer(work, file);
}

void ShowTemplateCode(const TestRunWork& work) {
  const std::string file = TestTemplatePath(work.TempFolder);
  work.Write(file);
  OpenInEditor(work.host, work.services, work.DefaultEditor, file);
}

void ShowDataFile(const TestRunWork& work) {
  if (Trim(work.DataFile).empty()) {
    work.services.ShowBox(kTextNoSampleFile, BoxIcon::Warning);
  } else if (FileCanBeOpened(work.DataFile)) {
    OpenInEditor(work.host, work.services, work.DefaultEditor, work.DataFile);
  } else {
    work.services.ShowBox(kTextSampleFileNotOpened, BoxIcon::Critical);
  }
}

}  // namespace kev
