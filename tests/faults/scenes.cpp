// SPDX-License-Identifier: MIT
#include "faults/scenes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "app/recent_files.h"
#include "base/files.h"
#include "base/reasons.h"
#include "base/text_numbers.h"
#include "template/packed.h"
#include "template/writer.h"

namespace kev::faults {
namespace {

constexpr const char* kTemplate = "work/invoice.kev";
constexpr const char* kOptions = "data/Kev/LASTRV.DAT";
constexpr const char* kLost = "temp/Kev/Cache/Recovered_080000_lost.kev";

// As short as can be: each allocation is made to fail in a run of its own.
std::string Letter() {
  return "KEXVER=4\r\n[HEADER]\r\n{100;b=y}Dear @Name{\\n}\r\n{100;b=n}Yours{\\n}\r\n"
         "[DATA]\r\n{Spacing=40;\\n}\r\n[FOOTER]\r\n{Spacing=40;\\n}\r\n";
}

std::string BytesIn(const Home::All& files, const std::string& name) {
  const auto found = files.find(name);
  return found == files.end() ? std::string("(no such file)") : found->second;
}

bool IsRecovery(const std::string& name) {
  return name.starts_with("temp/Kev/Cache/Recovered_");
}

// The reason that a message must give.
bool NamesCause(const std::string& message, const Ending& ending, const Designer& designer) {
  if (ending.Failed == kMemory)
    return message.find(designer.Text(kTextReasonOutOfMemory)) != std::string::npos;
  return message.find(std::strerror(ending.Planned.Error)) != std::string::npos;
}

bool IsTold(const Run& run, const Ending& ending) {
  const bool inBox = std::any_of(run.TheHost.Messages.begin(), run.TheHost.Messages.end(),
                                 [&](const auto& text) { return NamesCause(text, ending, *run.Program); });
  return inBox || NamesCause(run.TheHost.Status, ending, *run.Program);
}

// Without memory for good there is none for a box either.
bool CanTell(const Ending& ending) {
  return !(ending.Failed == kMemory && ending.Planned.How == Manner::Onward);
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts)
    all += " [" + text + "]";
  return all;
}

bool SameRows(const Document& one, const Document& other) {
  const int last = std::max(one.Objects.LastScanned(), other.Objects.LastScanned());
  for (int row = 1; row <= last; ++row)
    if (!(one.Objects[row] == other.Objects[row])) return false;
  return one.Columns == other.Columns && one.Settings == other.Settings;
}

// A file that the user owns: the old one, or the new one where the work was done.
void CheckOwned(const std::string& name, const Ending& ending, const Home::All& now, const Home::All& old,
                const Home::All& good, Complaints& complaints) {
  const std::string bytes = BytesIn(now, name);
  const bool isOld = bytes == BytesIn(old, name), isNew = bytes == BytesIn(good, name);
  if (!isOld && !isNew) complaints.push_back(name + " is neither the old nor the new one");
  if (ending.Finished && ending.Done && !isNew)
    complaints.push_back("done, and " + name + " is not the new one");
  if (ending.Finished && !ending.Done && !isOld)
    complaints.push_back("not done, and " + name + " is not the old one");
}

// Nothing lies about that neither the start nor a good end has there. The first stage of a save may.
void CheckLeft(const Ending& ending, const Home::All& now, const Home::All& old, const Home::All& good,
               Complaints& complaints) {
  if (ending.Planned.MayLeave() || ending.Failed == kRemove || ending.Failed == kMemory) return;
  for (const auto& [name, bytes] : now) {
    const bool isKnown = old.contains(name) || good.contains(name);
    if (isKnown || name == std::string(kTemplate) + ".tmp" || IsRecovery(name)) continue;
    if (name.find("/.kev") != std::string::npos || name.starts_with("work/"))
      complaints.push_back(name + " was left");
  }
}

Home::All Recoveries(Home::All files) {
  std::erase_if(files, [](const auto& file) { return !IsRecovery(file.first); });
  return files;
}

// Recovery files are whole at any moment: what the good run or the start has there.
void CheckRecovery(const Home::All& now, const Home::All& old, const Home::All& good,
                   Complaints& complaints) {
  const auto isWhole = [&](const std::string& bytes) {
    const auto holds = [&](const Home::All& files) {
      return std::any_of(files.begin(), files.end(),
                         [&](const auto& file) { return IsRecovery(file.first) && file.second == bytes; });
    };
    return holds(old) || holds(good);
  };
  for (const auto& [name, bytes] : now)
    if (IsRecovery(name) && !isWhole(bytes)) complaints.push_back(name + " is not whole");
}

class SaveScene : public Scene {
 public:
  std::string Name() const override { return "save"; }
  void Prepare(Run& run, const Home&) const override { run.Change(); }
  bool Work(Run& run) const override {
    bool saved = false;
    run.Program->GuardedView([&] { saved = run.Program->Save(); });
    return saved;
  }
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    Complaints complaints = Scene::CheckMemory(run, ending);
    if (run.Done == run.Program->Modified()) complaints.push_back("the mark of a change is wrong");
    Document laidOut = run.Before;
    WriteReport report;
    static_cast<void>(TemplateText(laidOut, {}, report));
    const Document& now = run.Program->OpenDocument();
    if (!SameRows(run.Before, now) && !SameRows(laidOut, now))
      complaints.push_back("the document has changed");
    return complaints;
  }
  Complaints CheckDisk(const Ending& ending, const Home::All& now, const Home::All& old,
                       const Home::All& good) const override {
    Complaints complaints;
    CheckOwned(kTemplate, ending, now, old, good, complaints);
    return complaints;
  }
};

