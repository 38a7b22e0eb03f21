// SPDX-License-Identifier: MIT
// The small panel over the page: what it shows, and what is done with it. The window shows what it is told.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "data/quick_panel.h"
#include "data/sample_values.h"

namespace kev {

class Designer;

class QuickProperties {
 public:
  explicit QuickProperties(Designer& designer) : designer_(designer) {}

  // What is selected now is shown; nothing where the panel is switched off.
  void UpdateQuickPanel();
  // The menu command and the panel's cross; remembered for the next start.
  void ShowQuickPanel();
  void CloseQuickProps();
  // It was dragged to here; twips from the corner of the page's area.
  void Moved(std::int32_t left, std::int32_t top);

  // What the sample data holds for a field of the list, counted from 0.
  SampleValues ValuesOf(std::size_t item) const;
  // The caption under the values.
  std::string RecordsShown(const SampleValues& values) const;
  // The text of the label that is shown. A blank one is refused and the old one stays.
  void StoreText(std::string text);
  // On, the object moves to the grid at once.
  void SetAlignToGrid(bool on);

  const QuickPanel& Shown() const { return panel_; }

 private:
  const std::vector<std::string>& VariablesOf(const std::string& path);
  // Whether the panel still stands for the current object.
  bool IsCurrent() const;
  void SnapToGrid(int row);

  // The names of a .ked file, as long as the file stays the same.
  struct KnownVariables {
    std::string Path;
    std::filesystem::file_time_type Written{};
    std::uintmax_t Size = 0;
    std::vector<std::string> Names;
  };

  Designer& designer_;
  QuickPanel panel_;
  KnownVariables known_;
};

}  // namespace kev
