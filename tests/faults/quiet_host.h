// SPDX-License-Identifier: MIT
// What stands around the designer in a campaign. Nothing that it does counts as a call of the designer.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/designer.h"
#include "app/recover.h"
#include "faults/fault_points.h"
#include "surface/null_surface.h"

namespace kev::faults {

// While it lives, no call counts or fails.
class Pause {
 public:
  Pause() : armed_(std::exchange(kev_faults()->Armed, 0)) {}
  ~Pause() { kev_faults()->Armed = armed_; }
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

 private:
  std::uint32_t armed_;
};

class QuietHost final : public Host {
 public:
  std::vector<std::string> Messages;  // with their details
  std::string Status;                 // all that was shown
  BoxAnswer Answer = BoxAnswer::Ok;
  std::string Place;  // what is chosen to save to; empty gives up

  BoxAnswer ShowMessage(const MessageBox& box) override {
    const Pause pause;
    Messages.push_back(box.Text + box.Detail);
    return Answer;
  }
  void ShowStatus(std::string_view text, std::string_view detail) override {
    const Pause pause;
    Status.append(text).append(detail).append("\n");
  }
  void ShowSelectionStatus(std::string_view) override {}
  void BeginProgress(std::string_view, int) override {}
  void StepProgress(int, std::string_view) override {}
  void EndProgress() override {}
  bool ProgressStopped() override { return false; }
  std::optional<std::string> ChooseFileToOpen(const FileChoice&) override { return std::nullopt; }
  std::optional<std::string> ChooseFileToSave(const FileChoice&) override {
    const Pause pause;
    return Place.empty() ? std::nullopt : std::optional(Place);
  }
  void ShowCaption(std::string_view, bool) override {}
  void FetchPicture(std::string_view, std::string_view, std::function<void(bool)>) override {}
  std::optional<ProcessId> StartProgram(const ProgramStart&, std::function<void()>) override {
    return std::nullopt;
  }
  void WaitForProcess(ProcessId) override {}
  bool OpenAddress(std::string_view) override { return false; }
  bool OpenWithDesktop(const std::string&) override { return false; }
};

class QuietView final : public DesignerView {
 public:
  bool Recovers = false;  // the first file that is offered
  bool Paints = true;     // the picture of a template for the list of recent ones
  std::vector<std::string> Offered;
  bool Taken = false;  // and it could be had

  void DocumentReplaced() override {}
  SurfaceOps& Canvas() override { return nowhere_; }
  void PageShown() override {}
  void ShowZoom(std::string_view) override {}
  void FindingsChanged() override {}
  std::string PaintThumbnail(const ThumbnailLook&) override { return Paints ? "a bitmap" : ""; }
  void ShowRecoverDialog(RecoverDialog& dialog) override {
    {
      const Pause pause;
      Offered = dialog.Files;
    }
    if (!Recovers) return;
    SelectRecovered(dialog, 0);
    Taken = Recover(dialog);
  }

 private:
  NullSurface nowhere_;
};

}  // namespace kev::faults