class SaveEncodedScene final : public SaveScene {
 public:
  std::string Name() const override { return "pack"; }
  void Prepare(Run& run, const Home&) const override {
    run.Change();
    run.Program->OpenDocument().Settings[Setting::FILEFORMAT] = "2";
  }
};

constexpr const char* kOther = "work/other.kev";

// Another template takes the place of the open one.
class OpenScene : public Scene {
 public:
  std::string Name() const override { return "open"; }
  void Furnish(const Home& home) const override { test::WriteBytes(home.Path(kOther), Letter()); }
  void Prepare(Run& run, const Home& home) const override { run.Target = home.Path(kOther); }
  bool Work(Run& run) const override {
    bool opened = false;
    run.Program->GuardedView([&] { opened = run.Program->OpenTemplate(run.Target); });
    return opened;
  }
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    Complaints complaints = Scene::CheckMemory(run, ending);
    const std::string& title = run.Program->DocumentTitle();
    if (run.Done != (title == "other.kev")) complaints.push_back("the open document is " + title);
    if (title == "invoice.kev" && !run.IsAsBefore()) complaints.push_back("the document has changed");
    return complaints;
  }
  Complaints CheckDisk(const Ending&, const Home::All& now, const Home::All& old,
                       const Home::All&) const override {
    const bool isOld = BytesIn(now, kOther) == BytesIn(old, kOther);
    return isOld ? Complaints{} : Complaints{"the template that is opened has changed"};
  }
};

class OpenEncodedScene final : public OpenScene {
 public:
  std::string Name() const override { return "unpack"; }
  void Furnish(const Home& home) const override {
    test::WriteBytes(home.Path(kOther), *PackedBytes(Letter(), "other.kev"));
  }
};

