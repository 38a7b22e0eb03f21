// SPDX-License-Identifier: MIT
// Lets every call fail, one after the other, that a save, a change, the end of a run, a packed template and a
// recovery make of the system, and looks at what is left. Each run is a process of its own. A row of runs
// ends with the first in which no call was left to fail, so that none is passed over.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "faults/scenes.h"

namespace kev::faults {
namespace {

// What a run's process tells this one, also where it is killed.
struct Shared {
  Control Faults;
  std::uint32_t Finished;
  std::uint32_t Done;
  char Said[4096];
};

// In a process of its own; gives how that ended.
template <typename Body>
int InChild(Body body) {
  std::cout.flush();
  const pid_t child = ::fork();
  if (child == 0) {
    body();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

void Say(Shared& shared, const Complaints& complaints) {
  std::string all;
  for (const std::string& complaint : complaints)
    all += "  " + complaint + "\n";
  std::strncpy(shared.Said, all.c_str(), sizeof shared.Said - 1);
}

constexpr std::int64_t kShortStep = 97;

// In place of a call: nothing but what goes before the work.
constexpr std::int64_t kOnlyPrepared = -1;

struct Row {
  std::string Name;
  Plan Planned;
  std::int64_t Step = 1;
};

// What is run of all there is; nothing said means all.
struct Wanted {
  bool IsShort = false;
  std::int64_t MemoryStep = 1;
  std::string Scene, Row;
  std::int64_t Call = 0;
};

class Campaign {
 public:
  explicit Campaign(Wanted wanted);

  // False where something was wrong.
  bool RunAll();

 private:
  bool RunScene(const Scene& scene);
  void RunRow(const Scene& scene, const Row& row);
  // False where no call was left to fail.
  bool RunOnce(const Scene& scene, const Row& row, std::int64_t at);
  void Act(const Scene& scene, const Plan& plan, std::int64_t at);
  void Judge(const Scene& scene, const Row& row, std::int64_t at, int status);
  Complaints NextStart(const Home::All& now);
  void Tell(const Scene& scene, const Row& row, std::int64_t at, const Complaints& complaints);

  Wanted wanted_;
  std::vector<Row> rows_;
  Home home_;
  Shared& shared_;
  Home::All old_, good_;
  // What the next start was tried with.
  std::set<std::string> tried_;
  long runs_ = 0, faults_ = 0;
  long wrong_ = 0;
};

Shared& SharedBlock() {
  void* block = ::mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (block == MAP_FAILED) std::abort();
  return *static_cast<Shared*>(block);
}

Campaign::Campaign(Wanted wanted) : wanted_(std::move(wanted)), shared_(SharedBlock()) {
  const std::int64_t memoryStep = wanted_.MemoryStep;
  rows_ = {{"disk full", {kFileKinds, Manner::Once, ENOSPC}, 1},
           {"disk full for good", {kFileKinds, Manner::Onward, ENOSPC}, 1},
           {"killed at a call", {kFileKinds, Manner::Kill, 0}, 1},
           {"a write in two parts", {kWrite, Manner::Short, 0}, 1},
           {"a read in two parts", {kRead, Manner::Short, 0}, 1},
           {"no locks", {kLock, Manner::Onward, ENOLCK}, 1},
           {"no memory", {kMemory, Manner::Once, ENOMEM}, memoryStep},
           {"no memory for good", {kMemory, Manner::Onward, ENOMEM}, memoryStep},
           {"killed at an allocation", {kMemory, Manner::Kill, 0}, memoryStep}};
  if (wanted_.IsShort) return;
  rows_.push_back({"no permission", {kFileKinds, Manner::Once, EACCES}, 1});
  rows_.push_back({"no permission for good", {kFileKinds, Manner::Onward, EACCES}, 1});
  rows_.push_back({"bad disk", {kFileKinds, Manner::Once, EIO}, 1});
  rows_.push_back({"bad disk for good", {kFileKinds, Manner::Onward, EIO}, 1});
  rows_.push_back({"disk read-only", {kFileKinds & ~kRead, Manner::Onward, EROFS}, 1});
  rows_.push_back({"quota reached", {kWrite | kSync | kClose, Manner::Once, EDQUOT}, 1});
  rows_.push_back({"interrupted", {kFileKinds, Manner::Once, EINTR}, 1});
  rows_.push_back({"too many open files", {kOpen, Manner::Once, EMFILE}, 1});
  rows_.push_back({"too many open files for good", {kOpen, Manner::Onward, EMFILE}, 1});
}

void Campaign::Act(const Scene& scene, const Plan& plan, std::int64_t at) {
  Run run(home_, scene.Arguments(home_));
  if (!scene.StartsItself()) run.Start();
  scene.Prepare(run, home_);
  if (at == kOnlyPrepared) return;
  run.Keep();
  run.TheHost.Messages.clear();
  run.TheHost.Status.clear();
  Control& faults = shared_.Faults;
  faults = {};
  faults.Kinds = plan.Kinds;
  faults.How = plan.How;
  faults.Error = plan.Error;
  faults.At = at;
  std::strncpy(faults.Folder, scene.Folder(home_).c_str(), sizeof faults.Folder - 1);
  kev_faults_use(&faults);
  faults.Armed = 1;
  run.Done = scene.Work(run);
  faults.Armed = 0;
  const Ending ending{true, run.Done, plan, faults.Last};
  shared_.Done = run.Done ? 1 : 0;
  if (faults.Failed > 0) Say(shared_, scene.CheckMemory(run, ending));
  shared_.Finished = 1;
  // The process ends here and now; nothing tidies up behind it.
}

bool Campaign::RunOnce(const Scene& scene, const Row& row, std::int64_t at) {
  home_.PutBack();
  shared_ = {};
  const int status = InChild([&] { Act(scene, row.Planned, at); });
  ++runs_;
  if (shared_.Faults.Failed == 0) return false;
  ++faults_;
  Judge(scene, row, at, status);
  return true;
}

void Campaign::Judge(const Scene& scene, const Row& row, std::int64_t at, int status) {
  Complaints complaints;
  if (shared_.Said[0] != '\0') complaints.emplace_back(shared_.Said + 2);
  const bool isKilled = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  if (row.Planned.Kills() ? !isKilled : shared_.Finished == 0)
    complaints.push_back("the process ended with status " + std::to_string(status));
  const Ending ending{shared_.Finished != 0, shared_.Done != 0, row.Planned, shared_.Faults.Last};
  const Home::All now = home_.Files();
  for (const std::string& more : scene.CheckDisk(ending, now, old_, good_))
    complaints.push_back(more);
  for (const std::string& more : CheckLeftovers(ending, now, old_, good_))
    complaints.push_back(more);
  for (const std::string& more : NextStart(now))
    complaints.push_back("the next start: " + more);
  if (!complaints.empty()) Tell(scene, row, at, complaints);
}

Complaints Campaign::NextStart(const Home::All& now) {
  if (!tried_.insert(Home::State(now)).second) return {};
  shared_ = {};
  const int status = InChild([&] { Say(shared_, CheckNextStart(home_)); });
  ++runs_;
  if (status != 0) return {"it ended with status " + std::to_string(status)};
  return shared_.Said[0] == '\0' ? Complaints{} : Complaints{shared_.Said};
}

void Campaign::Tell(const Scene& scene, const Row& row, std::int64_t at, const Complaints& complaints) {
  ++wrong_;
  std::cout << "WRONG: " << scene.Name() << ", " << row.Name << ", call " << at << "\n";
  for (const std::string& complaint : complaints)
    std::cout << "  " << complaint << "\n";
}

void Campaign::RunRow(const Scene& scene, const Row& row) {
  const long before = faults_;
  if (wanted_.Call > 0) {
    RunOnce(scene, row, wanted_.Call);
  } else {
    for (std::int64_t at = 1; RunOnce(scene, row, at);)
      at += row.Step;
  }
  std::printf("%-22s %-26s %6ld faults\n", scene.Name().c_str(), row.Name.c_str(), faults_ - before);
  std::fflush(stdout);
}

bool Campaign::RunScene(const Scene& scene) {
  scene.Furnish(home_);
  home_.Remember();
  const Row none{"no fault", {}, 1};
  RunOnce(scene, none, kOnlyPrepared);
  old_ = home_.Files();
  if (RunOnce(scene, none, 0)) return false;
  if (shared_.Done == 0) {
    std::cout << "WRONG: " << scene.Name() << " is not done without a fault\n";
    return false;
  }
  good_ = home_.Files();
  for (const Row& row : rows_)
    if (wanted_.Row.empty() || row.Name == wanted_.Row) RunRow(scene, row);
  return true;
}

bool Campaign::RunAll() {
  home_.Remember();
  for (const auto& scene : AllScenes()) {
    if (!wanted_.Scene.empty() && scene->Name() != wanted_.Scene) continue;
    if (!RunScene(*scene)) ++wrong_;
    home_.Clear();
  }
  std::cout << faults_ << " faults in " << runs_ << " runs, " << wrong_ << " of them with a wrong end\n";
  return wrong_ == 0;
}

}  // namespace
}  // namespace kev::faults

// fault_campaign [--short | --every N] [SCENE [ROW [CALL]]]
// Allocations are thousands: the short form, or the number, lets only one in so many fail.
int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  kev::faults::Wanted wanted;
  wanted.IsShort = !arguments.empty() && arguments.front() == "--short";
  if (wanted.IsShort) {
    wanted.MemoryStep = kev::faults::kShortStep;
    arguments.erase(arguments.begin());
  } else if (arguments.size() > 1 && arguments.front() == "--every") {
    wanted.MemoryStep = std::max(1LL, std::atoll(arguments[1].c_str()));
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  arguments.resize(3);
  wanted.Scene = arguments[0];
  wanted.Row = arguments[1];
  wanted.Call = std::atoll(arguments[2].c_str());
  return kev::faults::Campaign(wanted).RunAll() ? 0 : 1;
}
