// SPDX-License-Identifier: MIT
// What the program does while its calls fail, and what must hold behind it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/text_measurer.h"
#include "faults/home.h"
#include "faults/quiet_host.h"

namespace kev::faults {

using Complaints = std::vector<std::string>;

struct Plan {
  std::uint32_t Kinds = kFileKinds;
  Manner How = Manner::Once;
  std::int32_t Error = 0;

  bool Kills() const { return How == Manner::Kill; }
  // Whether leftovers may lie about: nothing can be deleted any more, or the process is gone.
  bool MayLeave() const { return Kills() || How == Manner::Onward; }
};

// One run of the program in its process: everything that a scene looks at.
struct Run {
  Run(const Home& home, std::vector<std::string> arguments);

  QuietHost TheHost;
  QuietView View;
  BuiltInMeasurer Measurer;
  std::unique_ptr<Designer> Program;
  Document Before;  // as Work found it
  int Level = 0;    // of the undo store
  bool Done = false;
  std::string Target;  // of the work

  // The rest of the start, behind the language.
  void Start();
  // Puts a change into the document, so that there is something to save.
  void Change();
  int FirstLabel() const;
  void Keep();
  bool IsAsBefore() const;
};

// Behind a run.
struct Ending {
  bool Finished = false;  // the process came to its end
  bool Done = false;      // and said that the work was done
  Plan Planned;
  std::uint32_t Failed = 0;  // the kind of the call that failed first; 0 where none did
};

class Scene {
 public:
  virtual ~Scene() = default;
  virtual std::string Name() const = 0;
  // Whether Work is the start itself.
  virtual bool StartsItself() const { return false; }
  // Where calls on files count: a folder, or what a path begins with.
  virtual std::string Folder(const Home& home) const { return home.Path(""); }
  // Files beside those of the home.
  virtual void Furnish(const Home&) const {}
  virtual std::vector<std::string> Arguments(const Home& home) const { return {home.Template()}; }
  // What goes before; no call fails in it.
  virtual void Prepare(Run&, const Home&) const {}
  // Whether it was done.
  virtual bool Work(Run& run) const = 0;
  // In the process, behind a fault.
  virtual Complaints CheckMemory(const Run& run, const Ending& ending) const;
  // On the disk, whatever became of the process. `good` are the files of the home behind a run without
  // faults.
  virtual Complaints CheckDisk(const Ending& ending, const Home::All& now, const Home::All& old,
                               const Home::All& good) const = 0;
};

std::vector<std::unique_ptr<Scene>> AllScenes();

// Files that nobody asked for and nobody will delete.
Complaints CheckLeftovers(const Ending& ending, const Home::All& now, const Home::All& old,
                          const Home::All& good);

// The next start opens the template, offers what was lost, and saves.
Complaints CheckNextStart(const Home& home);

}  // namespace kev::faults