// The list of recent templates; opening itself meets no fault but of memory.
class RecentScene : public OpenScene {
 public:
  std::string Name() const override { return "recent list"; }
  std::string Folder(const Home& home) const override { return home.Path("data/Kev/temp/"); }
  void Prepare(Run& run, const Home& home) const override {
    OpenScene::Prepare(run, home);
    run.View.Paints = false;
  }
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    Complaints complaints = OpenScene::CheckMemory(run, ending);
    if (!run.Done && ending.Failed != kMemory) complaints.push_back("the template was not opened");
    // Both the list and the picture are told, or are there.
    const bool isLocked = ending.Failed == kLock || ending.Failed == kClose || ending.Failed == kRemove;
    if (run.Done && CanTell(ending) && !isLocked && !IsStored(run) && !IsTold(run, ending))
      complaints.push_back("nothing tells that it is not among the recent ones");
    return complaints;
  }
  Complaints CheckDisk(const Ending& ending, const Home::All& now, const Home::All& old,
                       const Home::All& good) const override {
    Complaints complaints = OpenScene::CheckDisk(ending, now, old, good);
    for (const std::string& name : Stored(now, good)) {
      const std::string bytes = BytesIn(now, name);
      if (bytes != BytesIn(old, name) && bytes != BytesIn(good, name))
        complaints.push_back(name + " is neither the old nor the new one");
    }
    return complaints;
  }

 private:
  virtual bool IsStored(const Run& run) const {
    const std::vector<std::string> list = ReadRecentFiles(run.Program->Folders());
    return !list.empty() && list.front() == run.Target;
  }
  static std::vector<std::string> Stored(const Home::All& now, const Home::All& good) {
    std::vector<std::string> names;
    for (const Home::All* files : {&now, &good})
      for (const auto& [name, bytes] : *files)
        if (name.starts_with("data/Kev/temp/") && name.find("/.kev") == std::string::npos)
          names.push_back(name);
    return names;
  }
};

class ThumbnailScene final : public RecentScene {
 public:
  std::string Name() const override { return "thumbnail"; }
  void Prepare(Run& run, const Home& home) const override { OpenScene::Prepare(run, home); }

 private:
  bool IsStored(const Run& run) const override {
    const auto file = ThumbnailPath(run.Program->Folders(), run.Target);
    return file && FileExists(*file);
  }
};

// The second change of a document, so that there is a recovery file already.
class PushScene final : public Scene {
 public:
  std::string Name() const override { return "change"; }
  void Prepare(Run& run, const Home&) const override {
    run.Change();
    run.Program->Surface().GoToObject(run.FirstLabel());
  }
  bool Work(Run& run) const override {
    run.Program->GuardedView([&] { run.Program->Run(Command::DeleteObject); });
    return run.Program->Surface().Undo().UndoIndex() > run.Level;
  }
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    Complaints complaints = Scene::CheckMemory(run, ending);
    if (!run.Done && !run.IsAsBefore()) complaints.push_back("the document has changed");
    if (!run.Done && run.Program->Surface().Undo().UndoIndex() != run.Level)
      complaints.push_back("the levels have changed");
    if (run.Done && run.IsAsBefore()) complaints.push_back("a level was made and nothing was done");
    return complaints;
  }
  Complaints CheckDisk(const Ending& ending, const Home::All& now, const Home::All& old,
                       const Home::All& good) const override {
    Complaints complaints;
    CheckOwned(kTemplate, {.Planned = ending.Planned, .Failed = ending.Failed}, now, old, good, complaints);
    CheckRecovery(now, old, good, complaints);
    if (std::none_of(now.begin(), now.end(), [](const auto& file) { return IsRecovery(file.first); }))
      complaints.push_back("no recovery file is left");
    if (ending.Planned.Error == ENOLCK && Recoveries(now) != Recoveries(good))
      complaints.push_back("the recovery file needs a lock");
    return complaints;
  }
};

class OptionsScene final : public Scene {
 public:
  std::string Name() const override { return "options"; }
  void Prepare(Run& run, const Home&) const override { run.Program->Options().PropTop = 4321; }
  bool Work(Run& run) const override {
    const std::size_t boxes = run.TheHost.Messages.size();
    const bool ended = run.Program->GuardedView([&] { run.Program->ShutDown(); });
    return ended && run.TheHost.Messages.size() == boxes;
  }
  Complaints CheckDisk(const Ending& ending, const Home::All& now, const Home::All& old,
                       const Home::All& good) const override {
    Complaints complaints;
    // Behind the options there is still something to do that may fail.
    const Ending either{.Finished = ending.Finished && ending.Done,
                        .Done = ending.Done,
                        .Planned = ending.Planned,
                        .Failed = ending.Failed};
    CheckOwned(kOptions, either, now, old, good, complaints);
    return complaints;
  }
};

