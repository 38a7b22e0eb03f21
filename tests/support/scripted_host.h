// SPDX-License-Identifier: MIT
// A Host without a window: it keeps what it was told and answers from a script.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/host.h"

namespace kev::test {

class ScriptedHost final : public Host {
 public:
  struct Fetch {
    std::string Address, File;
    std::function<void(bool)> Done;
  };

  std::vector<MessageBox> Messages;
  std::deque<BoxAnswer> Answers;  // taken one by one; Ok when there are none left
  std::string Status, StatusDetail, Selection;
  std::vector<std::string> StatusHistory;
  std::string Caption;
  bool CaptionModified = false;
  std::set<std::string> ProgressTexts;
  int ProgressMaximum = 0, ProgressValue = 0, ProgressBegun = 0, ProgressEnded = 0;
  std::deque<std::optional<std::string>> FilesToOpen, FilesToSave;
  std::deque<int> FiltersToTake;   // the kind of file chosen, one for each file to save; else the first shown
  std::deque<int> FiltersOffered;  // the kinds that stood first
  std::vector<FileChoice> Choices;
  std::vector<Fetch> Fetches;
  struct Started {
    ProgramStart Start;
    std::function<void()> Ended;
    ProcessId Id = 0;
  };
  std::vector<Started> Programs;
  std::vector<ProcessId> Waits;
  std::vector<std::string> Addresses, DesktopFiles;
  std::set<std::string> MissingPrograms;               // can't be started
  std::function<void(const ProgramStart&)> OnProgram;  // what the program does, while it is waited for
  std::function<void(ProcessId)> OnWait;               // what happens in the window during a wait
  std::vector<ProcessId> StoppedPrograms;
  bool Hangs = false;  // a wait returns though the program goes on, as where the process is to end
  bool AddressKnown = true, DesktopKnown = true;
  bool Stopped = false;
  std::function<void()> OnStep;  // what happens in the window while it shows progress

  BoxAnswer ShowMessage(const MessageBox& box) override {
    Messages.push_back(box);
    return Take(Answers, BoxAnswer::Ok);
  }
  void ShowStatus(std::string_view text, std::string_view detail) override {
    Status = text;
    StatusDetail = detail;
    StatusHistory.emplace_back(text);
  }
  void ShowSelectionStatus(std::string_view text) override { Selection = text; }
  void BeginProgress(std::string_view, int maximum) override {
    ++ProgressBegun;
    ProgressMaximum = maximum;
  }
  void StepProgress(int value, std::string_view text) override {
    ProgressValue = value;
    ProgressTexts.insert(std::string(text));
    if (OnStep) OnStep();
  }
  void EndProgress() override { ++ProgressEnded; }
  std::optional<std::string> ChooseFileToOpen(const FileChoice& choice) override {
    Choices.push_back(choice);
    return Take(FilesToOpen, std::optional<std::string>());
  }
  std::optional<std::string> ChooseFileToSave(const FileChoice& choice) override {
    Choices.push_back(choice);
    if (choice.Filter != nullptr) {
      FiltersOffered.push_back(*choice.Filter);
      *choice.Filter = Take(FiltersToTake, *choice.Filter);
      Choices.back().Filter = nullptr;
    }
    return Take(FilesToSave, std::optional<std::string>());
  }
  void ShowCaption(std::string_view documentTitle, bool modified) override {
    Caption = documentTitle;
    CaptionModified = modified;
  }
  void FetchPicture(std::string_view address, std::string_view file,
                    std::function<void(bool)> done) override {
    Fetches.push_back({std::string(address), std::string(file), std::move(done)});
  }
  bool ProgressStopped() override { return Stopped; }
  std::optional<ProcessId> StartProgram(const ProgramStart& start, std::function<void()> ended) override {
    if (MissingPrograms.contains(start.Program)) return std::nullopt;
    const auto id = static_cast<ProcessId>(Programs.size()) + 1;
    Programs.push_back({start, std::move(ended), id});
    return id;
  }
  void WaitForProcess(ProcessId process) override {
    Waits.push_back(process);
    if (OnWait) OnWait(process);
    if (!Hangs) EndProgram(process);
  }
  void StopProgram(ProcessId process) override {
    StoppedPrograms.push_back(process);
    Programs.at(static_cast<std::size_t>(process) - 1).Ended = nullptr;
  }
  // What a program that was started and told of does, and its end.
  void EndProgram(ProcessId process) {
    Started& started = Programs.at(static_cast<std::size_t>(process) - 1);
    if (OnProgram) OnProgram(started.Start);
    if (const auto ended = std::exchange(started.Ended, {})) ended();
  }
  bool OpenAddress(std::string_view address) override {
    Addresses.emplace_back(address);
    return AddressKnown;
  }
  bool OpenWithDesktop(const std::string& path) override {
    DesktopFiles.push_back(path);
    return DesktopKnown;
  }

 private:
  template <typename Value>
  static Value Take(std::deque<Value>& script, Value otherwise) {
    if (script.empty()) return otherwise;
    Value value = std::move(script.front());
    script.pop_front();
    return value;
  }
};

}  // namespace kev::test
