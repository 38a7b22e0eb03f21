// SPDX-License-Identifier: MIT
// What the designer's logic asks of the window system. The window implements it; tests script it. A method
// stands here because some logic needs it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kev {

enum class BoxIcon : std::uint8_t { Critical, Warning, Information, Question };
// YesNoYesToAll is for one question of a row of equal ones; YesToAll answers the rest of them as well.
enum class BoxButtons : std::uint8_t { Ok, YesNo, YesNoCancel, YesNoYesToAll };
enum class BoxAnswer : std::uint8_t { Ok, Yes, No, Cancel, YesToAll };

// Texts for the user are in the code page of the language file; paths are the system's own bytes, so a
// message carries them apart from its text.
struct MessageBox {
  std::string Title;
  std::string Text;
  std::string Detail;  // native bytes (a path, the system's reason), shown behind the text; may be empty
  BoxIcon Icon = BoxIcon::Critical;
  BoxButtons Buttons = BoxButtons::Ok;
  bool NoIsDefault = false;
};

struct FileChoice {
  std::string Title;
  std::string Folder;                                        // native bytes
  std::string SuggestedName;                                 // native bytes
  std::vector<std::pair<std::string, std::string>> Filters;  // caption and patterns ("*.kev *.KEV")
  // Where it is set: the index in Filters that stands first, and then the one that a file was chosen with.
  int* Filter = nullptr;
  // Put behind a typed name that has none ("bmp"); empty takes that of the first filter, for saving alone.
  std::string DefaultEnding = {};
};

// A program to start. The arguments reach it one by one as they stand; no shell ever sees them.
struct ProgramStart {
  std::string Program;                 // a file, or a name to look up in PATH; native bytes
  std::vector<std::string> Arguments;  // native bytes
};
using ProcessId = std::int64_t;

class Host {
 public:
  virtual ~Host() = default;

  virtual BoxAnswer ShowMessage(const MessageBox& box) = 0;
  // The text in the status line; empty clears it. `detail` is native bytes and stands behind the text.
  virtual void ShowStatus(std::string_view text, std::string_view detail = {}) = 0;
  // The first panel of the status bar: what is selected.
  virtual void ShowSelectionStatus(std::string_view text) = 0;

  // The progress window: shown with Begin, hidden with End, never more than one at a time.
  virtual void BeginProgress(std::string_view text, int maximum) = 0;
  virtual void StepProgress(int value, std::string_view text) = 0;
  virtual void EndProgress() = 0;
  // Behind BeginProgress: the user can stop this work. While it runs, nothing else can be clicked or typed.
  virtual void OfferStop() {}
  // Whether the user has asked, since BeginProgress, that the work ends early.
  virtual bool ProgressStopped() = 0;

  // Native paths; nothing when the user gives up.
  virtual std::optional<std::string> ChooseFileToOpen(const FileChoice& choice) = 0;
  virtual std::optional<std::string> ChooseFileToSave(const FileChoice& choice) = 0;

  // The title bar: the document's name (native bytes) and whether it has unsaved changes.
  virtual void ShowCaption(std::string_view documentTitle, bool modified) = 0;

  // Starts fetching an address into a file behind the call; `done` tells whether the file is there.
  virtual void FetchPicture(std::string_view address, std::string_view file,
                            std::function<void(bool)> done) = 0;

  // Starts a program and goes on. Nothing when it could not be started. `ended` runs when it has ended,
  // however it did, and never before this call has returned; a program that is told nothing of outlives us.
  virtual std::optional<ProcessId> StartProgram(const ProgramStart& start,
                                                std::function<void()> ended = {}) = 0;
  // Until a program started with `ended` has ended; the window goes on answering the user meanwhile. A
  // process that is not known has ended. No limit of time.
  virtual void WaitForProcess(ProcessId process) = 0;
  // Ends a program that was started with `ended`, which is not called any more.
  virtual void StopProgram(ProcessId) {}
  // Hands an address, as it stands, to the program that the desktop knows for its scheme.
  virtual bool OpenAddress(std::string_view address) = 0;
  // Opens a file with the desktop's own program for it; native path.
  virtual bool OpenWithDesktop(const std::string& path) = 0;
};

}  // namespace kev