class RecoverScene : public Scene {
 public:
  explicit RecoverScene(bool toPlace) : toPlace_(toPlace) {}
  std::string Name() const override { return toPlace_ ? "recover" : "recover in the cache"; }
  bool StartsItself() const override { return true; }
  std::vector<std::string> Arguments(const Home&) const override { return {}; }
  void Furnish(const Home& home) const override { test::WriteBytes(home.Path(kLost), Letter()); }
  void Prepare(Run& run, const Home& home) const override {
    run.View.Recovers = true;
    if (toPlace_) run.TheHost.Place = home.Path("work/found.kev");
  }
  bool Work(Run& run) const override {
    run.Program->GuardedView([&] { run.Start(); });
    return run.Program->DocumentTitle() == (toPlace_ ? "found.kev" : "lost.kev");
  }
  // What can't be looked at or held is not offered, and waits for the next start.
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    return run.View.Taken ? Scene::CheckMemory(run, ending) : Complaints{};
  }
  Complaints CheckDisk(const Ending&, const Home::All& now, const Home::All& old,
                       const Home::All&) const override {
    Complaints complaints;
    const std::string& lost = old.at(kLost);
    const bool isThere = now.contains(kLost), isPlaced = now.contains("work/found.kev");
    if (isThere && now.at(kLost) != lost) complaints.push_back("the recovery file has changed");
    if (isPlaced && now.at("work/found.kev") != lost) complaints.push_back("what was recovered is not whole");
    if (!isThere && !isPlaced) complaints.push_back("the recovery file has gone");
    return complaints;
  }

 private:
  bool toPlace_;
};

// Whatever fails, a document stands behind the start.
class StartScene : public Scene {
 public:
  std::string Name() const override { return "start"; }
  bool StartsItself() const override { return true; }
  bool Work(Run& run) const override {
    run.Program->GuardedView([&] { run.Start(); });
    return run.Program->DocumentTitle() == "invoice.kev";
  }
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    Complaints complaints = Scene::CheckMemory(run, ending);
    if (CanTell(ending) && run.Program->OpenDocument().Objects.LastScanned() == 0)
      complaints.push_back("there is no document");
    return complaints;
  }
  Complaints CheckDisk(const Ending&, const Home::All& now, const Home::All& old,
                       const Home::All&) const override {
    const bool isOld = BytesIn(now, kTemplate) == BytesIn(old, kTemplate);
    return isOld ? Complaints{} : Complaints{"the template has changed"};
  }
};

// The counter of the runs.
class SessionScene final : public StartScene {
 public:
  std::string Name() const override { return "session counter"; }
  std::string Folder(const Home& home) const override { return home.Path(kCounter); }
  void Furnish(const Home& home) const override {
    // One digit more than before, for a write in parts.
    test::WriteBytes(home.Path(kCounter), "SESSID=99\r\n");
  }
  Complaints CheckMemory(const Run& run, const Ending& ending) const override {
    Complaints complaints = StartScene::CheckMemory(run, ending);
    if (!run.Done && ending.Failed != kMemory) complaints.push_back("the template was not opened");
    if (ending.Failed != kMemory && run.Program->SessionNumber() < 1)
      complaints.push_back("the run has no number");
    return complaints;
  }
  Complaints CheckDisk(const Ending& ending, const Home::All& now, const Home::All& old,
                       const Home::All& good) const override {
    Complaints complaints = StartScene::CheckDisk(ending, now, old, good);
    const std::string bytes = BytesIn(now, kCounter);
    if (bytes != BytesIn(old, kCounter) && bytes != BytesIn(good, kCounter))
      complaints.push_back("the counter is " + bytes);
    return complaints;
  }

