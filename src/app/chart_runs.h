// SPDX-License-Identifier: MIT
// The chart wizard at work: what its form calls beyond the plain edits of chart/wizard.h. Texts are bytes of
// the template's code page, paths native bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "chart/wizard.h"

namespace kev {

class Designer;

class ChartWizardRun {
 public:
  // For a CHART row.
  ChartWizardRun(Designer& designer, int row);

  // The form edits it and shows it again.
  ChartWizard& Wizard() { return wizard_; }
  const ChartWizard& Wizard() const { return wizard_; }
  const CodePage& Page() const;

  // What the lists of `combo_graphX` and `combo_graphY` offer: the columns, and where the other objects of
  // the subsection stand.
  std::vector<std::string> Columns() const;
  std::vector<std::string> Heights() const;
  // The file of a button's image ("boldregular").
  std::string ButtonImage(std::string_view name) const;
  // The file that `Background_picture` names, or the text itself where there is none; empty for an empty one.
  std::string PictureOnDisk() const;

  // `Command6`. False when the dialog stays: it was refused, and the message was shown.
  bool Accept();
  // `Command1`: chooses a file for `Background_picture`.
  void BrowsePicture();
  // A click on `p1`: shows the picture by itself.
  void ShowPicture();
  // Tells of a typed character (UTF-8) that the template can't hold.
  void RefuseCharacter(const std::string& character);

 private:
  Designer& designer_;
  ChartWizard wizard_;
};

}  // namespace kev
