// SPDX-License-Identifier: MIT
// What the form `Fastopen` shows and does. Whatever is chosen there runs when the form has closed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kev {

class Designer;

// A program beside the designer that shows a picture in a window.
inline constexpr const char* kPictureViewer = "\\viewpics";

class WelcomeRun {
 public:
  explicit WelcomeRun(Designer& designer);

  // Those that are there, newest first; native bytes.
  const std::vector<std::string>& Files() const { return files_; }
  // -1 when none is.
  int Chosen() const { return chosen_; }
  // Anything outside the list chooses none.
  void Choose(int entry);
  // The picture of an entry's page; empty where there is none.
  std::string Thumbnail(int entry) const;
  // `openbutt` and `prevbutt` can be used.
  bool CanOpen() const { return chosen_ >= 0; }
  bool CanPreview() const { return !Thumbnail(chosen_).empty(); }

  // `Check1`: ticked means that the screen is not shown at the next starts.
  bool NotAgain() const;
  void SetNotAgain(bool ticked);

  // Each of the three is true where the form closes.
  bool Open();
  bool New();
  bool OpenOther();
  // Shows the picture of the chosen file and leaves the form open.
  void Preview();

  // Behind the form.
  void Finish();

 private:
  enum class Next : std::uint8_t { Nothing, Open, New, OpenOther };

  Designer& designer_;
  std::vector<std::string> files_;
  int chosen_ = -1;
  Next next_ = Next::Nothing;
};

}  // namespace kev