 private:
  static constexpr const char* kCounter = "data/Kev/SN.DAT";
};

}  // namespace

Run::Run(const Home& home, std::vector<std::string> arguments) {
  const Environment variables = [&home](std::string_view name) -> std::optional<std::string> {
    if (name == "TEMP") return home.Path("temp");
    if (name == "appdata") return home.Path("data");
    return std::nullopt;
  };
  StartInput input{variables, home.Path("program"), std::move(arguments), [] { return ClockTime{9, 5, 30}; }};
  Program = std::make_unique<Designer>(TheHost, Measurer, std::move(input));
  Program->AttachView(&View);
  Program->Load();
}

void Run::Start() {
  Program->BeginActivation();
  Program->SplashLoad();
  Program->AfterSplash();
}

void Run::Change() {
  Program->Guarded([this] {
    Program->Surface().PushUndo();
    ObjectTable& objects = Program->OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == ObjectKind::Label) objects[row].Content += " changed";
    Program->Surface().FullRepaint();
  });
}

int Run::FirstLabel() const {
  const ObjectTable& objects = Program->OpenDocument().Objects;
  int row = 1;
  while (row < objects.LastScanned() && objects[row].Kind != ObjectKind::Label)
    ++row;
  return row;
}

void Run::Keep() {
  Before = Program->OpenDocument();
  Level = Program->Surface().Undo().UndoIndex();
}

bool Run::IsAsBefore() const {
  return SameRows(Before, Program->OpenDocument());
}

Complaints Scene::CheckMemory(const Run& run, const Ending& ending) const {
  if (run.Done || !CanTell(ending) || IsTold(run, ending)) return {};
  return {"not done, and nobody was told why:" + Joined(run.TheHost.Messages)};
}

Complaints CheckLeftovers(const Ending& ending, const Home::All& now, const Home::All& old,
                          const Home::All& good) {
  Complaints complaints;
  CheckLeft(ending, now, old, good, complaints);
  return complaints;
}

Complaints CheckNextStart(const Home& home) {
  const Home::All before = home.Files();
  Complaints complaints;
  Run run(home, {home.Template()});
  run.Start();
  if (run.Program->DocumentTitle() != "invoice.kev") complaints.push_back("it does not open the template");
  for (const std::string& message : run.TheHost.Messages)
    complaints.push_back("it says " + message);
  std::size_t lost = 0;
  for (const auto& [name, bytes] : before)
    lost += IsRecovery(name) ? 1 : 0;
  if (run.View.Offered.size() != lost) complaints.push_back("it does not offer what was lost");
  run.Change();
  if (!run.Program->Save()) complaints.push_back("it does not save");
  if (!ReadPlainTemplate(home.Template())) complaints.push_back("what it saves is not whole");
  run.Program->ShutDown();
  const std::vector<std::string> recent = ReadRecentFiles(run.Program->Folders());
  if (recent.empty() || recent.front() != home.Template()) complaints.push_back("the recent list is wrong");
  return complaints;
}

std::vector<std::unique_ptr<Scene>> AllScenes() {
  std::vector<std::unique_ptr<Scene>> scenes;
  scenes.push_back(std::make_unique<SaveScene>());
  scenes.push_back(std::make_unique<SaveEncodedScene>());
  scenes.push_back(std::make_unique<OpenScene>());
  scenes.push_back(std::make_unique<OpenEncodedScene>());
  scenes.push_back(std::make_unique<RecentScene>());
  scenes.push_back(std::make_unique<ThumbnailScene>());
  scenes.push_back(std::make_unique<StartScene>());
  scenes.push_back(std::make_unique<SessionScene>());
  scenes.push_back(std::make_unique<PushScene>());
  scenes.push_back(std::make_unique<OptionsScene>());
  scenes.push_back(std::make_unique<RecoverScene>(true));
  scenes.push_back(std::make_unique<RecoverScene>(false));
  return scenes;
}

}  // namespace kev::faults
